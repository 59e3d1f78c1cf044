// SPDX-License-Identifier: GPL-3.0-or-later
// Which transitions lead into a state.
#pragma once

#include "core/FsmDocument.h"
#include "table/CellColour.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

struct BacktrackLine {
    std::string EventText; // the event's name, "TimeOut" or "ELSE"
    std::string FromText;  // the state the transition leaves, as it is labelled
    Colour EventColour;    // that of FromText is always kStateHeadColour

    bool operator==(const BacktrackLine&) const = default;
};

std::string BacktrackTitle(const FsmDocument& document, int state);

// Row by row from the timeouts down, and within a row by the number of the state.
std::vector<BacktrackLine> BacktrackLines(const FsmDocument& document, int state);

// The number of the state that a line's FromText labels.
int BacktrackedState(std::string_view fromText);

} // namespace orvane
