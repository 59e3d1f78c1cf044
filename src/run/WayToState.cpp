// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/WayToState.h"

#include <algorithm>

namespace orvane::run {

Way WayToState(const Machine& machine, const TestableWays& ways, std::span<const std::uint32_t> from,
               StateNumber to) {
    return ShortestWay(ways, from, [&](std::uint32_t, const TestableWay& way) {
        const auto entered = [&](Cell taken) {
            const RunState& left = machine.State(taken.State);
            const bool holds = (left.Holds >> taken.Row.Number() & 1U) != 0;
            return !holds && left.Targets[IndexIn(TableRows(), taken.Row)] == to.Number();
        };
        return (way.IsPowerOn && ways.Space().StateAt(way.To) == to) ||
               std::any_of(way.Transitions.begin(), way.Transitions.end(), entered);
    });
}

} // namespace orvane::run
