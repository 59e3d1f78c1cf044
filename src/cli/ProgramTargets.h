// SPDX-License-Identifier: GPL-3.0-or-later
// Where the programs of a run are written.
#pragma once

#include "cli/Arguments.h"
#include "files/FileSystem.h"

#include <filesystem>
#include <optional>
#include <string>

namespace orvane::cli {

// The program of the document of that name: as -o says, in the folder that all programs go to, or beside its
// document.
std::filesystem::path ProgramTarget(const Arguments& arguments, const std::string& document);

// The same as the command line would name it, so that make and ninja know it again.
std::string NameOfTarget(const Arguments& arguments, const std::string& document);

// Two documents whose programs would be the same file, links followed, as wrong usage. The same document
// named twice is none.
std::optional<Outcome> ProgramClash(const Arguments& arguments, FileSystem& files);

} // namespace orvane::cli
