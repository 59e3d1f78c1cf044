// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TimerHorizon.h"

#include <algorithm>
#include <bitset>

namespace orvane::run {

namespace {

TimerReach& ReachOf(std::vector<TimerReach>& reaches, std::uint8_t timer) {
    const auto found = std::find_if(reaches.begin(), reaches.end(),
                                    [timer](const TimerReach& reach) { return reach.Timer == timer; });
    return found != reaches.end() ? *found : reaches.emplace_back(TimerReach{timer, {}});
}

} // namespace

TimerHorizon::TimerHorizon(const Machine& machine, const Inputs& given) : fine_(machine.Timers().size()) {
    for (const StateNumber from : StateNumbers()) {
        const RunState& state = machine.State(from);
        for (const RowNumber row : CellRows()) {
            const StateNumber to = state.Targets[IndexIn(TableRows(), row)];
            if (state.HasBlock && to != StateNumber())
                entered_[to.Number()].push_back(from);
        }
    }
    for (const StateNumber state : StateNumbers()) {
        const RunState& looking = machine.State(state);
        if (looking.Limit == LimitKind::None)
            continue;
        const Units due = std::max<Units>(machine.DueAfter(given, state), 1); // not given: 1 is the least
        longest_ = std::max(longest_, due);
        Spread(machine, looking.Timer, state, due);
    }
    Sort();
}

// Backwards over all ways into the state, up to the states that start the timer when they are entered.
void TimerHorizon::Spread(const Machine& machine, std::uint8_t timer, StateNumber from, Units due) {
    std::bitset<kStateCount + 1> met;
    std::vector<StateNumber> open = {from};
    met.set(from.Number());
    while (!open.empty()) {
        const StateNumber state = open.back();
        open.pop_back();
        ReachOf(reaches_[state.Number()], timer).Limits.push_back(due);
        const RunState& entered = machine.State(state);
        if (entered.StartsTimer && entered.Timer == timer)
            continue;
        for (const StateNumber before : entered_[state.Number()]) {
            if (!met.test(before.Number()))
                open.push_back(before);
            met.set(before.Number());
        }
    }
}

void TimerHorizon::Sort() {
    for (std::vector<TimerReach>& reaches : reaches_) {
        std::sort(reaches.begin(), reaches.end(),
                  [](const TimerReach& a, const TimerReach& b) { return a.Timer < b.Timer; });
        for (TimerReach& reach : reaches) {
            std::sort(reach.Limits.begin(), reach.Limits.end());
            reach.Limits.erase(std::unique(reach.Limits.begin(), reach.Limits.end()), reach.Limits.end());
            if (reaches.size() > 1)
                fine_[reach.Timer] = true;
        }
    }
}

Units TimerHorizon::Representative(const TimerReach& reach, Units elapsed) const {
    if (elapsed >= reach.Limits.back())
        return reach.Limits.back();
    if (fine_[reach.Timer])
        return elapsed;
    const auto above = std::upper_bound(reach.Limits.begin(), reach.Limits.end(), elapsed);
    return above == reach.Limits.begin() ? 0 : *(above - 1);
}

std::optional<Units> TimerHorizon::Next(const TimerReach& reach, Units elapsed) const {
    if (elapsed >= reach.Limits.back())
        return std::nullopt;
    if (fine_[reach.Timer])
        return elapsed + 1;
    return *std::upper_bound(reach.Limits.begin(), reach.Limits.end(), elapsed);
}

} // namespace orvane::run
