// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestRunner.h"

#include "run/PumpTable.h"
#include "run/TestEdits.h"
#include "run/TestReader.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::PumpTable;
using test::SmallTable;
using testing::ElementsAre;
using testing::IsEmpty;

// What becomes of the first test of a file: "passed", or where and why not; notes behind it.
std::string Verdict(const FsmDocument& document, const std::string& text, const RunOptions& options = {}) {
    const TestReadResult read = ReadTestFile(text);
    const TestPlan plan = PlanTests(read.File, document, "pump.zfsm");
    for (const std::vector<TestMessage>& slips : {read.Slips, plan.Slips}) {
        if (!slips.empty())
            return "slip: " + slips.front().Text;
    }
    const TestRunner runner(document, plan, options);
    Coverage coverage = runner.NoCoverage();
    const TestResult result = runner.Run(plan.Tests.at(0), coverage);
    const auto place = [](Place at) {
        return std::to_string(at.Line) + ":" + std::to_string(at.Column) + ": ";
    };
    std::string verdict = result.Is == Verdict::Passed ? "passed" : place(result.At) + result.Message;
    for (const TestMessage& note : result.Notes)
        verdict += "; note " + place(note.At) + note.Text;
    return verdict;
}

std::string VerdictOfPump(const std::string& steps, const RunOptions& options = {}) {
    return Verdict(PumpTable().Document(), "test t\n" + steps, options);
}

TEST(TestRunner, AStepWaitsThenChangesInputsThenSettles) {
    EXPECT_EQ(
        VerdictOfPump("=> Idle\npulse Start => Run via Start\n+99 => Run stays\n+2 => Idle via Timeout\n"),
        "passed");
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\n+99 pulse Stop => Idle via Stop\n"), "passed");
    // What is due at the end of the wait happens before the inputs change.
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\n+101 pulse Stop => Idle via Stop\n"),
              "3:25: expected the last transition by Stop, but it is by Timeout");
}

TEST(TestRunner, InputsBeforeTheFirstStepAreThereAtPowerOn) {
    EXPECT_EQ(VerdictOfPump("on Start\n=> Idle => Run\n"), "passed");
    EXPECT_EQ(VerdictOfPump("on Start => Idle => Run\n"), "passed");
    EXPECT_EQ(VerdictOfPump("on Start\n+5 => Run stays timer \"\" = 5\n"), "passed");
}

TEST(TestRunner, AFailureSaysWhatWasExpectedWhereItIsAndHowItCameThere) {
    EXPECT_EQ(VerdictOfPump("=> Idle\n+3 pulse Start => Idle\n"),
              "3:19: expected 1:Idle, but at 3 the machine is in 2:Run, since 3 from 1:Idle by Start");
    EXPECT_EQ(VerdictOfPump("=> Run\n"),
              "2:4: expected 2:Run, but at 0 the machine is in 1:Idle, since power came on");
    EXPECT_EQ(VerdictOfPump("pulse Start => Idle => Run\n"),
              "2:24: expected the way 1:Idle => 2:Run, but the machine goes 2:Run");
    EXPECT_EQ(VerdictOfPump("=> Idle\n+3 => Run => Idle\n"),
              "3:14: expected the way 2:Run => 1:Idle, but the machine stays in 1:Idle");
}

TEST(TestRunner, EachKindOfCheckHasItsMessage) {
    EXPECT_EQ(VerdictOfPump("=> Idle\npulse Start => Run stays\n"),
              "3:20: expected no transition, but there is one by Start");
    EXPECT_EQ(VerdictOfPump("=> Idle via Start\n"),
              "2:9: expected the last transition by Start, but there is none");
    EXPECT_EQ(VerdictOfPump("=> Idle ran 2\n"), "2:9: expected that 2 pieces of code ran, but it is 1");
    EXPECT_EQ(VerdictOfPump("=> Idle runs \"run entry\"\n"),
              "2:9: expected that \"run entry\" runs, but it is in none of the 1 pieces of code that ran");
    EXPECT_EQ(VerdictOfPump("=> Idle not runs idle\n"),
              "2:9: expected that \"idle\" does not run, but it does");
    EXPECT_EQ(VerdictOfPump("=> Idle timer \"\" = 0\n"),
              "2:9: expected 0 since the start of timer \"\", but it was never started");
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\n+5 => Run timer \"\" = 6\n"),
              "3:11: expected 6 since the start of timer \"\", but it is 5");
    EXPECT_EQ(VerdictOfPump("=> Idle again\n"),
              "2:9: expected that the state enters itself at every scan, but it rests");
    EXPECT_EQ(VerdictOfPump("=> Idle spins\n"), "2:9: expected a scan that never ends, but it does");
}

