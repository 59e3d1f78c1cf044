// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace orvane {

// The main window's title for the document in this file; an empty path is a document without a file.
QString WindowTitle(const QString& path, bool isModified);

} // namespace orvane
