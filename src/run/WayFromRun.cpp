// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/WayFromRun.h"

#include "run/AssumedLimits.h"
#include "run/TestableWays.h"
#include "run/WayDriver.h"
#include "run/WayToState.h"

#include <array>
#include <bitset>

namespace orvane::run {

namespace {

using States = std::bitset<kStateCount + 1>;

Constants With(Constants given, const Constants& assumed) {
    given.insert(assumed.begin(), assumed.end());
    return given;
}

Inputs WithLimits(Inputs there, const Inputs& assumed) {
    for (std::size_t state = 0; state < there.Limits.size(); ++state) {
        if (there.Limits[state] == kNotGiven)
            there.Limits[state] = assumed.Limits[state];
    }
    return there;
}

class Search {
  public:
    Search(const FsmDocument& document, const WayAsked& asked, const std::stop_token& stop)
        : asked_(asked),
          assumed_(document),
          machine_(document, With(asked.Given, assumed_.Given), asked.Read),
          there_(WithLimits(asked.There, assumed_.Surroundings)),
          space_(machine_, WithoutEvents(there_), {.Stop = stop}),
          ways_(machine_, WithoutEvents(there_), space_, stop) {}

    WayFromRun Run() {
        WayFromRun found;
        found.Assumed = assumed_.Given;
        for (const auto& [name, value] : asked_.Given)
            found.Assumed.erase(name);
        found.Complete = space_.Complete();
        const std::optional<std::uint32_t> place =
            asked_.At ? space_.Find(*asked_.At) : StateSpace::kPowerOff;
        found.PlaceKnown = place.has_value();
        if (!place)
            return found;
        const Way way = WayToState(machine_, ways_, std::array{*place}, asked_.To);
        WayDriver driver(machine_, there_, space_);
        driver.BeginAt(asked_.At, there_);
        if (!way.empty() && driver.Go(way, WayDriver::End::Anywhere))
            found.Steps = WithLimitSteps(driver);
        return found;
    }

  private:
    static Inputs WithoutEvents(Inputs there) {
        there.Events = 0;
        return there;
    }

    // In front stand the assumed limits of those states that look at them.
    std::vector<RunStep> WithLimitSteps(WayDriver& driver) const {
        States passed;
        passed.set((asked_.At ? asked_.At->State : machine_.Start()).Number());
        for (const Happening& happening : driver.TakeLog()) {
            passed.set(happening.What.From.Number());
            passed.set(happening.What.To.Number());
        }
        std::vector<RunStep> steps;
        for (const StateNumber state : StateNumbers()) {
            const std::size_t index = IndexIn(TableColumns(), state);
            const bool asks = machine_.State(state).Limit == LimitKind::Variable;
            if (!asks || !passed.test(index) || asked_.There.Limits[index] != kNotGiven)
                continue;
            steps.push_back(LimitOf(state, there_.Limits[index]));
            steps.back().More = true;
        }
        steps.insert(steps.end(), driver.Steps().begin(), driver.Steps().end());
        return steps;
    }

    const WayAsked& asked_;
    const AssumedLimits assumed_;
    const Machine machine_;
    const Inputs there_;
    const StateSpace space_;
    const TestableWays ways_;
};

} // namespace

WayFromRun FindWayFromRun(const FsmDocument& document, const WayAsked& asked, const std::stop_token& stop) {
    return Search(document, asked, stop).Run();
}

} // namespace orvane::run
