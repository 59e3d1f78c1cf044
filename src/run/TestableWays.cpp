// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestableWays.h"

#include <algorithm>

namespace orvane::run {

namespace {

constexpr int kMostScans = 1000; // beyond it a wait is not worth waiting for

} // namespace

TestableWays::TestableWays(const Machine& machine, const Inputs& given, const StateSpace& space,
                           const std::stop_token& stop)
    : machine_(machine), given_(given), space_(space), ways_(space.Places()) {
    for (std::uint32_t place = 0; place < space.Places() && !stop.stop_requested(); ++place) {
        for (const SpaceWay& way : space.From(place)) {
            const std::span<const Cell> taken = space.TakenOn(way);
            if (way.Wait > 0)
                AddWaits(place, way);
            else if (!way.Raw)
                ways_[place].push_back(
                    {way.To, way.Events, 0, place == StateSpace::kPowerOff, {taken.begin(), taken.end()}});
        }
    }
}

// What the state that rests does not look at may be there, too, when a state looks at it that is entered
// then.
void TestableWays::AddWaits(std::uint32_t place, const SpaceWay& wait) {
    const std::optional<TestableWay> least = Settled(wait, wait.Events);
    if (!least)
        return;
    ways_[place].push_back(*least);
    std::uint64_t others = 0;
    for (const Cell taken : least->Transitions) {
        const StateNumber entered = machine_.State(taken.State).Targets[IndexIn(TableRows(), taken.Row)];
        others |= machine_.State(entered).Events;
    }
    others &= ~machine_.State(space_.StateAt(place)).Events;
    for (; others != 0; others &= others - 1) {
        std::optional<TestableWay> more = Settled(wait, wait.Events | (others & (~others + 1)));
        if (more && more->Transitions != least->Transitions)
            ways_[place].push_back(*std::move(more));
    }
}

// None when the machine does not come to rest.
std::optional<TestableWay> TestableWays::Settled(const SpaceWay& wait, std::uint64_t events) const {
    TestableWay way{wait.To, events, wait.Wait, false, {}};
    RunPlace place = space_.PlaceOf(wait.To);
    Inputs inputs = given_;
    inputs.Events = events;
    for (int scans = 0; scans < kMostScans; ++scans) {
        const Config before = place.At;
        std::vector<Taken> log;
        if (machine_.Scan(place.At, inputs, log) != ScanEnd::Yields)
            return std::nullopt;
        for (const Taken& taken : log) {
            way.Transitions.push_back({taken.Row, taken.From});
            const RunState& entered = machine_.State(taken.To);
            if (!taken.Holds && entered.StartsTimer)
                place.Unstarted.reset(entered.Timer);
        }
        if (place.At == before) {
            const std::optional<std::uint32_t> settled = space_.Find(place);
            way.To = settled.value_or(wait.To);
            return settled ? std::optional(std::move(way)) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace orvane::run
