// SPDX-License-Identifier: GPL-3.0-or-later
// Holds what happened in a step of a test against what the step expects.
#pragma once

#include "core/FsmDocument.h"
#include "run/TestPlan.h"
#include "run/TestRunner.h"
#include "run/TestWalk.h"

#include <optional>

namespace orvane::run {

// How the machine came to the state that it is in, over all the steps of a test.
class WayHere {
  public:
    void Add(const StepResult& result);
    // "2:Run, since 5 from 1:Idle by Start"
    std::string Text(const FsmDocument& document, const Clock& clock) const;

  private:
    std::optional<Happening> last_; // change of state
};

struct StepFailure {
    Verdict Is = Verdict::Failed;
    Place At;
    std::string Text;
};

class StepCheck {
  public:
    StepCheck(const FsmDocument& document, const Machine& machine, const Clock& clock, const WayHere& way)
        : document_(document), machine_(machine), clock_(clock), way_(way) {}

    // The first thing that is not as it is expected.
    std::optional<StepFailure> Failure(const PlannedStep& step, const StepResult& result, bool strict) const;
    // The same for power that came on by itself, without a line for it.
    std::optional<StepFailure> PowerOnFailure(Place at, const StepResult& result, bool strict) const;

    // The expectation of the step, changed where it fails.
    TestExpectation Updated(const PlannedStep& step, const StepResult& result, const NameBook& names) const;

  private:
    std::optional<std::string> Broken(const StepResult& result, bool spinsExpected) const;
    std::optional<StepFailure> StrictFailure(const PlannedStep& step, const StepResult& result) const;
    std::optional<StepFailure> WayFailure(const PlannedStep& step, const StepResult& result) const;
    std::optional<std::string> CheckFailure(const PlannedCheck& check, const StepResult& result) const;
    std::optional<std::string> RunsFailure(const PlannedCheck& check, const StepResult& result) const;
    std::optional<std::string> TimerFailure(const PlannedCheck& check) const;
    void Update(TestCheck& check, const PlannedCheck& planned, const StepResult& result,
                const NameBook& names) const;

    std::vector<StateNumber> Changes(const StepResult& result) const;
    std::vector<const std::string*> Ran(const StepResult& result) const;
    std::string Title(StateNumber state) const;
    std::string WayText(const std::vector<StateNumber>& way) const;

    const FsmDocument& document_;
    const Machine& machine_;
    const Clock& clock_;
    const WayHere& way_;
};

// The row as messages name it: its event's name, "row 6" without one, Timeout or ELSE.
std::string RowText(const FsmDocument& document, RowNumber row);

} // namespace orvane::run
