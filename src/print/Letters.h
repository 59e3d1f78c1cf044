// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Sheet.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::print {

// How much room texts take on paper; whoever paints them measures them. A text is as wide as its letters.
class Letters {
  public:
    virtual ~Letters() = default;

    virtual int Width(char32_t letter, Face face) const = 0;
    virtual int LineHeight(Face face) const = 0;
};

// What a text ends in that is cut.
inline constexpr std::string_view kDots = "\xE2\x80\xA6";

int WidthOf(std::string_view utf8, Face face, const Letters& letters);

// The text in lines of at most this width, which is more than any letter takes: broken behind blanks and "_",
// within a word only where it is too long for a line. Line ends begin a new line. Never empty.
std::vector<std::string> Wrapped(std::string_view utf8, int width, Face face, const Letters& letters);

// The same in so many lines at most; the last one ends in dots when that is not all.
std::vector<std::string> Fitted(std::string_view utf8, int width, int lines, Face face,
                                const Letters& letters);

} // namespace orvane::print
