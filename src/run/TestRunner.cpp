// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestRunner.h"

#include "run/StepCheck.h"
#include "run/TestWalk.h"
#include "text/NumberText.h"

namespace orvane::run {

namespace {

// The readings to run under, what is chosen first.
std::vector<Readings> ReadingsOf(const TestPlan& plan, const RunOptions& options) {
    const auto values = [](std::optional<bool> option, std::optional<bool> file) {
        const std::optional<bool> chosen = option ? option : file;
        return chosen ? std::vector<bool>{*chosen} : std::vector<bool>{false, true};
    };
    std::vector<Readings> readings;
    for (const bool expired : values(options.UnstartedExpired, plan.UnstartedExpired)) {
        for (const bool after : values(options.AfterLimit, plan.AfterLimit))
            readings.push_back({after, expired});
    }
    return readings;
}

std::string ReadingText(const Readings& counts, const Readings& other) {
    std::string text;
    if (other.AfterLimit != counts.AfterLimit)
        text = other.AfterLimit ? "a constant limit is up one unit after it" : "a constant limit is up at it";
    if (other.UnstartedExpired != counts.UnstartedExpired) {
        text += text.empty() ? "" : " and ";
        text += other.UnstartedExpired ? "a timer that was never started is past its limit"
                                       : "a timer that was never started counts from power-on";
    }
    return text;
}

void Cover(Coverage* coverage, const Machine& machine, const StepResult& result) {
    if (coverage == nullptr)
        return;
    if (result.PowerOn)
        coverage->Enter(machine.Start());
    for (const Happening& happening : result.Log)
        coverage->Take(happening.What);
}

} // namespace

TestRunner::TestRunner(const FsmDocument& document, const TestPlan& plan, const RunOptions& options)
    : document_(document), plan_(plan), options_(options) {
    for (const Readings& readings : ReadingsOf(plan, options))
        machines_.emplace_back(document, plan.Given, readings);
}

TestResult TestRunner::Run(const PlannedTest& test, Coverage& coverage) const {
    TestResult result = RunOn(machines_.front(), test, &coverage);
    AddNotes(result, test);
    return result;
}

void TestRunner::AddNotes(TestResult& result, const PlannedTest& test) const {
    const Readings& counts = machines_.front().Read();
    bool told = false;
    for (std::size_t i = 1; i < machines_.size() && result.Is != Verdict::Error; ++i) {
        const Readings& read = machines_[i].Read();
        const bool both =
            read.AfterLimit != counts.AfterLimit && read.UnstartedExpired != counts.UnstartedExpired;
        if (both && told)
            continue; // one of the two has made the difference already
        const TestResult other = RunOn(machines_[i], test, nullptr);
        if (other.Is == result.Is)
            continue;
        told = true;
        const std::string when = " when " + ReadingText(counts, read);
        if (other.Is == Verdict::Passed)
            result.Notes.push_back({result.At, "it passes" + when});
        else
            result.Notes.push_back({other.At, "it fails" + when + ": " + other.Message});
    }
}

TestResult TestRunner::RunOn(const Machine& machine, const PlannedTest& test, Coverage* coverage) const {
    TestWalk walk(machine, plan_);
    EventsSeen seen;
    if (coverage != nullptr)
        walk.Watch(seen);
    WayHere way;
    const StepCheck check(document_, machine, walk.Where(), way);
    TestResult result;
    result.At = test.At;
    for (const PlannedStep& step : test.Steps) {
        std::optional<StepFailure> failure;
        if (const std::optional<StepResult> on = walk.PowerOnBefore(step)) {
            way.Add(*on);
            Cover(coverage, machine, *on);
            failure = check.PowerOnFailure(step.At, *on, options_.Strict);
        }
        const std::optional<StepResult> done = failure ? std::nullopt : walk.Do(step);
        if (done) {
            way.Add(*done);
            Cover(coverage, machine, *done);
            failure = check.Failure(step, *done, options_.Strict);
        }
        if (!failure)
            continue;
        result.Is = failure->Is;
        result.At = failure->At;
        result.Message = std::move(failure->Text);
        break;
    }
    if (coverage != nullptr)
        coverage->See(seen);
    if (walk.Where().TimerOverran())
        result.Notes.push_back({result.At, "a timer is looked at that has run for more than the " +
                                               NumberText(kLongestTime) + " units that it can count"});
    return result;
}

std::vector<TestRunner::NewExpectation> TestRunner::Update(const PlannedTest& test) const {
    const Machine& machine = machines_.front();
    const NameBook names(document_, "");
    TestWalk walk(machine, plan_);
    WayHere way;
    const StepCheck check(document_, machine, walk.Where(), way);
    std::vector<NewExpectation> changed;
    for (const PlannedStep& step : test.Steps) {
        if (const std::optional<StepResult> on = walk.PowerOnBefore(step); on && !IsIdle(on->End))
            break;
        const std::optional<StepResult> done = walk.Do(step);
        if (!done)
            continue;
        if (!IsIdle(done->End) && done->End != Outcome::Spins)
            break;
        if (step.Written->Expect && check.Failure(step, *done, options_.Strict))
            changed.push_back({step.Written, check.Updated(step, *done, names)});
    }
    return changed;
}

} // namespace orvane::run
