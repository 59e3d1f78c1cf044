// SPDX-License-Identifier: GPL-3.0-or-later
// What greets the user when the program starts: the splash window, and news of a newer version.
#pragma once

class QWidget;

namespace orvane {

// Shows the splash window over the window, once that can be seen; it goes by itself.
void ShowSplash(QWidget* window);

// Asks the download page, in the background, for the latest version. When that is newer than this one the
// user is asked whether to go and get it.
void CheckForUpdate(QWidget* window);

} // namespace orvane
