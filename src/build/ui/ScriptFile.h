// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace orvane {

// A builder script as text: every line of the file, whatever ended it, followed by CR LF. None when the file
// cannot be read.
std::optional<QString> ReadScript(const QString& path);

// Writes the script over the file, all or nothing. Returns whether that worked.
bool WriteScript(const QString& path, const QString& script);

// What ReadScript would give for a file with this text.
QString AsReadBack(const QString& script);

} // namespace orvane
