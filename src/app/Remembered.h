// SPDX-License-Identifier: GPL-3.0-or-later
// What the program remembers of one run for the next, in the user's settings.
#pragma once

#include <QStringList>

class QWidget;

namespace orvane {

// Full paths of the documents opened or saved lately, the latest first; at most nine, one for each digit.
QStringList RememberedFiles();
void RememberFile(const QString& path);

// Size and place of the window. What does not fit the screens of today is moved onto one.
void RememberPlace(const QWidget& window);
void RestorePlace(QWidget& window);

} // namespace orvane
