// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the desktop is to open for the program is asked for here.
#pragma once

#include <QUrl>

class QEvent;
class QWidget;

namespace orvane {

// Opens a page, a file or a folder with what the desktop has for it. False when there is no such thing.
bool OpenInDesktop(const QUrl& address);

// An address as the user is told it: a file's path as the system writes paths.
QString ShownAddress(const QUrl& address);

// Opens a page of the knowledge base.
bool OpenHelpPage(int page);

// F1 with no other key opens the page while this window is the active one, whatever has the focus in it.
// When nothing opens, a note on the window says which page it would have been.
void AddHelpKey(QWidget& window, int page);

// The same for a pane of the main window, whose own F1 is a shortcut that comes before a pane's: to be asked
// for every event of the pane. True when the event was that key and needs nothing more.
bool TakesHelpKey(QEvent& event, int page);

} // namespace orvane