TEST(TestRunner, CodeIsSearchedLineByLineWithSingleBlanks) {
    EXPECT_EQ(
        VerdictOfPump("pulse Start => Run runs \"run entry\" runs \"On Motor\" not runs \"entry On\"\n"),
        "passed");
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\npulse Stop => Idle runs \"stop  action\" ran 2\n"),
              "passed");
}

TEST(TestRunner, WaitingForTheTimeoutNeedsOne) {
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\ntimeout => Idle via Timeout\n"), "passed");
    EXPECT_EQ(VerdictOfPump("=> Idle\ntimeout => Idle\n"),
              "3:1: no timeout is coming; the machine is in 1:Idle, since power came on");
}

TEST(TestRunner, AVerdictThatDependsOnAReadingGetsANote) {
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\n+100 => Idle\n"),
              "passed; note 3:9: it fails when a constant limit is up one unit after it: expected 1:Idle, "
              "but at 100 "
              "the machine is in 2:Run, since 0 from 1:Idle by Start");
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\n+100 => Run\n"),
              "3:9: expected 2:Run, but at 100 the machine is in 1:Idle, since 100 from 2:Run by Timeout; "
              "note 3:9: it "
              "passes when a constant limit is up one unit after it");
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\n+100 => Idle\n", {.AfterLimit = false}), "passed");
    EXPECT_EQ(
        Verdict(PumpTable().Document(), "reading after-limit\ntest t\npulse Start => Run\n+100 => Run\n"),
        "passed");
}

TEST(TestRunner, ATimerThatNobodyStartedIsAReading) {
    const SmallTable table = PumpTable().Timing(2, kContinueConstant, "100");
    EXPECT_EQ(Verdict(table.Document(), "test t\npulse Start => Run\n"),
              "passed; note 2:16: it fails when a timer that was never started is past its limit: expected "
              "2:Run, but "
              "at 0 the machine is in 1:Idle, since 0 from 2:Run by Timeout");
}

TEST(TestRunner, StrictWantsEveryStateThatIsPassed) {
    const SmallTable table = PumpTable().Polytask().Cell(2, 5, 3).Name(3, "End").Cell(3, 7, 1);
    const auto strict = [&](const std::string& steps) {
        return Verdict(table.Document(), "test t\n" + steps, {.Strict = true});
    };
    EXPECT_EQ(strict("pulse Start => Run => End\n"), "passed");
    EXPECT_EQ(strict("pulse Start => End\n"),
              "2:13: not every state that is passed is expected; the way is 2:Run => 3:End");
    EXPECT_EQ(strict("=> Idle\npulse Start\n"),
              "3:1: not every state that is passed is expected; the way is 2:Run => 3:End");
    EXPECT_EQ(VerdictOfPump("pulse Start => Run\ntimeout => Idle\n", {.Strict = true}),
              "3:1: with --strict a line says how long it waits, as a number, instead of \"timeout\"");
}

