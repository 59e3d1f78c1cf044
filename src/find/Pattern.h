// SPDX-License-Identifier: GPL-3.0-or-later
// What is looked for, made ready for looking.
//
// A text is looked through line by line: a match has at least one character and never holds a line end. In
// regular expressions
//
//   .                     any character
//   [a-z_] [^;]           one of these, none of these; \ before ] \ ^ - takes it as it stands
//   \d \w \s  \D \W \S    a digit, a character of a word, a blank or tab, and any other; also in brackets
//   \t                    a tab
//   ^ $ \b \B             begin and end of the line, border of a word, no border
//   ( ) (?: )             a group, numbered from the left, and one without a number
//   |                     either side
//   * + ? {3} {2,} {2,5}  how often, as many as can be; with ? behind it as few as can be
//   \ before any other character that is no letter or digit takes it as it stands
//
// Of several matches the first in the line counts, and there what the expression prefers. There are no
// references back into the match and no looking around: without them an expression is worked on all ways at
// a time, so that no expression takes more than its length times that of the text.
#pragma once

#include "find/PatternProgram.h"

#include <string>
#include <variant>

namespace orvane::find {

struct SearchQuery {
    std::string Text; // ANSI
    bool MatchCase = false;
    bool WholeWord = false; // no character of a word goes on at an end where the match has one
    bool IsExpression = false;

    bool operator==(const SearchQuery&) const = default;
};

// Why there is nothing to look for, as a sentence that says what is wrong and where.
struct PatternFault {
    std::string Text;

    bool operator==(const PatternFault&) const = default;
};

// An expression larger than this is refused: counted repetitions stand in the program as often as they count.
inline constexpr std::size_t kMostInstructions = 2000;
inline constexpr int kDeepestGroup = 100;

// A text to be found as it stands.
struct Literal {
    std::string Text;
    bool MatchCase = false;
    bool WholeWord = false;
};

using Pattern = std::variant<Literal, PatternProgram>;

std::variant<Pattern, PatternFault> ReadPattern(const SearchQuery& query);

} // namespace orvane::find
