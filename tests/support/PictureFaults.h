// SPDX-License-Identifier: GPL-3.0-or-later
// What a reader of a picture would call a fault, counted on the picture itself, as it is drawn.
#pragma once

#include "diagram/Layout.h"

#include <string>

namespace orvane::test {

struct PictureFaults {
    int Overlaps = 0;      // of boxes and labels with each other
    int ThroughBoxes = 0;  // lines that touch the box of a state that is not theirs
    int ThroughLabels = 0; // lines that touch a label, their own included
    int LooseEnds = 0;     // lines that do not end at the boxes of their states
    int OutOfBounds = 0;   // what lies outside the picture

    int All() const { return Overlaps + ThroughBoxes + ThroughLabels + LooseEnds + OutOfBounds; }
};

PictureFaults FaultsOf(const diagram::Layout& layout);

std::string Told(const PictureFaults& faults);

// How often lines cross, of those that have no end in common there.
int CrossingsDrawn(const diagram::Layout& layout);

} // namespace orvane::test
