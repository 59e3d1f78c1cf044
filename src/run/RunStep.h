// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Machine.h"

#include <cstdint>

namespace orvane::run {

enum class RunAct : std::uint8_t {
    PowerOn, // once in a run; before it only inputs and limits
    Inputs,  // these events are there from now on, and no others
    Pulse,   // these events are there for one scan
    Limit,   // the variable limit of a state
    Wait,    // time passes
    Scan     // as many scans as are said
};

// What was done to a running machine. A run is a list of these and nothing else: all that happened follows
// from it. Small, because a run may have a million of them.
struct RunStep {
    std::uint64_t Amount = 0; // events (bit r: row r), or units of time, or scans
    RunAct What = RunAct::PowerOn;
    std::uint8_t State = 0; // of Limit
    bool More = false;      // Inputs and Limit: the next step belongs to the same moment

    Units Time() const { return Units(Amount); }

    bool operator==(const RunStep&) const = default;
};
static_assert(sizeof(RunStep) == 16);

RunStep SwitchTo(std::uint64_t events);
RunStep PulseOf(std::uint64_t events);
RunStep WaitFor(Units units);
RunStep LimitOf(StateNumber state, Units units);

// Bit r for the event of row r.
constexpr std::uint64_t BitOf(RowNumber row) { return std::uint64_t{1} << row.Number(); }
constexpr std::uint64_t LowestBit(std::uint64_t bits) { return bits & (~bits + 1); }

} // namespace orvane::run
