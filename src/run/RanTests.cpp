// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RanTests.h"

#include "run/TestReader.h"
#include "run/TestWalk.h"

#include <algorithm>
#include <limits>

namespace orvane::run {

namespace {

std::string FileNameOf(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

// A test as the steps of a run. What its signals mean is worked out by walking through it.
class StepsOfTest {
  public:
    StepsOfTest(const Machine& machine, const TestPlan& plan) : walk_(machine, plan) {}

    void Add(const PlannedStep& step) {
        if (walk_.PowerOnBefore(step)) {
            AddInputs(false);
            steps_.push_back({0, RunAct::PowerOn});
        }
        const Units before = walk_.Where().Where().Now;
        const std::optional<StepResult> done = walk_.Do(step);
        if (!done)
            return;
        if (done->PowerOn) {
            AddInputs(false);
            steps_.push_back({0, RunAct::PowerOn});
            return;
        }
        if (const Units waited = walk_.Where().Where().Now - before; waited > 0)
            steps_.push_back(WaitFor(waited));
        AddDoings(step);
    }

    const std::vector<RunStep>& Steps() const { return steps_; }

  private:
    void AddDoings(const PlannedStep& step) {
        const bool pulses = step.Has(Doing::Pulse);
        const bool scans = !pulses && step.Has(Doing::Scan);
        AddInputs(pulses || scans);
        if (pulses)
            steps_.push_back(PulseOf(walk_.Pulsed()));
        for (const PlannedDoing& doing : step.Doings) {
            if (scans && doing.What == Doing::Scan)
                steps_.push_back({std::uint64_t(doing.Count), RunAct::Scan});
        }
    }

    // What has changed since the last time, all in one moment.
    void AddInputs(bool moreFollows) {
        const std::size_t first = steps_.size();
        const Inputs& there = walk_.Where().Surroundings();
        for (const StateNumber state : StateNumbers()) {
            const std::size_t index = IndexIn(TableColumns(), state);
            if (there.Limits[index] != known_.Limits[index])
                steps_.push_back(LimitOf(state, there.Limits[index]));
        }
        if (there.Events != known_.Events)
            steps_.push_back(SwitchTo(there.Events));
        for (std::size_t i = first; i < steps_.size(); ++i)
            steps_[i].More = moreFollows || i + 1 < steps_.size();
        known_ = there;
    }

    TestWalk walk_;
    Inputs known_;
    std::vector<RunStep> steps_;
};

RanTest Ran(const Machine& machine, const TestPlan& plan, const PlannedTest& test, TestResult result) {
    const std::size_t failedLine =
        result.Is == Verdict::Passed ? std::numeric_limits<std::size_t>::max() : result.At.Line;
    StepsOfTest steps(machine, plan);
    RanTest ran{test.Name, std::move(result), {}, {}};
    for (const PlannedStep& step : test.Steps) {
        if (step.At.Line > failedLine)
            break;
        steps.Add(step);
        if (step.At.Line < failedLine)
            ran.Before = {steps.Steps().size(), 0};
    }
    ran.Steps = steps.Steps();
    return ran;
}

} // namespace

RanTests RunTestsOf(std::string_view bytes, const FsmDocument& document, const std::string& documentName) {
    const TestReadResult read = ReadTestFile(bytes);
    const TestPlan plan = PlanTests(read.File, document, documentName);
    RanTests ran;
    ran.Slips = read.Slips;
    ran.Slips.insert(ran.Slips.end(), plan.Slips.begin(), plan.Slips.end());
    if (const std::optional<TestName> machine = MachineOf(read.File);
        machine && FileNameOf(machine->Text) != documentName)
        ran.Slips.insert(ran.Slips.begin(),
                         {machine->At, "these are tests of " + machine->Text + ", not of " + documentName});
    if (!ran.Slips.empty())
        return ran;
    ran.Given = plan.Given;
    ran.Read = {plan.AfterLimit.value_or(false), plan.UnstartedExpired.value_or(false)};
    const TestRunner runner(document, plan, {});
    const Machine machine(document, plan.Given, ran.Read);
    Coverage coverage = runner.NoCoverage();
    for (const PlannedTest& test : plan.Tests)
        ran.Tests.push_back(Ran(machine, plan, test, runner.Run(test, coverage)));
    ran.States = coverage.States();
    ran.Transitions = coverage.Transitions();
    return ran;
}

} // namespace orvane::run
