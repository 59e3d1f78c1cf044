// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ShortestTest.h"

#include "run/Obstacles.h"
#include "run/TestRunner.h"
#include "support/MachineJson.h"
#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

struct Outcomes {
    int Ways = 0;
    int Failed = 0;
};

// Each way is written, run, and must pass.
Outcomes RunWays(const FsmDocument& document) {
    Outcomes outcomes;
    const Machine machine(document);
    for (const StateNumber from : StateNumbers()) {
        for (const StateNumber to : StateNumbers()) {
            if (!machine.State(from).HasBlock || !machine.State(to).HasBlock)
                continue;
            const ShortestTestResult found = ShortestTest(document, {from, to});
            if (!found.Test)
                continue;
            const TestPlan plan = PlanTests(*found.Test, document, "d");
            const TestRunner runner(document, plan, {.AfterLimit = false, .UnstartedExpired = false});
            Coverage coverage = runner.NoCoverage();
            const TestResult result = runner.Run(plan.Tests.front(), coverage);
            ++outcomes.Ways;
            if (!plan.Slips.empty() || result.Is != Verdict::Passed)
                ++outcomes.Failed;
        }
    }
    return outcomes;
}

TEST(ShortestTest, LeadsFromEachStateOfAnExampleToEachOther) {
    int ways = 0;
    for (const test::NamedDocument& example : test::ExampleDocuments()) {
        if (!Obstacles(example.Document).empty())
            continue;
        const Outcomes outcomes = RunWays(example.Document);
        EXPECT_EQ(outcomes.Failed, 0) << example.Name;
        ways += outcomes.Ways;
    }
    EXPECT_GT(ways, 300);
}

// In zero steps a state is not entered: the way leads out and back.
TEST(ShortestTest, FromAStateToItselfLeadsOutAndBack) {
    test::SmallTable table;
    table.Name(1, "A").Cell(1, 6, 2).Name(2, "B").Cell(2, 7, 1);
    const ShortestTestResult found = ShortestTest(table.Document(), {StateNumber(1), StateNumber(1)});
    ASSERT_TRUE(found.Test);
    int steps = 0;
    for (const TestLine& line : found.Test->Lines)
        steps += std::holds_alternative<TestStep>(line.What) ? 1 : 0;
    EXPECT_EQ(steps, 3); // power on, out, back
}

TEST(ShortestTest, WaitsWhereOnlyATimeoutLeads) {
    test::SmallTable table;
    table.Name(1, "A").Cell(1, 6, 2).Name(2, "B").Timing(2, kStartConstant, "70").Cell(2, 4, 3);
    table.Name(3, "C").Cell(3, 7, 1);
    const ShortestTestResult found = ShortestTest(table.Document(), {std::nullopt, StateNumber(3)});
    ASSERT_TRUE(found.Test);
    const auto* last = std::get_if<TestStep>(&found.Test->Lines.back().What);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->Expect->Way.back().Text, "C");
    EXPECT_FALSE(ShortestTest(table.Document(), {std::nullopt, StateNumber(9)}).Test);
}

} // namespace
} // namespace orvane::run
