// SPDX-License-Identifier: GPL-3.0-or-later
// A file of tests with its names looked up in a document and its times in units: what can be run.
#pragma once

#include "run/Machine.h"
#include "run/NameBook.h"
#include "run/TestText.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

// An event, or a signal that events follow from.
struct PlannedInput {
    bool IsSignal = false;
    int Index = 0; // the event's row, or the signal's place in the plan
};

struct PlannedDoing {
    Doing What = Doing::On;
    std::vector<PlannedInput> Inputs;
    StateNumber State;
    Units Limit = 0;
    int Count = 1;
};

struct PlannedCheck {
    const TestCheck* Written = nullptr;
    RowNumber Row;    // of Via
    std::string Text; // of Runs and NotRuns: document text, runs of blanks as one
    int Timer = 0;    // of Timer: its place in Machine::Timers()
    Units Time = 0;
};

struct PlannedStep {
    const TestStep* Written = nullptr;
    Place At;
    Units Wait = 0;
    std::vector<PlannedDoing> Doings;
    std::vector<StateNumber> Way; // empty when nothing is expected
    std::vector<PlannedCheck> Checks;

    bool Has(Doing what) const;
};

struct PlannedTest {
    std::string Name; // UTF-8
    Place At;
    std::vector<PlannedStep> Steps;
};

// An event that follows from signals and from events above it.
struct PlannedEvent {
    struct Term {
        TestOperator What = TestOperator::Name;
        PlannedInput Input;
    };
    RowNumber Row;
    std::vector<Term> Terms; // as in TestTerm
};

struct TestPlan {
    std::vector<PlannedTest> Tests;
    std::vector<PlannedEvent> Events;
    std::vector<std::string> Signals; // their names, UTF-8
    std::optional<std::int64_t> Unit; // of the machine's time, in microseconds, when the file says it
    Constants Given;
    std::optional<bool> AfterLimit; // what the file says about a reading
    std::optional<bool> UnstartedExpired;

    std::vector<TestMessage> Slips; // a plan with slips is not to be run
    std::vector<Renamed> Renames;
};

// The document that the file names, UTF-8; none when it is the one of the same name beside the file.
std::optional<TestName> MachineOf(const TestFile& file);

// The file must outlive the plan. `documentName` stands in messages.
TestPlan PlanTests(const TestFile& file, const FsmDocument& document, const std::string& documentName);

} // namespace orvane::run
