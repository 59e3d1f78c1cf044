// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace orvane {

// A builder script as text: every line of the file, whatever ended it, followed by CR LF. None when the file
// cannot be read.
std::optional<QString> ReadScript(const QString& path);

// The first line with a character that a script's file, which is ANSI, cannot hold; empty without one.
QString LineOutsideAnsi(const QString& script);

// Writes the script over the file, all or nothing. Returns what the file has lost beside its old bytes, a
// sentence each, without the stop; none when it was not written, as with a character that it cannot hold.
[[nodiscard]] std::optional<QStringList> WriteScript(const QString& path, const QString& script);

// What ReadScript would give for a file with this text.
QString AsReadBack(const QString& script);

} // namespace orvane
