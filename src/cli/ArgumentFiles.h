// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "files/FileSystem.h"

#include <string>
#include <variant>
#include <vector>

namespace orvane::cli {

// The arguments behind the program's name. With a verb of a build, each @FILE up to a "--" stands for the
// lines of that file, one argument a line, taken as it stands; empty lines are none. The outcome says which
// file could not be read.
std::variant<std::vector<std::string>, Outcome> WithArgumentFiles(int count, const char* const* values,
                                                                  FileSystem& files);

} // namespace orvane::cli
