// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane::review {

// A text that both sides changed.
struct ThreeTexts {
    std::string_view Base;
    std::string_view Ours;
    std::string_view Theirs;
};

enum class Blocks { With, Without };

struct MergedText {
    std::string
        Text; // where lines of both sides contradict each other: ours, and a conflict block below when wanted
    int Conflicts = 0;
};

// Line by line. Changes that touch each other are a conflict, unless both made the same of it. The title, in
// UTF-8, stands in the conflict blocks.
MergedText MergeLines(const ThreeTexts& texts, std::string_view title, Blocks blocks = Blocks::With);

} // namespace orvane::review
