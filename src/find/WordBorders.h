// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/ByteOf.h"

#include <cstddef>
#include <string_view>

namespace orvane::find {

// Letters, digits, "_" and every byte above 0x7F: what code panes take for a part of a word, whatever the
// vocabulary is.
constexpr bool IsOfWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           ByteOf(c) >= 0x80;
}

// Whether a word goes on across the place before text[at].
constexpr bool IsInsideWord(std::string_view text, std::size_t at) {
    return at > 0 && at < text.size() && IsOfWord(text[at - 1]) && IsOfWord(text[at]);
}

// The word that this place in the text touches, also at its ends; empty where there is none.
constexpr std::string_view WordAt(std::string_view text, std::size_t at) {
    std::size_t begin = at < text.size() ? at : text.size();
    std::size_t end = begin;
    while (begin > 0 && IsOfWord(text[begin - 1]))
        --begin;
    while (end < text.size() && IsOfWord(text[end]))
        ++end;
    return text.substr(begin, end - begin);
}

constexpr bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

} // namespace orvane::find
