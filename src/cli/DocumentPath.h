// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvane::cli {

// Names on the command line and in messages are UTF-8, whatever the system's own encoding is.
std::filesystem::path PathOf(std::string_view utf8);
std::string Utf8(const std::filesystem::path& path);

// The same with the one separator that all systems, make and ninja understand. For what is written into
// files.
std::string PortableText(const std::filesystem::path& path);

// The absolute path of a file named on the command line, without "." and "..": a dot in the path is the dot
// of an extension. Links keep their names.
std::filesystem::path FullPath(const std::string& name);

// An order in which two names of one file are equal: on Windows capitals make no difference.
struct FileNameOrder {
    bool operator()(const std::filesystem::path& one, const std::filesystem::path& other) const;
};

// The program that belongs to a document.
std::filesystem::path ProgramPath(const std::filesystem::path& fullPath);

// The path as a program's comments name it: document text. What that cannot hold, or what would end the
// comment's line, is shown as "?".
std::string PathInProgram(const std::filesystem::path& fullPath);

} // namespace orvane::cli
