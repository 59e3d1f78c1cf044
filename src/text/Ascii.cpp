// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Ascii.h"

namespace orvane {

std::string AsciiUpper(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        c = AsciiUpper(c);
    return upper;
}

std::string AsciiLower(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        c = AsciiLower(c);
    return lower;
}

} // namespace orvane
