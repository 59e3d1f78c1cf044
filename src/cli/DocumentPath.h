// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

namespace orvane::cli {

// The absolute path of a file named on the command line, without "." and "..": a dot in the path is the dot
// of an extension. Links keep their names.
std::filesystem::path FullPath(const std::string& name);

// The program that belongs to a document.
std::filesystem::path ProgramPath(const std::filesystem::path& fullPath);

// The path as a program's comments name it: document text. What that cannot hold, or what would end the
// comment's line, is shown as "?".
std::string PathInProgram(const std::filesystem::path& fullPath);

} // namespace orvane::cli
