// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Simulation.h"

#include "run/StepCheck.h"
#include "run/TestWalk.h"

namespace orvane::run {

namespace {

class Simulator {
  public:
    Simulator(const FsmDocument& document, const Machine& machine, const TestPlan& plan)
        : recorder_(document, machine, plan.Signals),
          walk_(machine, plan),
          check_(document, machine, walk_.Where(), way_) {
        walk_.Record(recorder_);
    }

    Simulation Run(const PlannedTest& test, std::optional<std::int64_t> unit) {
        for (const PlannedStep& step : test.Steps) {
            if (!Do(step))
                break;
        }
        recorder_.End(walk_.Where().Where().Now);
        result_.Trace = std::move(recorder_.Trace());
        result_.Trace.Unit = unit;
        return std::move(result_);
    }

  private:
    // False when nothing more can be done.
    bool Do(const PlannedStep& step) {
        if (const std::optional<StepResult> on = walk_.PowerOnBefore(step)) {
            way_.Add(*on);
            Tell(check_.PowerOnFailure(step.At, *on, false));
            if (!IsIdle(on->End))
                return false;
        }
        const std::optional<StepResult> done = walk_.Do(step);
        if (!done)
            return true;
        way_.Add(*done);
        recorder_.End(walk_.Where().Where().Now);
        Tell(check_.Failure(step, *done, false));
        return IsIdle(done->End);
    }

    void Tell(std::optional<StepFailure> failure) {
        if (failure)
            result_.Failures.push_back(
                {recorder_.Trace().Rows.size(), failure->Is, failure->At, std::move(failure->Text)});
    }

    TraceRecorder recorder_;
    TestWalk walk_;
    WayHere way_;
    StepCheck check_;
    Simulation result_;
};

} // namespace

Simulation Simulate(const FsmDocument& document, const Machine& machine, const TestPlan& plan,
                    const PlannedTest& test) {
    return Simulator(document, machine, plan).Run(test, plan.Unit);
}

Simulation SimulatePowerOn(const FsmDocument& document, const Machine& machine) {
    TestStep scan;
    scan.Expect.emplace();
    PlannedStep on;
    on.Written = &scan;
    return Simulate(document, machine, {}, {"", {}, {on}});
}

} // namespace orvane::run
