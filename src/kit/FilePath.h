// SPDX-License-Identifier: GPL-3.0-or-later
// Between the engine's files and what windows show.
#pragma once

#include "files/FileError.h"

#include <QString>

#include <filesystem>

namespace orvane {

std::filesystem::path NativePath(const QString& path);

// What there is to tell, without the stop.
QString Message(const FileError& error);
QString Message(FileNote note);

} // namespace orvane
