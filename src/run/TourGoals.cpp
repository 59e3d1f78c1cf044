// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TourGoals.h"

#include "run/RunStep.h"

#include <algorithm>
#include <bit>

namespace orvane::run {

namespace {

constexpr int kMostAtOnce = 8; // names on a line that is still read

} // namespace

TourGoals::TourGoals(const Machine& machine, const TestableWays& ways, const TourOptions& options) {
    std::vector<bool> met(ways.Space().Places());
    std::vector<std::uint32_t> places = {StateSpace::kPowerOff};
    while (!places.empty()) {
        const std::uint32_t place = places.back();
        places.pop_back();
        for (const TestableWay& way : ways.From(place)) {
            for (const Cell taken : way.Transitions)
                all_.set(Index(taken));
            if (!met[way.To])
                places.push_back(way.To);
            met[way.To] = true;
        }
    }
    open_ = all_;
    std::uint64_t anyEvents = 0;
    for (const StateNumber state : StateNumbers())
        anyEvents |= machine.State(state).Events;
    for (const StateNumber state : StateNumbers()) {
        if (machine.State(state).HasBlock && options.EmptyCells)
            AddEmptyCells(machine, state, anyEvents);
        if (machine.State(state).HasBlock && options.Together)
            AddPairs(machine, state);
        if (!machine.Yields(state)) // it is never stood in
            trialsOf_[state.Number()].clear();
        trials_ += trialsOf_[state.Number()].size();
    }
    allTrials_ = trials_;
}

int TourGoals::PercentSeen() const {
    const std::size_t all = all_.count() + allTrials_;
    const std::size_t left = open_.count() + trials_;
    return all == 0 ? 100 : static_cast<int>((all - left) * 100 / all);
}

// Several at once: a transition that does not belong there would be taken by any of them.
void TourGoals::AddEmptyCells(const Machine& machine, StateNumber state, std::uint64_t anyEvents) {
    std::uint64_t empty = anyEvents & ~machine.State(state).Events;
    emptyCells_.All += std::popcount(empty);
    while (empty != 0) {
        Trial trial;
        for (int i = 0; i < kMostAtOnce && empty != 0; ++i) {
            trial.Events |= LowestBit(empty);
            empty &= empty - 1;
        }
        trialsOf_[state.Number()].push_back(trial);
    }
}

void TourGoals::AddPairs(const Machine& machine, StateNumber state) {
    const std::uint64_t events = machine.State(state).Events;
    for (std::uint64_t left = events; (left & (left - 1)) != 0; left &= left - 1) {
        ++pairs_.All;
        trialsOf_[state.Number()].push_back({LowestBit(left) | LowestBit(left & (left - 1)), true});
    }
}

bool TourGoals::IsOn(const TestableWay& way) const {
    return std::any_of(way.Transitions.begin(), way.Transitions.end(),
                       [&](Cell taken) { return open_.test(Index(taken)); });
}

void TourGoals::EndTrial(StateNumber state, bool done) {
    const Trial trial = trialsOf_[state.Number()].back();
    trialsOf_[state.Number()].pop_back();
    --trials_;
    if (done)
        (trial.IsPair ? pairs_ : emptyCells_).Taken += trial.IsPair ? 1 : std::popcount(trial.Events);
}

void TourGoals::GiveUpTrials(StateNumber state) {
    trials_ -= trialsOf_[state.Number()].size();
    trialsOf_[state.Number()].clear();
}

void TourGoals::GiveUp(const TestableWay& way) {
    for (const Cell taken : way.Transitions) {
        if (open_.test(Index(taken)))
            givenUp_.set(Index(taken));
        open_.reset(Index(taken));
    }
}

std::vector<Cell> TourGoals::NeverTaken(const Machine& machine) const {
    std::vector<Cell> never;
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            const bool leads = machine.State(state).Targets[IndexIn(TableRows(), row)] != kNoState;
            const bool taken = all_.test(Index({row, state})) && !givenUp_.test(Index({row, state}));
            if (machine.State(state).HasBlock && leads && !taken)
                never.push_back({row, state});
        }
    }
    return never;
}

} // namespace orvane::run
