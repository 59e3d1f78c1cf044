// SPDX-License-Identifier: GPL-3.0-or-later
// The tests beside the examples: they pass, they take every transition, and what is wrong with a machine they
// notice.
#include "core/DocumentReader.h"
#include "core/TimingMode.h"
#include "run/LimitText.h"
#include "run/TestReader.h"
#include "run/TestRunner.h"
#include "support/FileBytes.h"
#include "support/Folders.h"
#include "support/MachineJson.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace orvane::run {
namespace {

using testing::IsEmpty;

struct Example {
    std::string Name;
    FsmDocument Document;
    TestFile Tests;
};

std::vector<Example> Examples() {
    std::vector<Example> examples;
    for (const test::NamedDocument& document : test::ExampleDocuments()) {
        std::filesystem::path path = std::filesystem::path(test::kExamplesFolder) / document.Name;
        path.replace_extension(".ztest");
        if (std::filesystem::exists(path))
            examples.push_back({document.Name, document.Document, ReadTestFile(FileBytes(path)).File});
    }
    return examples;
}

bool Passes(const Example& example, const FsmDocument& document) {
    const TestPlan plan = PlanTests(example.Tests, document, example.Name);
    const TestRunner runner(document, plan, {.Strict = true, .AfterLimit = false, .UnstartedExpired = false});
    Coverage coverage = runner.NoCoverage();
    for (const PlannedTest& test : plan.Tests) {
        if (runner.Run(test, coverage).Is != Verdict::Passed)
            return false;
    }
    return plan.Slips.empty();
}

TEST(ExampleTests, TakeEveryTransition) {
    int examples = 0;
    for (const Example& example : Examples()) {
        const TestPlan plan = PlanTests(example.Tests, example.Document, example.Name);
        ASSERT_THAT(plan.Slips, IsEmpty()) << example.Name;
        const TestRunner runner(example.Document, plan, {.Strict = true});
        Coverage coverage = runner.NoCoverage();
        for (const PlannedTest& test : plan.Tests) {
            const TestResult result = runner.Run(test, coverage);
            EXPECT_EQ(result.Message, "") << example.Name << ": " << test.Name;
            EXPECT_THAT(result.Notes, IsEmpty()) << example.Name << ": " << test.Name;
        }
        EXPECT_THAT(coverage.MissedTransitions(), IsEmpty()) << example.Name;
        ++examples;
    }
    EXPECT_EQ(examples, 8);
}

// A limit that is a unit too short or too long.
TEST(ExampleTests, NoticeALimitThatIsOneUnitOff) {
    std::vector<std::string> unnoticed;
    for (const Example& example : Examples()) {
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& record = example.Document.State(state);
            const std::optional<Units> limit = LimitNumber(record.TimeConst);
            if (!HasConstantLimit(record.TimingMode) || record.Targets[kTimeoutRow] == kNoState || !limit)
                continue;
            for (const int off : {-1, 1}) {
                FsmDocument wrong = example.Document;
                wrong.State(state).TimeConst = std::to_string(*limit + off);
                if (Passes(example, wrong))
                    unnoticed.push_back(example.Name + " state " + std::to_string(state.Number()) + " by " +
                                        std::to_string(off));
            }
        }
    }
    // The pump says nothing of how a limit is read, and one unit more is the other reading.
    EXPECT_THAT(unnoticed, testing::ElementsAre("pump.zfsm state 2 by 1"));
}

// Each transition that leads to another state, led somewhere else.
TEST(ExampleTests, NoticeATransitionToTheWrongState) {
    std::vector<std::string> unnoticed;
    for (const Example& example : Examples()) {
        for (const StateNumber state : StateNumbers()) {
            for (const RowNumber row : CellRows()) {
                const StateNumber target = example.Document.State(state).Targets[row];
                if (target == kNoState)
                    continue;
                FsmDocument wrong = example.Document;
                wrong.State(state).Targets[row] = target == 1 ? 2 : 1;
                if (Passes(example, wrong))
                    unnoticed.push_back(example.Name + " state " + std::to_string(state.Number()) + " row " +
                                        std::to_string(row.Number()));
            }
        }
    }
    EXPECT_THAT(unnoticed, IsEmpty());
}

} // namespace
} // namespace orvane::run
