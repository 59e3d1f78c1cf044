// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Coverage.h"

#include <bit>

namespace orvane::run {

namespace {

std::size_t Index(StateNumber state, RowNumber row) { return state.Number() * kTableRows + row.Number(); }

bool IsThere(std::uint64_t rows, RowNumber row) { return (rows >> row.Number() & 1U) != 0; }

} // namespace

std::size_t Percent(const CoverageCount& count) {
    return count.All == 0 ? 100 : count.Taken * 100 / count.All;
}

void EventsSeen::Add(const RunState& seenIn, StateNumber state, std::uint64_t events) {
    events_[state.Number()] |= events;
    const std::uint64_t present = events & seenIn.Events;
    if ((present & (present - 1)) == 0)
        return; // no two of them
    for (std::uint64_t uppers = UppersOfPairs(seenIn.Events) & present; uppers != 0; uppers &= uppers - 1) {
        const std::uint64_t upper = uppers & (~uppers + 1);
        const std::uint64_t below = seenIn.Events & ~(upper | (upper - 1));
        if ((present & below & (~below + 1)) != 0)
            pairs_[state.Number()] |= upper;
    }
}

void EventsSeen::Merge(const EventsSeen& other) {
    for (std::size_t state = 0; state < events_.size(); ++state) {
        events_[state] |= other.events_[state];
        pairs_[state] |= other.pairs_[state];
    }
}

// All rows but the lowest of them in the table, which is the highest bit.
std::uint64_t UppersOfPairs(std::uint64_t rows) { return rows & ~std::bit_floor(rows); }

Coverage::Coverage(const Machine& machine) {
    for (const StateNumber number : StateNumbers()) {
        const RunState& state = machine.State(number);
        allStates_.set(number.Number(), state.HasBlock);
        events_[number.Number()] = state.Events;
        anyEvents_ |= state.Events;
        for (const RowNumber row : CellRows())
            all_.set(Index(number, row), state.HasBlock && state.Targets[row.Number()] != kNoState);
    }
}

void Coverage::Take(const Taken& taken) {
    taken_.set(Index(taken.From, taken.Row));
    Enter(taken.To);
}

void Coverage::Merge(const Coverage& other) {
    entered_ |= other.entered_;
    taken_ |= other.taken_;
    seen_.Merge(other.seen_);
}

CoverageCount Coverage::EmptyCells() const {
    CoverageCount count;
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : EventRows()) {
            const bool empty = IsThere(anyEvents_, row) && !IsThere(events_[state.Number()], row);
            if (!empty || !allStates_.test(state.Number()))
                continue;
            ++count.All;
            count.Taken += seen_.Event(state, row) ? 1 : 0;
        }
    }
    return count;
}

CoverageCount Coverage::Pairs() const {
    CoverageCount count;
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : EventRows()) {
            if (!IsThere(UppersOfPairs(events_[state.Number()]), row))
                continue;
            ++count.All;
            count.Taken += seen_.Pair(state, row) ? 1 : 0;
        }
    }
    return count;
}

CoverageCount Coverage::States() const { return {entered_.count(), allStates_.count()}; }

CoverageCount Coverage::Transitions() const { return {taken_.count(), all_.count()}; }

std::vector<StateNumber> Coverage::MissedStates() const {
    std::vector<StateNumber> missed;
    for (const StateNumber state : StateNumbers()) {
        if (allStates_.test(state.Number()) && !entered_.test(state.Number()))
            missed.push_back(state);
    }
    return missed;
}

std::vector<Cell> Coverage::MissedTransitions() const {
    std::vector<Cell> missed;
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            if (all_.test(Index(state, row)) && !taken_.test(Index(state, row)))
                missed.push_back({row, state});
        }
    }
    return missed;
}

} // namespace orvane::run
