// SPDX-License-Identifier: GPL-3.0-or-later
// A running machine as the table shows it. The table is the picture of the run, and no room may know another:
// the room that runs the machine hands this to the session, the one that paints the table reads it there.
#pragma once

#include "core/Cell.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

struct RunPicture {
    StateNumber State;            // that the machine is in; none while its power is off
    std::uint64_t Takeable = 0;   // bit r: row r of that state leads somewhere
    RowNumber Next;               // of these the one that would be taken as things are; none is 0
    std::optional<Cell> Last;     // the transition that was taken last
    std::uint64_t TrueInputs = 0; // bit r: the event of row r is true
    std::string Countdown;        // for row 3 of that state, document text
    // How often each was taken, state * kTableRows + row, row 0 for states that were entered; empty when that
    // is not to be shown.
    std::vector<std::uint32_t> Counts;

    bool operator==(const RunPicture&) const = default;
};

// How one cell, heads included, takes part in the picture.
struct RunMark {
    bool Takeable = false;
    bool Next = false;
    bool Last = false;
    bool TrueInput = false;
    std::string Note; // at the right end of the cell, document text

    bool operator==(const RunMark&) const = default;
};

// `leadsSomewhere`: the cell has a target, so that its count is worth telling when it is 0.
RunMark MarkOf(const RunPicture& picture, Cell cell, bool leadsSomewhere);

} // namespace orvane
