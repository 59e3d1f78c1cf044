// SPDX-License-Identifier: GPL-3.0-or-later
// The sets of characters that an expression names.
#pragma once

#include "find/PatternProgram.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane::find {

ByteSet SetOf(char c);

// What \d, \w, \s, \t and their opposites name, and a character that is no letter or digit as it stands; none
// for any other.
std::optional<ByteSet> SetOfEscape(char c);

// With the capital of each letter and the small letter of each capital, as the code page has them.
ByteSet WithBothCases(const ByteSet& set);

// A character, a range or an escape off the front of what stands in brackets; there must be something.
struct BracketItem {
    ByteSet Set;
    std::string Fault; // empty: there is none
};
BracketItem TakeBracketItem(std::string_view& rest);

// What a match of the program can begin with.
ByteSet BeginningsOf(const PatternProgram& program);

} // namespace orvane::find
