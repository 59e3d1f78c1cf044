// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestableWays.h"

#include <algorithm>

namespace orvane::run {

namespace {

constexpr int kMostScans = 1000; // beyond it a wait is not worth waiting for

} // namespace

TestableWays::TestableWays(const Machine& machine, const Inputs& given, const StateSpace& space)
    : machine_(machine), given_(given), space_(space), ways_(space.Places()) {
    for (std::uint32_t place = 0; place < space.Places(); ++place) {
        for (const SpaceWay& way : space.From(place)) {
            if (way.Raw)
                continue;
            const std::span<const Cell> taken = space.TakenOn(way);
            TestableWay testable{&way, way.To, {taken.begin(), taken.end()}, place == StateSpace::kPowerOff};
            if (way.Wait > 0)
                testable = Settled(way);
            if (testable.First != nullptr)
                ways_[place].push_back(std::move(testable));
        }
    }
}

// Without a first way when the machine does not come to rest.
TestableWay TestableWays::Settled(const SpaceWay& wait) const {
    TestableWay way{&wait, wait.To, {}, false};
    RunPlace place = space_.PlaceOf(wait.To);
    Inputs inputs = given_;
    inputs.Events = wait.Events;
    for (int scans = 0; scans < kMostScans; ++scans) {
        const Config before = place.At;
        std::vector<Taken> log;
        if (machine_.Scan(place.At, inputs, log) != ScanEnd::Yields)
            return {};
        for (const Taken& taken : log) {
            way.Transitions.push_back({taken.Row, taken.From});
            const RunState& entered = machine_.State(taken.To);
            if (!taken.Holds && entered.StartsTimer)
                place.Unstarted.reset(entered.Timer);
        }
        if (place.At == before) {
            const std::optional<std::uint32_t> settled = space_.Find(place);
            way.To = settled.value_or(wait.To);
            return settled ? way : TestableWay{};
        }
    }
    return {};
}

} // namespace orvane::run
