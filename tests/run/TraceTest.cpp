// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/PumpTable.h"
#include "run/Simulation.h"
#include "run/TestReader.h"
#include "run/TraceCsv.h"
#include "run/TraceText.h"
#include "run/TraceVcd.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using testing::HasSubstr;
using testing::Not;

struct Written {
    std::string Text;
    std::string Csv;
    std::string Vcd;
};

Written WrittenRun(const FsmDocument& document, const std::string& steps) {
    const TestFile file = ReadTestFile(steps).File;
    const TestPlan plan = PlanTests(file, document, "pump.zfsm");
    EXPECT_TRUE(plan.Slips.empty()) << plan.Slips.front().Text;
    const Machine machine(document, plan.Given);
    const Simulation simulation = Simulate(document, machine, plan, plan.Tests.front());
    Written written;
    const TraceRow* before = nullptr;
    for (const TraceRow& row : simulation.Trace.Rows) {
        written.Text += TraceLine(simulation.Trace, row, before, document) + "\n";
        before = &row;
    }
    for (const Simulation::Failure& failure : simulation.Failures)
        written.Text += std::to_string(failure.Row) + ": " + failure.Text + "\n";
    written.Csv = TraceCsv(simulation.Trace, document, machine);
    written.Vcd = TraceVcd(simulation.Trace, document, machine);
    return written;
}

const std::string kPumpRun = "test t\n"
                             "=> Idle\n"
                             "+10 pulse Start => Run\n"
                             "+100 => Idle\n"
                             "+5\n";

TEST(Trace, TellsWhatHappensInTheWordsOfATest) {
    EXPECT_EQ(WrittenRun(test::PumpTable().Document(), kPumpRun).Text,
              "0         => 1:Idle  power on  runs \";idle entry\"\n"
              "10        on Start\n"
              "10        => 2:Run  via Start  runs \";run entry On Motor\"\n"
              "10        off Start\n"
              "110       => 1:Idle  via Timeout  runs \";idle entry\"\n"
              "115       stays in 1:Idle\n");
}

TEST(Trace, TellsWhatIsThereAtPowerOnAndEventsThatHold) {
    test::SmallTable table = test::PumpTable();
    table.Cell(1, 8, 1);
    const std::string text = WrittenRun(table.Document(), "test t\non E8 => Idle\n").Text;
    EXPECT_EQ(text, "0         on E8  => 1:Idle  power on  runs \";idle entry\"\n"
                    "0         stays  via E8\n");
}

TEST(Trace, GoesOnBehindAnExpectationThatFails) {
    const std::string text =
        WrittenRun(test::PumpTable().Document(), "test t\n=> Run\npulse Start => Run\n").Text;
    EXPECT_THAT(text, HasSubstr("0         => 2:Run  via Start"));
    EXPECT_THAT(text, HasSubstr("1: expected 2:Run, but at 0 the machine is in 1:Idle"));
}

TEST(Trace, EndsWhereTheMachineNeverComesToRest) {
    test::SmallTable table;
    table.Name(1, "A").Cell(1, 5, 2).Name(2, "B").Cell(2, 5, 1);
    const std::string text = WrittenRun(table.Document(), "test t\n=> A\n+10 => B\n").Text;
    EXPECT_THAT(text, HasSubstr("goes round through"));
    EXPECT_THAT(text, Not(HasSubstr("\n10 ")));
}

TEST(TraceCsv, HasAColumnForEachInputAndTimer) {
    EXPECT_EQ(WrittenRun(test::PumpTable().Document(), kPumpRun).Csv,
              "time,moment,state,state_name,via,ran,Start,Stop,timer\n"
              "0,0,1,Idle,,;idle entry,0,0,\n"
              "10,1,1,Idle,,,1,0,\n"
              "10,1,2,Run,Start,;run entry On Motor,1,0,0\n"
              "10,2,2,Run,,,0,0,0\n"
              "110,3,1,Idle,Timeout,;idle entry,0,0,100\n"
              "115,4,1,Idle,,,0,0,105\n");
}

