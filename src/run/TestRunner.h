// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/Coverage.h"
#include "run/Machine.h"
#include "run/TestPlan.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

struct RunOptions {
    bool Strict = false; // every state that is passed has to be expected, and no line waits for "the timeout"
    // A reading that is chosen is the only one of its kind that is run.
    std::optional<bool> AfterLimit = std::nullopt;
    std::optional<bool> UnstartedExpired = std::nullopt;
};

enum class Verdict {
    Passed,
    Failed,
    Error // a limit that the machine came to is not given: the test says too little
};

struct TestResult {
    Verdict Is = Verdict::Passed;
    Place At;            // of what failed; else of the test
    std::string Message; // empty when passed
    std::vector<TestMessage> Notes;
};

// Runs the tests of one plan on a document that has no obstacles. What is not known of the controllers is run
// under every reading that nobody has chosen; where the verdict depends on one there is a note.
class TestRunner {
  public:
    // Document and plan must outlive the runner.
    TestRunner(const FsmDocument& document, const TestPlan& plan, const RunOptions& options);

    // Safe to call for several tests at a time, with a coverage for each.
    TestResult Run(const PlannedTest& test, Coverage& coverage) const;

    // The expectations of the test's steps as they would pass, each with the step it belongs to; steps that
    // pass as they are, and those without an expectation, are left out. Ends where the machine does not
    // settle.
    struct NewExpectation {
        const TestStep* Step;
        TestExpectation Expect;
    };
    std::vector<NewExpectation> Update(const PlannedTest& test) const;

    Coverage NoCoverage() const { return Coverage(machines_.front()); }

  private:
    TestResult RunOn(const Machine& machine, const PlannedTest& test, Coverage* coverage) const;
    void AddNotes(TestResult& result, const PlannedTest& test) const;

    const FsmDocument& document_;
    const TestPlan& plan_;
    RunOptions options_;
    std::vector<Machine> machines_; // one for each combination of readings, the first is what counts
};

} // namespace orvane::run
