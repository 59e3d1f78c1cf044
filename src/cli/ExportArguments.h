// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace orvane::cli {

// What `orvanec diagram` is asked for beside the document and the output. Words are those of the command
// line.
struct DiagramArguments {
    std::string Format;               // svg or dot; empty: what the output's name says
    std::string Direction;            // lr or td; empty: what fits
    std::optional<std::string> Focus; // a state
    bool NoElse = false;
};

// What `orvanec export` and `orvanec import` are asked for beside them.
struct ExportArguments {
    std::string Format; // a word of the command line; for an import empty: what the file's name says
    bool Safe = true;   // cells of a table that look like formulas get an apostrophe
};

} // namespace orvane::cli