TEST(TraceCsv, QuotesWhatTheFormatWouldTakeApart) {
    test::SmallTable table = test::PumpTable();
    table.Name(1, "A, \"B\"", "Ld 1,2\r\nJmp");
    EXPECT_THAT(WrittenRun(table.Document(), "test t\n+1\n").Csv,
                HasSubstr("0,0,1,\"A, \"\"B\"\"\",,\"Ld 1,2 Jmp\",0,0,\n"));
}

TEST(TraceCsv, SignalsComeBeforeTheEventsThatFollowFromThem) {
    const std::string csv = WrittenRun(test::PumpTable().Document(),
                                       "signal key\nevent Start = key\ntest t\n=> Idle\npulse key => Run\n")
                                .Csv;
    EXPECT_THAT(csv, HasSubstr(",ran,key,Start,Stop,timer\n"));
    EXPECT_THAT(csv, HasSubstr("\n0,1,2,Run,Start,;run entry On Motor,1,1,0,0\n"));
    EXPECT_THAT(csv, HasSubstr("\n0,2,2,Run,,,0,0,0,0\n"));
}

TEST(TraceVcd, HasEachChangeOnceAndRowsATickApart) {
    EXPECT_EQ(WrittenRun(test::PumpTable().Document(), "unit 0.1 s\n" + kPumpRun).Vcd,
              "$version Orvane $end\n"
              "$timescale 1 us $end\n"
              "$scope module P $end\n"
              "$var integer 32 ! state $end\n"
              "$var string 1 \" state_name $end\n"
              "$var string 1 # via $end\n"
              "$var wire 1 $ Start $end\n"
              "$var wire 1 % Stop $end\n"
              "$var integer 32 & timer $end\n"
              "$upscope $end\n"
              "$enddefinitions $end\n"
              "#0\nb1 !\ns1:Idle \"\ns- #\n0$\n0%\nbx &\n"
              "#1000000\n1$\n"
              "#1000001\nb10 !\ns2:Run \"\nsStart #\nb0 &\n"
              "#1000002\ns- #\n0$\n"
              "#11000000\nb1 !\ns1:Idle \"\nsTimeout #\nb1100100 &\n"
              "#11500000\ns- #\nb1101001 &\n");
}

TEST(TraceVcd, ATimerThatStartsAnewEndsItsRampATickBefore) {
    const std::string vcd = WrittenRun(test::PumpTable().Document(), "unit 1 s\ntest t\npulse Start\n"
                                                                     "+10 pulse Stop\n+10 pulse Start\n")
                                .Vcd;
    EXPECT_THAT(vcd, HasSubstr("#20000\n1$\nb10100 &\n#20001\nb10 !\ns2:Run \"\nsStart #\nb0 &\n"));
    test::SmallTable again = test::PumpTable();
    again.Cell(2, 4, 2);
    EXPECT_THAT(WrittenRun(again.Document(), "unit 1 s\ntest t\npulse Start\n+150\n").Vcd,
                HasSubstr("#99999\nb1100100 &\n#100000\nsTimeout #\nb0 &\n"));
}

TEST(TraceVcd, BlanksInTextsAndSignsInNamesBecomeUnderlines) {
    test::SmallTable table = test::PumpTable();
    table.Name(2, "Pump On");
    table.Document().Event(6).Name = "Go [1]";
    table.Document().Event(7).Name = "Go (1)";
    const std::string vcd = WrittenRun(table.Document(), "test t\npulse \"Go [1]\"\n").Vcd;
    EXPECT_THAT(vcd, HasSubstr("s2:Pump_On \""));
    EXPECT_THAT(vcd, HasSubstr("sGo_[1] #"));
    EXPECT_THAT(vcd, HasSubstr(" Go__1_ $end"));
    EXPECT_THAT(vcd, HasSubstr(" Go__1__2 $end"));
    EXPECT_THAT(vcd, HasSubstr("$comment 1 s stands for one unit of the machine's time $end\n"));
}

TEST(TraceVcd, ATimeBeyondAllTicksIsStillInOrder) {
    std::string steps = "unit 1 h\ntest t\n=> Idle\n";
    for (int i = 0; i < 12; ++i)
        steps += "+1000000000000\n";
    const std::string vcd = WrittenRun(test::PumpTable().Document(), steps).Vcd;
    EXPECT_THAT(vcd, HasSubstr("#12000000000000\n"));
}

} // namespace
} // namespace orvane::run