TEST(TestRunner, ALimitThatIsNeededAndNotGivenIsAnError) {
    EXPECT_EQ(
        Verdict(PumpTable().Timing(2, kStartVariable, ";load").Document(), "test t\npulse Start => Run\n"),
        "2:1: the limit of 2:Run is needed and not given; write \"limit Run = ...\" above");
    EXPECT_EQ(Verdict(PumpTable().Timing(2, kStartConstant, "3s").Document(), "test t\npulse Start => Run\n"),
              "2:1: the limit of 2:Run is needed and not given; write \"constant 3s = ...\" at the top of "
              "the file");
    EXPECT_EQ(Verdict(PumpTable().Timing(2, kStartConstant, "3s").Document(),
                      "constant 3s = 30\ntest t\npulse Start => Run\n+31 => Idle\n"),
              "passed");
}

TEST(TestRunner, AnOscillationAndASpinFailUnlessTheSpinIsExpected) {
    const SmallTable ring = PumpTable().Cell(2, 6, 1);
    EXPECT_EQ(
        Verdict(ring.Document(), "test t\non Start => Idle\n"),
        "2:1: the machine goes round through 2:Run and others, one at every scan, so that where it stands "
        "depends on how often the controller scans: 1:Idle => 2:Run => 1:Idle => 2:Run");
    const SmallTable spin = PumpTable().Polytask().Cell(2, 5, 3).Cell(3, 5, 2);
    EXPECT_EQ(Verdict(spin.Document(), "test t\npulse Start => Run\n"),
              "2:1: a scan never ends: the machine comes to 2:Run again and again without letting time pass");
    EXPECT_EQ(Verdict(spin.Document(), "test t\npulse Start => Run spins\n"), "passed");
}

TEST(TestRunner, EventsFollowFromSignalsAlsoDuringAPulse) {
    const std::string heads = "signal wanted\nevent Start = wanted\nevent Stop = not wanted\ntest t\n";
    EXPECT_EQ(Verdict(PumpTable().Document(), heads + "=> Idle\npulse wanted => Run => Idle via Stop\n"),
              "passed");
    EXPECT_EQ(
        Verdict(PumpTable().Document(), heads + "on wanted => Idle => Run\noff wanted => Idle via Stop\n"),
        "passed");
}

TEST(TestRunner, NamesDecideSoThatRenumberingChangesNothing) {
    SmallTable moved; // the pump with its states exchanged
    moved.Name(2, "Idle", ";idle entry").Cell(2, 6, 1);
    moved.Name(1, "Run", ";run entry")
        .Timing(1, kStartConstant, "100")
        .Cell(1, 4, 2)
        .Cell(1, 7, 2, ";stop action");
    moved.Document().Event(6).Name = "Start";
    moved.Document().Event(7).Name = "Stop";
    const std::string steps =
        "pulse Start => Run via Start runs \"run entry\"\n+99 => Run stays\n+2 => Idle via Timeout\n";
    EXPECT_EQ(VerdictOfPump("=> Idle\n" + steps), "passed");
    EXPECT_EQ(Verdict(moved.Document(), "test t\n=> Run\npulse Stop => Idle\n" + steps), "passed");
}

TEST(TestRunner, CoverageCountsStatesTransitionsAndHolds) {
    const SmallTable table = PumpTable().Cell(2, 8, 2);
    const TestReadResult read = ReadTestFile("test a\npulse Start => Run\non E8 => Run\ntest b\n=> Idle\n");
    const TestPlan plan = PlanTests(read.File, table.Document(), "pump.zfsm");
    const TestRunner runner(table.Document(), plan, {});
    Coverage a = runner.NoCoverage();
    Coverage b = runner.NoCoverage();
    runner.Run(plan.Tests.at(0), a);
    runner.Run(plan.Tests.at(1), b);
    EXPECT_EQ(b.States(), (CoverageCount{1, 2}));
    EXPECT_EQ(b.Transitions(), (CoverageCount{0, 4}));
    Coverage both = a;
    both.Merge(b);
    Coverage other = b;
    other.Merge(a);
    EXPECT_EQ(both.Transitions(), other.Transitions());
    EXPECT_EQ(both.Transitions(), (CoverageCount{2, 4}));
    EXPECT_THAT(both.MissedStates(), IsEmpty());
    EXPECT_THAT(both.MissedTransitions(), ElementsAre(Cell{4, 2}, Cell{7, 2}));
    EXPECT_EQ(Percent(both.Transitions()), 50U);
    EXPECT_EQ(Percent({}), 100U);
}

