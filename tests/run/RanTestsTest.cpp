// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RanTests.h"

#include "run/PumpTable.h"
#include "run/TestReader.h"
#include "run/TestWalk.h"
#include "support/FileBytes.h"
#include "support/Folders.h"
#include "support/MachineJson.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace orvane::run {
namespace {

using testing::IsEmpty;

FsmDocument PumpMachine() { return test::PumpTable().Document(); }

// Where a run of these steps is then.
Config After(const FsmDocument& document, const RanTests& ran, const RanTest& test, Moment moment) {
    const Machine machine(document, ran.Given);
    History history(machine);
    for (const RunStep& step : test.Steps)
        EXPECT_TRUE(history.Do(step));
    history.GoTo(moment);
    return history.Now().Where();
}

TEST(RanTests, AFailedTestStandsAtTheEndOfTheLineBefore) {
    const RanTests ran = RunTestsOf("test t\n => Idle\n pulse Start => Run\n +50 => Run stays\n"
                                    " +10 pulse Stop => Run\n +1 => Idle\n",
                                    PumpMachine(), "pump.zfsm");
    ASSERT_EQ(ran.Tests.size(), 1U);
    EXPECT_EQ(ran.Tests[0].Result.At.Line, 5U);
    EXPECT_EQ(After(PumpMachine(), ran, ran.Tests[0], ran.Tests[0].Before), (Config{2, 50, {0}}));
    EXPECT_EQ(After(PumpMachine(), ran, ran.Tests[0], {ran.Tests[0].Steps.size(), 0}), (Config{1, 60, {0}}));
}

TEST(RanTests, ATestThatFailsInItsFirstLineStandsBeforePower) {
    const RanTests ran = RunTestsOf("test t\n on Start => Idle\n", PumpMachine(), "pump.zfsm");
    EXPECT_EQ(ran.Tests.at(0).Before, Moment());
    EXPECT_EQ(ran.Tests.at(0).Steps.size(), 2U);
}

TEST(RanTests, SlipsAreToldAndNothingIsRun) {
    const RanTests ran = RunTestsOf("test t\n => Idel\n", PumpMachine(), "pump.zfsm");
    ASSERT_EQ(ran.Slips.size(), 1U);
    EXPECT_EQ(ran.Slips[0].Text, "no state is called \"Idel\" in pump.zfsm; did you mean \"Idle\"?");
    EXPECT_THAT(ran.Tests, IsEmpty());
}

TEST(RanTests, SignalsAreTheEventsThatFollowFromThem) {
    const RanTests ran =
        RunTestsOf("signal Flow\nevent Start = Flow\nevent Stop = not Flow\n"
                   "test t\n => Idle\n on Flow => Run\n off Flow => Idle\n pulse Flow => Idle\n",
                   PumpMachine(), "pump.zfsm");
    ASSERT_THAT(ran.Slips, IsEmpty());
    EXPECT_EQ(ran.Tests.at(0).Result.Message, "");
    EXPECT_EQ(After(PumpMachine(), ran, ran.Tests[0], ran.Tests[0].Before).State, StateNumber(1));
    EXPECT_EQ(ran.Tests[0].Steps.back(), PulseOf(BitOf(6)));
}

TEST(RanTests, TestsOfAnotherDocumentAreNotRun) {
    const RanTests ran =
        RunTestsOf("machine ../x/other.zfsm\ntest t\n => Idle\n", PumpMachine(), "pump.zfsm");
    ASSERT_EQ(ran.Slips.size(), 1U);
    EXPECT_EQ(ran.Slips[0].Text, "these are tests of ../x/other.zfsm, not of pump.zfsm");
    EXPECT_THAT(RunTestsOf("machine ../x/pump.zfsm\ntest t\n => Idle\n", PumpMachine(), "pump.zfsm").Slips,
                IsEmpty());
}

TEST(RanTests, TheReadingOfTheFileIsThatOfTheRun) {
    const RanTests ran = RunTestsOf("reading after-limit\ntest t\n => Idle\n", PumpMachine(), "pump.zfsm");
    EXPECT_EQ(ran.Read, (Readings{true, false}));
}

// Every test beside an example, as a run, ends where the test ends.
TEST(RanTests, ExamplesEndAsRunsWhereTheyEndAsTests) {
    int tests = 0;
    for (const test::NamedDocument& example : test::ExampleDocuments()) {
        std::filesystem::path path = std::filesystem::path(test::kExamplesFolder) / example.Name;
        path.replace_extension(".ztest");
        if (!std::filesystem::exists(path))
            continue;
        const std::string bytes = FileBytes(path);
        const TestReadResult read = ReadTestFile(bytes);
        const TestPlan plan = PlanTests(read.File, example.Document, example.Name);
        const RanTests ran = RunTestsOf(bytes, example.Document, example.Name);
        const Machine machine(example.Document, plan.Given);
        ASSERT_EQ(ran.Tests.size(), plan.Tests.size());
        for (std::size_t i = 0; i < plan.Tests.size(); ++i, ++tests) {
            TestWalk walk(machine, plan);
            for (const PlannedStep& step : plan.Tests[i].Steps) {
                walk.PowerOnBefore(step);
                walk.Do(step);
            }
            EXPECT_EQ(After(example.Document, ran, ran.Tests[i], ran.Tests[i].Before), walk.Where().Where())
                << example.Name << ": " << ran.Tests[i].Name;
        }
        EXPECT_EQ(ran.Transitions.Taken, ran.Transitions.All) << example.Name;
    }
    EXPECT_GT(tests, 40);
}

} // namespace
} // namespace orvane::run
