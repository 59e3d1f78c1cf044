// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/TextSizes.h"

namespace orvane::diagram {

// What the pictures of a program without a window are set in. The widths are those of the usual sans-serif of
// offices (Helvetica and what has its measures), so that the same document gives the same picture on every
// machine, whatever fonts it has.
inline constexpr int kTitlePixels = 13; // bold
inline constexpr int kLinePixels = 11;

class LetterWidths : public TextSizes {
  public:
    int Width(std::string_view ansi, TextRole role) const override;
    int LineHeight(TextRole role) const override { return role == TextRole::Title ? 17 : 14; }
};

} // namespace orvane::diagram
