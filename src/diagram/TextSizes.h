// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane::diagram {

// The title of a state's box, and everything else that is written in a picture.
enum class TextRole { Title, Line };

// How much room texts take. A window measures with its own font, a program without one has a table.
class TextSizes {
  public:
    virtual ~TextSizes() = default;

    // Pixels, for one line of document text.
    virtual int Width(std::string_view ansi, TextRole role) const = 0;

    // Pixels from one line to the next.
    virtual int LineHeight(TextRole role) const = 0;
};

// The text on one line, without blanks at its ends: line ends, tabs and other control characters are blanks.
// One that takes more than `width` pixels is cut and ends in dots.
std::string FittedLine(std::string_view ansi, int width, TextRole role, const TextSizes& sizes);

} // namespace orvane::diagram
