// SPDX-License-Identifier: GPL-3.0-or-later
// A run over its time, as control engineers read their machines: a lane for the state, one for each input
// that was used, one for each timer that was started.
#pragma once

#include "run/History.h"

#include <vector>

namespace orvane::run {

struct StateStretch {
    Units From = 0;
    Units To = 0;
    StateNumber State;

    bool operator==(const StateStretch&) const = default;
};

struct TimeStretch {
    Units From = 0;
    Units To = 0; // equal for a pulse

    bool operator==(const TimeStretch&) const = default;
};

struct InputLane {
    RowNumber Event;
    std::vector<TimeStretch> True;

    bool operator==(const InputLane&) const = default;
};

struct TimerLane {
    std::size_t Timer = 0;         // its place in Machine::Timers()
    std::vector<TimeStretch> Runs; // from each start to the next one, or to the end of the run
    std::optional<Units> Limit;    // the longest of those that are known of it

    bool operator==(const TimerLane&) const = default;
};

struct Timeline {
    std::vector<StateStretch> States; // one behind the other, from power-on to the end of the run
    std::vector<InputLane> Inputs;    // by row
    std::vector<TimerLane> Timers;    // by place
    Units End = 0;
};

// Of the whole run, also behind the moment shown. What is shorter than `finest` and stands beside something
// else may be left out, so that a long run is not drawn a thousand times into one pixel; pass 0 for all.
Timeline TimelineOf(const Machine& machine, const History& history, Units finest);

} // namespace orvane::run
