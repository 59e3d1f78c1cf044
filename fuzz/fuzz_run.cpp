// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are a small machine and what happens around it: wherever it comes is a place that the exploration
// of the machine knows, and the tour of it passes.
#include "Require.h"
#include "core/TimingMode.h"
#include "run/Clock.h"
#include "run/Obstacles.h"
#include "run/StateSpace.h"
#include "run/TestRunner.h"
#include "run/Tour.h"
#include "text/NumberText.h"

#include <cstdint>
#include <span>

using namespace orvane;

namespace {

constexpr int kStates = 5;
constexpr int kEvents = 4;

class Bytes {
  public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool Empty() const { return bytes_.empty(); }
    // 0 to most - 1; 0 when there are no more.
    int Next(int most) {
        if (bytes_.empty())
            return 0;
        const int byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte % most;
    }

  private:
    std::span<const std::uint8_t> bytes_;
};

FsmDocument MachineFrom(Bytes& bytes) {
    FsmDocument document;
    document.General.FsmName = "P";
    document.View.Polytask = bytes.Next(2) == 1;
    for (int row = kFirstEventRow; row < kFirstEventRow + kEvents; ++row)
        document.Event(row).Code = ";test " + NumberText(row);
    for (int number = 1; number <= kStates; ++number) {
        StateRecord& state = document.State(number);
        state.Name = "S" + NumberText(number);
        state.TimingMode = bytes.Next(2) == 0   ? kNoTiming
                           : bytes.Next(2) == 0 ? kStartConstant
                                                : kContinueConstant;
        state.TimeConst = state.TimingMode == kNoTiming ? "" : NumberText(bytes.Next(8));
        state.TimerId = bytes.Next(3) == 0 ? "A" : "";
        if (state.TimingMode != kNoTiming)
            state.Targets[kTimeoutRow] = std::int16_t(1 + bytes.Next(kStates));
        for (int row = kElseRow; row < kFirstEventRow + kEvents; ++row) {
            const int target = bytes.Next(2 * kStates);
            state.Targets[row] = std::int16_t(target > kStates ? kNoState : target);
            state.Actions[row] = target % 2 == 1 ? ";action" : "";
        }
    }
    return document;
}

void CheckPlaces(const run::Machine& machine, Bytes& bytes) {
    const run::StateSpace space(machine, run::Inputs(), {.Places = 2'000, .Ways = 100'000});
    if (!space.Complete())
        return;
    run::Clock clock(machine);
    clock.Surroundings().Events = std::uint64_t(bytes.Next(1 << kEvents)) << kFirstEventRow;
    run::Outcome outcome = clock.PowerOn();
    while (IsIdle(outcome) && !bytes.Empty()) {
        Require(space.Find(clock.Where()).has_value(), "a machine is where it can be");
        outcome = clock.Advance(bytes.Next(10));
        if (!IsIdle(outcome))
            return;
        clock.Surroundings().Events = std::uint64_t(bytes.Next(1 << kEvents)) << kFirstEventRow;
        outcome = clock.Scan(1);
        Require(!IsIdle(outcome) || space.Find(clock.Where()).has_value(), "and behind each scan");
        outcome = IsIdle(outcome) ? clock.Settle() : outcome;
    }
}

void CheckTour(const FsmDocument& document) {
    const run::Tour tour = run::MakeTour(document, {.EmptyCells = true, .Together = true, .MostSteps = 500});
    const run::TestPlan plan = run::PlanTests(tour.Tests, document, "machine");
    Require(plan.Slips.empty(), "a tour has no slips");
    const run::TestRunner runner(document, plan, {});
    run::Coverage coverage = runner.NoCoverage();
    for (const run::PlannedTest& test : plan.Tests)
        Require(runner.Run(test, coverage).Is == run::Verdict::Passed, "a tour passes");
    Require(tour.StepsRanOut || tour.Transitions.Taken == tour.Transitions.All, "and takes what it can");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes({data, size});
    const FsmDocument document = MachineFrom(bytes);
    if (!run::Obstacles(document).empty())
        return 0;
    CheckPlaces(run::Machine(document), bytes);
    CheckTour(document);
    return 0;
}
