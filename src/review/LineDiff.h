// SPDX-License-Identifier: GPL-3.0-or-later
// Code is compared line by line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::review {

using Lines = std::vector<std::string_view>; // they live where the text lives

// The lines of a document's text, without their ends; none of the empty text.
Lines LinesOf(std::string_view text);

// The text of these lines.
std::string TextOf(const Lines& lines);

// Lines, from 0, that stand in the place of others.
struct LineChange {
    std::size_t OldFirst = 0;
    std::size_t OldCount = 0;
    std::size_t NewFirst = 0;
    std::size_t NewCount = 0;

    bool operator==(const LineChange&) const = default;
};

// What leads from the old lines to the new ones, in their order, with equal lines between. The fewest lines
// that there can be, except in texts with more than a thousand different ones: there the rest is one change.
std::vector<LineChange> DiffLines(const Lines& oldLines, const Lines& newLines);

// The same for people, in the form of unified diffs: "@@ -1,2 +1,3 @@", then lines behind " ", "-" and "+".
// Document text.
std::vector<std::string> UnifiedDiff(std::string_view oldText, std::string_view newText);

} // namespace orvane::review