TEST(TestRunner, CoverageCountsEventsTriedInEmptyCellsAndNeighboursTogether) {
    const SmallTable table = PumpTable().Cell(2, 9, 1); // Run tests Stop and E9
    const auto covered = [&](const std::string& steps) {
        const TestReadResult read = ReadTestFile("test t\n" + steps);
        const TestPlan plan = PlanTests(read.File, table.Document(), "pump.zfsm");
        const TestRunner runner(table.Document(), plan, {});
        Coverage coverage = runner.NoCoverage();
        runner.Run(plan.Tests.at(0), coverage);
        return std::pair(coverage.EmptyCells(), coverage.Pairs());
    };
    using Covered = std::pair<CoverageCount, CoverageCount>;
    // Idle has nothing for Stop and E9, Run nothing for Start; E8 nobody tests.
    EXPECT_EQ(covered("=> Idle\n"), (Covered{{0, 3}, {0, 1}}));
    EXPECT_EQ(covered("pulse E8 E9 => Idle\n"), (Covered{{1, 3}, {0, 1}}));
    EXPECT_EQ(covered("on Start => Idle => Run\n"), (Covered{{1, 3}, {0, 1}}));
    EXPECT_EQ(covered("pulse Start => Run\npulse Stop => Idle\n"), (Covered{{0, 3}, {0, 1}}));
    EXPECT_EQ(covered("pulse Start => Run\npulse Stop E9 => Idle via Stop\n"), (Covered{{0, 3}, {1, 1}}));
}

std::string Updated(const FsmDocument& document, const std::string& text) {
    const TestReadResult read = ReadTestFile(text);
    const TestPlan plan = PlanTests(read.File, document, "pump.zfsm");
    const TestRunner runner(document, plan, {});
    return WithEdits(text, UpdateEdits(plan, runner));
}

TEST(TestEdits, AnUpdateRewritesWhatFailsAndLeavesTheRest) {
    const std::string text = "; pump\r\n"
                             "test t\r\n"
                             "  =>  Idle   ran 1 ; fine as it is\r\n"
                             "  pulse Start\r\n"
                             "  +99  => Idle via Timeout ran 3 ; wrong\r\n"
                             "  +2   => Run => Idle  stays  timer \"\" = 7  not runs entry\r\n";
    const std::string updated = Updated(PumpTable().Document(), text);
    EXPECT_EQ(updated, "; pump\r\n"
                       "test t\r\n"
                       "  =>  Idle   ran 1 ; fine as it is\r\n"
                       "  pulse Start\r\n"
                       "  +99  => Run  stays  ran 0 ; wrong\r\n"
                       "  +2   => Idle  via Timeout  timer \"\" = 101  runs entry\r\n");
    EXPECT_EQ(Updated(PumpTable().Document(), updated), updated);
    EXPECT_EQ(Verdict(PumpTable().Document(), updated), "passed");
    EXPECT_EQ(ChangedLines("p.ztest", "a\r\nb\nc", "a\nx\nc"), "p.ztest:2:\n-b\n+x\n");
}

TEST(TestEdits, ARenameWritesTheNewNamesInStepsAndInTheNamesLine) {
    SmallTable table = PumpTable();
    table.Name(2, "Running Fast");
    table.Document().Event(6).Name = "Go";
    const std::string text = "names 1:Idle 2:Run e6:Start\ntest t\npulse Start => Run ; Run\n+5 => Run\n";
    const TestReadResult read = ReadTestFile(text);
    const TestPlan plan = PlanTests(read.File, table.Document(), "pump.zfsm");
    EXPECT_EQ(WithEdits(text, RenameEdits(read.File, plan)),
              "names 1:Idle 2:\"Running Fast\" e6:Go\ntest t\npulse Go => \"Running Fast\" ; Run\n+5 => "
              "\"Running Fast\"\n");
}

} // namespace
} // namespace orvane::run
