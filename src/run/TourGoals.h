// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "run/Coverage.h"
#include "run/Machine.h"
#include "run/TestableWays.h"
#include "run/Tour.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

namespace orvane::run {

// What a tour still has to see.
class TourGoals {
  public:
    TourGoals(const Machine& machine, const TestableWays& ways, const TourOptions& options);

    bool Done() const { return open_.none() && trials_ == 0; }

    // What is seen, or given up, of all that there was.
    int PercentSeen() const;

    // There is a transition to see on the way.
    bool IsOn(const TestableWay& way) const;

    // Events that are to be tried in that state at one scan; there must be one.
    bool HasTrial(StateNumber state) const { return !trialsOf_[state.Number()].empty(); }
    std::uint64_t NextTrial(StateNumber state) const { return trialsOf_[state.Number()].back().Events; }
    // It is over, and was done or could not be.
    void EndTrial(StateNumber state, bool done);

    void See(const Taken& taken) { open_.reset(Index({taken.Row, taken.From})); }
    // They are not to be had; so that a tour never goes for them again.
    void GiveUp(const TestableWay& way);
    void GiveUpTrials(StateNumber state);

    CoverageCount Transitions() const { return {all_.count() - (open_ | givenUp_).count(), all_.count()}; }
    // The cells of blocks with a target that no test can take.
    std::vector<Cell> NeverTaken(const Machine& machine) const;

    // How many trials of either kind were taken, in cells.
    CoverageCount EmptyCells() const { return emptyCells_; }
    CoverageCount Pairs() const { return pairs_; }

  private:
    using Cells = std::bitset<(kStateCount + 1) * kTableRows>;
    struct Trial {
        std::uint64_t Events = 0;
        bool IsPair = false;
    };

    static std::size_t Index(Cell cell) { return cell.State.Number() * kTableRows + cell.Row.Number(); }
    void AddEmptyCells(const Machine& machine, StateNumber state, std::uint64_t anyEvents);
    void AddPairs(const Machine& machine, StateNumber state);

    Cells all_;
    Cells open_;
    Cells givenUp_;
    std::array<std::vector<Trial>, kStateCount + 1> trialsOf_;
    std::size_t trials_ = 0; // left
    std::size_t allTrials_ = 0;
    CoverageCount emptyCells_;
    CoverageCount pairs_;
};

} // namespace orvane::run
