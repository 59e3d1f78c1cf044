// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane::cli {

// The parser takes a value in brackets for a list. No argument can hold a NUL, so one at the end hides the
// closing bracket from it.
inline std::string HideBracket(std::string value) {
    if (!value.empty() && value.back() == ']')
        value += '\0';
    return value;
}

inline void ShowBracket(std::string& value) {
    if (!value.empty() && value.back() == '\0')
        value.pop_back();
}

} // namespace orvane::cli
