// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Recorder.h"

#include "run/History.h"
#include "run/PumpTable.h"
#include "run/TestReader.h"
#include "run/TestRunner.h"
#include "run/TestWalk.h"
#include "run/TestWriter.h"
#include "support/Property.h"
#include "support/RandomMachine.h"
#include "support/RandomRun.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::kPowerOn;
using test::kStart;
using test::kStop;
using testing::HasSubstr;
using testing::IsEmpty;

std::string Recorded(const FsmDocument& document, const std::vector<RunStep>& steps,
                     const Constants& given = {}) {
    return WriteTestFile(RecordTest(document, {steps, given, "t", std::nullopt, std::nullopt}));
}

// What is wrong with the first test of a file, or nothing.
std::string Wrong(const FsmDocument& document, const std::string& text) {
    const TestReadResult read = ReadTestFile(text);
    const TestPlan plan = PlanTests(read.File, document, "machine.zfsm");
    for (const std::vector<TestMessage>& slips : {read.Slips, plan.Slips}) {
        if (!slips.empty())
            return "slip in line " + std::to_string(slips.front().At.Line) + ": " + slips.front().Text;
    }
    const TestRunner runner(document, plan, {});
    Coverage coverage = runner.NoCoverage();
    const TestResult result = runner.Run(plan.Tests.at(0), coverage);
    return result.Is == Verdict::Passed ? "" : std::to_string(result.At.Line) + ": " + result.Message;
}

TEST(Recorder, WritesWhatWasDoneAndWhatMustBeThere) {
    EXPECT_EQ(Recorded(test::PumpTable().Document(),
                       {kPowerOn, PulseOf(kStart), WaitFor(30), SwitchTo(kStop), WaitFor(7)}),
              R"(names 1:Idle 2:Run e6:Start e7:Stop

test t
                      => Idle  ran 1
          pulse Start => Run  via Start  runs "On Motor"  ran 1
    +30   on Stop     => Idle  via Stop  ran 2
    +7                => Idle  stays  ran 0
)");
}

