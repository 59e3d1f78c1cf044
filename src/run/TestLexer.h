// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/TestText.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

enum class TokenKind {
    Word,   // a bare word, or a name with its number: Idle, 99, 0.1s, 3:Idle, #3
    Quoted, // "Two Words", 3:"Two Words"
    Symbol  // + = => ( ) ,
};

struct Token {
    TokenKind Kind = TokenKind::Word;
    std::string Text;       // as it counts: without quotes and backslashes
    std::string NumberPart; // "3:" of 3:"Two Words"
    Place At;
    std::size_t Length = 0; // in characters
    Span Where;
};

// One line of a file, taken apart.
struct LexedLine {
    std::vector<Token> Tokens;
    std::optional<std::string> Comment;
    std::optional<TestMessage> Slip; // where the rest of the line could not be read
    std::string Rest;                // behind the first token up to the comment, without blanks at the ends
};

// `begin` is where the line stands in the file, `number` counts from 1.
LexedLine LexLine(std::string_view line, std::size_t begin, std::size_t number);

// A text as a name that reads back as it: bare where that is possible.
std::string QuotedWhereNeeded(std::string_view text);
std::string Quoted(std::string_view text);

} // namespace orvane::run
