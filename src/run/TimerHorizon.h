// SPDX-License-Identifier: GPL-3.0-or-later
// How much of its timers a machine can still ask about. In a state a timer matters when it can be looked at
// before it is started again, and then only which of the limits ahead it has passed. Where two timers matter
// in one state, their difference does too, so that those are counted unit by unit.
#pragma once

#include "run/Machine.h"

#include <array>
#include <cstdint>
#include <vector>

namespace orvane::run {

// A timer that matters in a state.
struct TimerReach {
    std::uint8_t Timer = 0;
    std::vector<Units> Limits; // ahead, at which something can be due: sorted, each once, at least 1
};

class TimerHorizon {
  public:
    // A variable limit that is not given may be any number from 0 on.
    TimerHorizon(const Machine& machine, const Inputs& given);

    // In the order of the timers.
    const std::vector<TimerReach>& Of(StateNumber state) const { return reaches_[state.Number()]; }

    // The time that stands for this one: nothing that the machine does tells them apart.
    Units Representative(const TimerReach& reach, Units elapsed) const;

    // The least time behind this one that does not have the same representative; none past all limits.
    std::optional<Units> Next(const TimerReach& reach, Units elapsed) const;

    // No limit is beyond it.
    Units Longest() const { return longest_; }

  private:
    void Spread(const Machine& machine, std::uint8_t timer, StateNumber from, Units due);
    void Sort();

    std::array<std::vector<TimerReach>, kStateCount + 1> reaches_;
    std::array<std::vector<StateNumber>, kStateCount + 1> entered_; // by state: from where it is entered
    std::vector<bool> fine_;                                        // by timer: counted unit by unit
    Units longest_ = 1;
};

} // namespace orvane::run
