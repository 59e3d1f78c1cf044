// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "run/Machine.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
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

// Which events were there when the machine looked around in a state.
class EventsSeen {
  public:
    // One look, with bit r for the event of row r.
    void Add(const RunState& seenIn, StateNumber state, std::uint64_t events);
    void Merge(const EventsSeen& other);

    bool Event(StateNumber state, RowNumber row) const { return Has(events_, state, row); }
    // The event together with the next one below it that the state tests, too.
    bool Pair(StateNumber state, RowNumber upper) const { return Has(pairs_, state, upper); }

  private:
    using ByState = std::array<std::uint64_t, kStateCount + 1>;
    static bool Has(const ByState& rows, StateNumber state, RowNumber row) {
        return (rows[state.Number()] >> row.Number() & 1U) != 0;
    }

    ByState events_{};
    ByState pairs_{};
};

// The rows with a row of another event with a target below them, by bits: of each neighbouring pair the
// upper.
std::uint64_t UppersOfPairs(std::uint64_t rows);

// What of a machine has been seen: states entered, and transitions taken, among them the events that hold a
// state. All is what the program has: the states with a block and their cells with a target. Beside that, two
// things that tell whether a test notices more than what is there: events that were tried in states that have
// nothing for them, as long as any state has, and neighbouring events that were there together, of which the
// upper one has to win.
class Coverage {
  public:
    explicit Coverage(const Machine& machine);

    void See(const EventsSeen& events) { seen_.Merge(events); }

    void Enter(StateNumber state) { entered_.set(state.Number()); }
    void Take(const Taken& taken);

    // Adds what another one of the same machine has seen. The order makes no difference.
    void Merge(const Coverage& other);

    CoverageCount States() const;
    CoverageCount Transitions() const;
    CoverageCount EmptyCells() const;
    CoverageCount Pairs() const;
    std::vector<StateNumber> MissedStates() const;
    std::vector<Cell> MissedTransitions() const; // by state, then by row

  private:
    using Cells = std::bitset<(kStateCount + 1) * kTableRows>;

    std::bitset<kStateCount + 1> allStates_;
    std::bitset<kStateCount + 1> entered_;
    Cells all_;
    Cells taken_;
    EventsSeen seen_;
    std::uint64_t anyEvents_ = 0;                         // rows that some state tests
    std::array<std::uint64_t, kStateCount + 1> events_{}; // rows that the state tests
};

} // namespace orvane::run
