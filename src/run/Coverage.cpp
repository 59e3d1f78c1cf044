// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Coverage.h"

namespace orvane::run {

namespace {

std::size_t Index(StateNumber state, RowNumber row) {
    return static_cast<std::size_t>(state.Number() * kTableRows + row.Number());
}

} // namespace

std::size_t Percent(const CoverageCount& count) {
    return count.All == 0 ? 100 : count.Taken * 100 / count.All;
}

Coverage::Coverage(const Machine& machine) {
    for (const StateNumber number : StateNumbers()) {
        const RunState& state = machine.State(number);
        allStates_.set(number.Number(), state.HasBlock);
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
