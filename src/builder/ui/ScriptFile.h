// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace orvane {

// A builder script as text: every line of the file, whatever ended it, followed by CR LF. None when the file
// cannot be read.
std::optional<QString> ReadScript(const QString& path);

// The first line with a character that a script's file, which is ANSI, cannot hold; empty without one.
QString LineOutsideAnsi(const QString& script);

// Writes the script over the file, all or nothing. Returns whether that worked; a script with a character
// that the file cannot hold is not written.
bool WriteScript(const QString& path, const QString& script);

// What ReadScript would give for a file with this text.
QString AsReadBack(const QString& script);

} // namespace orvane
