// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "run/Machine.h"

#include <bitset>
#include <cstddef>
#include <vector>

namespace orvane::run {

struct CoverageCount {
    std::size_t Taken = 0;
    std::size_t All = 0;

    CoverageCount& operator+=(const CoverageCount& other) {
        Taken += other.Taken;
        All += other.All;
        return *this;
    }
    bool operator==(const CoverageCount&) const = default;
};

// Whole per cent, rounded down, so that 100 is all; nothing at all is 100 as well.
std::size_t Percent(const CoverageCount& count);

// What of a machine has been seen: states entered, and transitions taken, among them the events that hold a
// state. All is what the program has: the states with a block and their cells with a target.
class Coverage {
  public:
    explicit Coverage(const Machine& machine);

    void Enter(StateNumber state) { entered_.set(static_cast<std::size_t>(state.Number())); }
    void Take(const Taken& taken);

    // Adds what another one of the same machine has seen. The order makes no difference.
    void Merge(const Coverage& other);

    CoverageCount States() const;
    CoverageCount Transitions() const;
    std::vector<StateNumber> MissedStates() const;
    std::vector<Cell> MissedTransitions() const; // by state, then by row

  private:
    using Cells = std::bitset<(kStateCount + 1) * kTableRows>;

    std::bitset<kStateCount + 1> allStates_;
    std::bitset<kStateCount + 1> entered_;
    Cells all_;
    Cells taken_;
};

} // namespace orvane::run
