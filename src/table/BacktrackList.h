// SPDX-License-Identifier: GPL-3.0-or-later
// Which transitions lead into a state.
#pragma once

#include "core/FsmDocument.h"
#include "table/CellColour.h"

#include <string>
#include <vector>

namespace orvane {

struct BacktrackLine {
    std::string EventText; // the event's name, "TimeOut" or "ELSE"
    Colour EventColour;    // that of FromText is always kStateHeadColour
    StateNumber From;      // the state that the transition leaves ...
    std::string FromText;  // ... and its label

    bool operator==(const BacktrackLine&) const = default;
};

std::string BacktrackTitle(const FsmDocument& document, StateNumber state);

// Row by row from the timeouts down, and within a row by the number of the state.
std::vector<BacktrackLine> BacktrackLines(const FsmDocument& document, StateNumber state);

} // namespace orvane
