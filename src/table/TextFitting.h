// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Length.h"

#include <string>
#include <string_view>

namespace orvane {

// The width of a text in the font of the table. A longer text is never narrower than its beginning.
class TextMeasurer {
  public:
    virtual ~TextMeasurer() = default;
    virtual Twips operator()(std::string_view text) const = 0;
};

// What a column keeps free of text.
inline constexpr Twips kColumnMargin = 200;

// A document may give a column any 32-bit width. None is shown wider than this, and no text is made
// longer than that takes.
inline constexpr Twips kWidestColumn = 300000;

// The text when it is narrower than the column less its margin; else the longest beginning that
// is, at least one character, with ".." behind it, which may make it slightly wider; else nothing.
//
// The place to cut is found by doubling and halving, so that a screenful of code in a narrow column costs a
// dozen short measurements. That finds the longest beginning because widths never shrink with more text.
std::string FitTextToColumn(std::string_view text, Twips columnWidth, const TextMeasurer& measure);

} // namespace orvane
