// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Tour.h"

#include "run/AssumedLimits.h"
#include "run/Recorder.h"
#include "run/TestWriter.h"
#include "run/TestableWays.h"
#include "run/TourGoals.h"
#include "run/WayDriver.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace orvane::run {

namespace {

constexpr std::size_t kLongTest = 60; // steps; then another test begins

class TourGuide {
  public:
    TourGuide(const FsmDocument& document, const TourOptions& options, const TourWatch& watch)
        : document_(document),
          options_(options),
          watch_(watch),
          assumed_(document),
          machine_(document, assumed_.Given),
          space_(machine_, assumed_.Surroundings, {.Stop = watch.Stop}),
          ways_(machine_, assumed_.Surroundings, space_, watch.Stop),
          goals_(machine_, ways_, options),
          driver_(machine_, assumed_.Surroundings, space_) {}

    Tour Run() {
        while (!goals_.Done() && !tour_.StepsRanOut && !watch_.Stop.stop_requested() && GoOn()) {
        }
        EndTest();
        AddHeads();
        tour_.Asked = options_;
        tour_.Transitions = goals_.Transitions();
        tour_.EmptyCells = goals_.EmptyCells();
        tour_.Pairs = goals_.Pairs();
        tour_.NeverTaken = goals_.NeverTaken(machine_);
        tour_.Complete = space_.Complete();
        return std::move(tour_);
    }

  private:
    // False when there is nowhere left to go.
    bool GoOn() {
        const std::optional<std::uint32_t> place = driver_.Place();
        if (!place || driver_.Steps().size() >= kLongTest)
            return EndTest();
        if (const StateNumber state = space_.StateAt(*place); goals_.HasTrial(state)) {
            goals_.EndTrial(state, driver_.Try(goals_.NextTrial(state)));
            return See();
        }
        const auto way = ShortestWay(ways_, std::array{*place}, [&](std::uint32_t, const TestableWay& next) {
            return goals_.IsOn(next) || goals_.HasTrial(space_.StateAt(next.To));
        });
        if (way.empty())
            return *place != StateSpace::kPowerOff && EndTest();
        Follow(way);
        return See();
    }

    void Follow(const std::vector<const TestableWay*>& way) {
        const TestableWay& last = *way.back();
        if (goals_.IsOn(last)) {
            driver_.Go(way, WayDriver::End::Anywhere);
            See();
            if (goals_.IsOn(last))
                goals_.GiveUp(last);
        } else if (!driver_.Go(way, WayDriver::End::AtItsEnd)) {
            goals_.GiveUpTrials(space_.StateAt(last.To));
        }
    }

    bool See() {
        for (const Happening& happening : driver_.TakeLog())
            goals_.See(happening.What);
        tour_.StepsRanOut = tour_.Steps + driver_.Steps().size() > options_.MostSteps;
        if (watch_.Percent != nullptr)
            *watch_.Percent = std::max(goals_.PercentSeen(), PercentGone());
        return true;
    }

    int PercentGone() const {
        const std::size_t gone = std::min(tour_.Steps + driver_.Steps().size(), options_.MostSteps);
        return static_cast<int>(gone * 100 / std::max<std::size_t>(options_.MostSteps, 1));
    }

    // What was driven becomes a test, and the power is off.
    bool EndTest() {
        const std::vector<RunStep> steps = driver_.Steps();
        const bool wasOn = driver_.HasPower();
        driver_.Begin();
        if (wasOn)
            AddTest(
                RecordTest(document_, {steps, assumed_.Given, Name(), std::nullopt, std::nullopt, {}, true}));
        return true;
    }

    std::string Name() { return "tour " + NumberText(++tests_); }

    void AddTest(TestFile test) {
        for (TestLine& line : test.Lines) {
            if (const auto* names = std::get_if<NamesHead>(&line.What))
                AddNames(*names);
            const bool isTest = std::holds_alternative<TestHead>(line.What);
            if (!isTest && !std::holds_alternative<TestStep>(line.What))
                continue;
            if (isTest)
                tour_.Tests.Lines.emplace_back();
            else if (StepsLeft() == 0)
                break;
            tour_.Steps += isTest ? 0 : 1;
            tour_.Tests.Lines.push_back(std::move(line));
        }
    }

    // Power that comes on is no step that counts.
    std::size_t StepsLeft() const {
        const std::size_t most = options_.MostSteps + static_cast<std::size_t>(tests_);
        return most - std::min(most, tour_.Steps);
    }

    void AddNames(const NamesHead& names) {
        for (const NamesHead::Entry& entry : names.Entries) {
            if (named_.emplace(entry.IsEvent, entry.Name.Number.value_or(0)).second)
                names_.Entries.push_back(entry);
        }
    }

    void AddHeads() {
        std::vector<TestLine> heads;
        for (const auto& [name, value] : assumed_.Given)
            heads.push_back({ConstantHead{NameOf(ToUtf8(name)), value}, std::nullopt, {}});
        heads.push_back({ReadingHead{ReadingChoice::AtLimit}, std::nullopt, {}});
        const bool asks = std::any_of(StateNumbers().begin(), StateNumbers().end(),
                                      [&](StateNumber state) { return space_.LooksAtUnstarted(state); });
        if (asks)
            heads.push_back({ReadingHead{ReadingChoice::UnstartedSincePowerOn}, std::nullopt, {}});
        std::stable_partition(names_.Entries.begin(), names_.Entries.end(),
                              [](const NamesHead::Entry& entry) { return !entry.IsEvent; });
        if (!names_.Entries.empty())
            heads.push_back({names_, std::nullopt, {}});
        tour_.Tests.Lines.insert(tour_.Tests.Lines.begin(), heads.begin(), heads.end());
    }

    const FsmDocument& document_;
    const TourOptions& options_;
    const TourWatch& watch_;
    const AssumedLimits assumed_;
    const Machine machine_;
    const StateSpace space_;
    const TestableWays ways_;
    TourGoals goals_;
    WayDriver driver_;
    int tests_ = 0;
    NamesHead names_;
    std::set<std::pair<bool, int>> named_; // what stands in it
    Tour tour_;
};

} // namespace

Tour MakeTour(const FsmDocument& document, const TourOptions& options, const TourWatch& watch) {
    return TourGuide(document, options, watch).Run();
}

} // namespace orvane::run
