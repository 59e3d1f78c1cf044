// SPDX-License-Identifier: GPL-3.0-or-later
// How what came, went, moved and changed looks wherever two versions are shown: always with its sign, so that
// nobody has to tell colours apart. The grounds are light and the text on them is black on every desktop.
#pragma once

#include <QColor>
#include <QString>

namespace orvane {

// Of + - > ~; no colour for any other sign.
QColor GroundOf(char sign);

// "- 5:Stop"; the text alone without a sign.
QString WithSign(char sign, const QString& text);

} // namespace orvane
