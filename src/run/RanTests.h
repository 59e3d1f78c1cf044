// SPDX-License-Identifier: GPL-3.0-or-later
// The tests of one file, run for somebody who looks on: beside each verdict stands how to come there.
#pragma once

#include "core/FsmDocument.h"
#include "run/Coverage.h"
#include "run/History.h"
#include "run/TestRunner.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

struct RanTest {
    std::string Name; // UTF-8
    TestResult Result;
    std::vector<RunStep> Steps; // the test as a run, up to the end of the line that failed
    Moment Before;              // the end of the line before that one; of a test that passed, the end
};

struct RanTests {
    std::vector<TestMessage>
        Slips; // when there are any, nothing was run; also that the tests are of another document
    std::vector<RanTest> Tests;
    Constants Given;
    Readings Read; // what the verdicts are of
    CoverageCount States;
    CoverageCount Transitions;
};

// The bytes of a .ztest file on a document that has no obstacles; its name stands in messages.
RanTests RunTestsOf(std::string_view bytes, const FsmDocument& document, const std::string& documentName);

} // namespace orvane::run