TEST(Recorder, LooksAUnitBeforeAndAfterALimit) {
    const FsmDocument pump = test::PumpTable().Document();
    EXPECT_THAT(Recorded(pump, {kPowerOn, PulseOf(kStart), WaitFor(150)}), HasSubstr(R"(
    +99               => Run  stays  ran 0
    +2                => Idle  via Timeout  ran 1
    +49               => Idle  stays  ran 0
)"));
    // Where the run ends at the limit, or something else happens right behind it, nothing is made up.
    EXPECT_THAT(Recorded(pump, {kPowerOn, PulseOf(kStart), WaitFor(100), PulseOf(kStart)}), HasSubstr(R"(
    +99               => Run  stays  ran 0
    +1                => Idle  via Timeout  ran 1
          pulse Start => Run)"));
}

TEST(Recorder, ATimeoutRightBehindAnotherHasItsOwnLine) {
    test::SmallTable table = test::PumpTable();
    table.Name(3, "After").Timing(3, kStartConstant, "1").Cell(3, 4, 1).Cell(2, 4, 3);
    EXPECT_THAT(Recorded(table.Document(), {kPowerOn, PulseOf(kStart), WaitFor(150)}), HasSubstr(R"(
    +99               => Run  stays  ran 0
    +1                => After  via Timeout  ran 0
    +2                => Idle  via Timeout  ran 1
)"));
}

TEST(Recorder, WaitsInARowAreOne) {
    const FsmDocument pump = test::PumpTable().Document();
    EXPECT_EQ(Recorded(pump, {kPowerOn, PulseOf(kStart), WaitFor(60), WaitFor(40), WaitFor(50)}),
              Recorded(pump, {kPowerOn, PulseOf(kStart), WaitFor(150)}));
}

// As an event that is there while a signal is not: the pulse of the signal lets it go for one scan.
TEST(Recorder, AnEventThatGoesForAPulseIsWrittenAsOneScan) {
    test::SmallTable pump = test::PumpTable();
    pump.Cell(2, 6, 2); // held by Start, so that Stop alone ends it
    const std::string text = Recorded(pump.Document(), {kPowerOn, SwitchTo(kStart), PulseOf(kStop)});
    EXPECT_THAT(text, HasSubstr("off Start on Stop scan 1 => Idle  via Stop"));
    EXPECT_THAT(text, HasSubstr("off Stop on Start        => Run  via Start"));
    EXPECT_EQ(Wrong(pump.Document(), text), "");
}

TEST(Recorder, InputsBeforePowerStandInItsLine) {
    EXPECT_THAT(Recorded(test::PumpTable().Document(), {SwitchTo(kStart), kPowerOn}),
                HasSubstr("    on Start => Idle => Run  via Start  runs \"On Motor\"  ran 2\n"));
}

TEST(Recorder, LimitsThatOnlyTheUserKnowsAreWrittenDown) {
    FsmDocument pump = test::PumpTable().Document();
    pump.State(2).TimeConst = "LONG";
    const std::string constant = Recorded(pump, {kPowerOn, PulseOf(kStart), WaitFor(60)}, {{"LONG", 50}});
    EXPECT_THAT(constant, HasSubstr("constant LONG = 50\n"));
    EXPECT_EQ(Wrong(pump, constant), "");

    pump.State(2).TimingMode = 2;
    pump.State(2).TimingVar = "\tLoad\tLEVEL";
    const std::string variable = Recorded(pump, {LimitOf(2, 50), kPowerOn, PulseOf(kStart), WaitFor(60)});
    EXPECT_THAT(variable, HasSubstr("limit Run = 50 => Idle"));
    EXPECT_THAT(variable, HasSubstr("+50                  => Run  stays"));
    EXPECT_EQ(Wrong(pump, variable), "");
}

TEST(Recorder, ATestIsAddedBehindWhatTheFileHas) {
    const FsmDocument pump = test::PumpTable().Document();
    const std::vector<RunStep> steps{kPowerOn, PulseOf(kStart)};
    const TestFile recorded = RecordTest(
        pump, {steps, {}, "second", TestTime{"0.1", TimeSuffix::Seconds, {}}, std::string("other.zfsm")});
    const std::string file = "unit 1 s ; mine\n\ntest first\n => Idle";
    const std::string both = WithTest(file, recorded);
    EXPECT_TRUE(both.starts_with(file + "\n\nmachine other.zfsm\nnames")) << both;
    const TestReadResult read = ReadTestFile(both);
    EXPECT_THAT(read.Slips, IsEmpty());
    EXPECT_EQ(PlanTests(read.File, pump, "pump").Tests.size(), 2U);
    EXPECT_THAT(PlanTests(read.File, pump, "pump").Slips, IsEmpty());
    EXPECT_EQ(WithTest("", recorded), WriteTestFile(recorded));
}

TEST(Recorder, TheReadingOfTheRunIsThatOfTheTest) {
    const FsmDocument pump = test::PumpTable().Document();
    const std::vector<RunStep> steps{kPowerOn, PulseOf(kStart), WaitFor(101)};
    const TestFile file =
        RecordTest(pump, {steps, {}, "t", std::nullopt, std::nullopt, {.AfterLimit = true}});
    const std::string text = WriteTestFile(file);
    EXPECT_THAT(text, HasSubstr("reading after-limit\n"));
    EXPECT_THAT(text, HasSubstr("+100 "));
    EXPECT_EQ(Wrong(pump, text), "");
    const std::string twice = WithTest(text, file);
    EXPECT_EQ(twice.find("reading", twice.find("reading") + 1), std::string::npos);
}

TEST(Recorder, NamesThatStandTwiceOrAreNoneAreToldByNumber) {
    FsmDocument pump = test::PumpTable().Document();
    pump.Event(7).Name = "Start";
    pump.Event(6).Name.clear();
    pump.Event(8) = pump.Event(7);
    pump.State(1).Name = "Run";
    const std::string text = Recorded(pump, {kPowerOn, PulseOf(kStart), PulseOf(kStop)});
    EXPECT_THAT(text, HasSubstr("pulse #6      => 2:Run"));
    EXPECT_THAT(text, HasSubstr("pulse 7:Start => 1:Run"));
    EXPECT_EQ(Wrong(pump, text), "");
}

TEST(Recorder, ALimitThatIsOneUnitOffIsNoticed) {
    const FsmDocument pump = test::PumpTable().Document();
    const std::string text = Recorded(pump, {kPowerOn, PulseOf(kStart), WaitFor(100)});
    EXPECT_EQ(Wrong(pump, text), "");
    for (const char* limit : {"99", "101"}) {
        FsmDocument wrong = pump;
        wrong.State(2).TimeConst = limit;
        EXPECT_NE(Wrong(wrong, text), "") << limit;
    }
}

// Where the run was, the test is, too: it passes, and its last moment is that of the run.
TEST(RecorderProperty, RecordedTestsPassAndEndWhereTheRunEnds) {
    test::ExpectProperty({.Cases = 200}, [] {
        const FsmDocument document = *test::AnyMachine();
        const Machine machine(document);
        RC_PRE(machine.Start() != StateNumber());
        History run(machine);
        test::Begin(run, *rc::gen::inRange<Units>(0, 40));
        for (RunStep step : *test::AnyRun()) {
            if (step.What == RunAct::Limit)
                continue; // not of a state without a variable limit
            if (step.What == RunAct::Pulse)
                step.Amount |= run.Now().Surroundings().Events; // what is held stays during a pulse
            run.Do(step);
            if (!IsIdle(run.End()))
                run.Back();
        }
        std::vector<RunStep> steps;
        for (const RunStep& step : run.Steps().first(run.At().Steps)) {
            const bool needless = step.What == RunAct::Limit &&
                                  machine.State(StateNumber(step.State)).Limit != LimitKind::Variable;
            if (!needless)
                steps.push_back(step);
        }
        RC_PRE(IsIdle(run.End()));
        const std::string text = Recorded(document, steps);
        RC_LOG() << text;
        RC_ASSERT(Wrong(document, text) == "");
        const TestReadResult read = ReadTestFile(text);
        const TestPlan plan = PlanTests(read.File, document, "");
        TestWalk walk(machine, plan);
        for (const PlannedStep& step : plan.Tests.front().Steps) {
            walk.PowerOnBefore(step);
            walk.Do(step);
        }
        RC_ASSERT(walk.Where().Where() == run.Now().Where());
    });
}

} // namespace
} // namespace orvane::run
