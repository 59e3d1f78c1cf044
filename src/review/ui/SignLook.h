// SPDX-License-Identifier: GPL-3.0-or-later
// How what came, went, moved and changed looks wherever two versions are shown: always with its sign, so that
// nobody has to tell colours apart. A dark desktop has dark grounds of the same hues.
#pragma once

#include <QColor>
#include <QString>

namespace orvane {

// Of + - > ~; no colour for any other sign.
QColor GroundOf(char sign);
QColor InkOnGround();

// "- 5:Stop"; the text alone without a sign.
QString WithSign(char sign, const QString& text);

} // namespace orvane
