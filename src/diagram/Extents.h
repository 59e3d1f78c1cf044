// SPDX-License-Identifier: GPL-3.0-or-later
// How large the parts of a picture are, and how far they keep from each other. All lengths are pixels.
#pragma once

#include "diagram/Layered.h"

namespace orvane::diagram {

inline constexpr int kBoxMargin = 7;    // between a box and its text
inline constexpr int kArrowRoom = 12;   // straight ends of lines at a layer of states
inline constexpr int kPortDistance = 6; // between lines that end at one box
inline constexpr int kLabelMargin = 4;  // between a label and its line
inline constexpr int kTurnRoom = 12;    // along, where a line turns back
inline constexpr int kTurnWidth = 10;   // across
inline constexpr int kDot = 10;         // the start's, across
inline constexpr int kSign = 13;        // room of a sign before a text

struct Extent {
    int Width = 0;
    int Height = 0;
};

int LineWidth(const LabelLine& line, const TextSizes& sizes);
Extent TextExtent(const std::vector<LabelLine>& lines, const TextSizes& sizes);
Extent BoxExtent(const SceneState& state, const TextSizes& sizes);

// What two neighbours within a layer keep free between them.
int Distance(const Item& one, const Item& other);

} // namespace orvane::diagram
