// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/AnsiText.h"

#include <string>
#include <string_view>

namespace orvane {

// Document bytes written legibly: every "$" stands for the delimiter.
inline std::string Delimited(std::string_view text) { return Replace(text, '$', kDelimiter); }

inline std::string Repeated(std::string_view piece, std::size_t times) {
    std::string text;
    text.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        text += piece;
    return text;
}

} // namespace orvane
