// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A program file as a builder script lists it.
struct ListedProgram {
    std::string Path;     // document text, as it is written there
    std::size_t Line = 0; // from 1
};

// The files below the line that begins with "#---", in their order. A ";" begins a comment. A script without
// that line lists none.
std::vector<ListedProgram> ProgramsIn(std::string_view script);

} // namespace orvane
