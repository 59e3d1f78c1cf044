// SPDX-License-Identifier: GPL-3.0-or-later
// Where the program's pages are found. Each address is set when the program is built (ORVANE_DOWNLOAD_URL,
// ORVANE_HOME_URL, ORVANE_HELP_URL), and an environment variable of the same name stands in its place when it
// is set.
#pragma once

#include <QUrl>

namespace orvane {

// The page that names the latest version; empty when there is none to ask.
QUrl DownloadPage();

// The home page; empty when there is none.
QUrl HomePage();

// The page where the knowledge base begins, and a page of it; without an address for it, one of the pages
// that the program brings along.
QUrl HelpStart();
QUrl HelpPage(int page);

} // namespace orvane
