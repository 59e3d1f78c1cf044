// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Clock.h"
#include "run/Coverage.h"
#include "run/RunTrace.h"
#include "run/TestPlan.h"

#include <optional>
#include <vector>

namespace orvane::run {

// What happened in one step of a test.
struct StepResult {
    Outcome End = Outcome::Quiet;
    bool PowerOn = false;   // power came on in it, so that the first state was entered, too
    bool NoTimeout = false; // it waits for a timeout, and none is coming
    StateNumber From;       // where the machine was before; none when PowerOn
    std::vector<Happening> Log;
};

// Takes a machine through the steps of one test. Power comes on with the first line that expects something,
// waits, pulses or scans; the inputs of lines before it, and those of a first line that only expects, are
// there by then.
class TestWalk {
  public:
    // All must outlive the walk.
    TestWalk(const Machine& machine, const TestPlan& plan);

    // Power comes on before the step, when the step needs that and is not where it comes on itself.
    std::optional<StepResult> PowerOnBefore(const PlannedStep& step);

    // Time passes with the inputs as they were, then the inputs change, then the machine settles. None for a
    // line that only says what is there when power comes on.
    std::optional<StepResult> Do(const PlannedStep& step);

    const Clock& Where() const { return clock_; }
    // The events that there were during the pulse of the last step that had one.
    std::uint64_t Pulsed() const { return pulsed_; }
    void Watch(EventsSeen& seen) { clock_.Watch(seen); }
    // From now on all that happens is taken down; the recorder must outlive the walk.
    void Record(TraceRecorder& recorder) { recorder_ = &recorder; }

  private:
    StepResult PowerOn();
    Outcome PulseNow(std::uint64_t events, StepResult& result);
    void TakeLog(StepResult& result);
    void RecordInputs(std::uint64_t events);
    Outcome Move(const PlannedStep& step, StepResult& result);
    std::uint64_t Change(const PlannedStep& step);
    void Switch(const PlannedDoing& doing, bool on);
    std::uint64_t Events() const;

    const TestPlan& plan_;
    Clock clock_;
    bool hasPower_ = false;
    std::vector<bool> signals_;
    std::uint64_t pulsed_ = 0;
    std::uint64_t switched_ = 0; // bit r: the event of row r is switched on
    TraceRecorder* recorder_ = nullptr;
};

} // namespace orvane::run
