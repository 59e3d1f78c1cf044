// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestPlan.h"

#include "run/PumpTable.h"
#include "run/TestReader.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::PumpTable;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Texts(const std::vector<TestMessage>& messages) {
    std::vector<std::string> texts;
    for (const TestMessage& message : messages)
        texts.push_back(std::to_string(message.At.Line) + ":" + std::to_string(message.At.Column) + ": " +
                        message.Text);
    return texts;
}

std::vector<std::string> Slips(const FsmDocument& document, std::string_view text) {
    const TestReadResult read = ReadTestFile(text);
    EXPECT_THAT(Texts(read.Slips), IsEmpty());
    return Texts(PlanTests(read.File, document, "pump.zfsm").Slips);
}

std::vector<std::string> SlipsOfPump(std::string_view text) { return Slips(PumpTable().Document(), text); }

TEST(TestPlan, ANameThatIsNotThereIsToldWithTheNearestOne) {
    EXPECT_THAT(SlipsOfPump("test t\npulse Strt => Rum via Stp\n"),
                ElementsAre("2:7: no event is called \"Strt\" in pump.zfsm; did you mean \"Start\"?",
                            "2:15: no state is called \"Rum\" in pump.zfsm; did you mean \"Run\"?",
                            "2:23: no event is called \"Stp\" in pump.zfsm; did you mean \"Stop\"?"));
    EXPECT_THAT(
        SlipsOfPump("signal door\ntest t\non dor\n"),
        ElementsAre("3:4: no event or signal is called \"dor\" in pump.zfsm; did you mean \"door\"?"));
    EXPECT_THAT(SlipsOfPump("test t\n=> Idle timer T = 0\n"),
                ElementsAre("2:15: no timer of pump.zfsm has the id \"T\""));
    EXPECT_THAT(
        SlipsOfPump("test t\n=> #101 via #5\n"),
        ElementsAre("2:4: states have the numbers 1 to 100", "2:13: events have the numbers 6 to 54"));
}

TEST(TestPlan, AfterManySlipsNoMoreAreTold) {
    std::string text = "test t\n";
    for (int i = 0; i < 1000; ++i)
        text += "=> Rum\n";
    EXPECT_EQ(SlipsOfPump(text).size(), kMostSlips);
}

TEST(TestPlan, AmongEqualNamesTheNumberChooses) {
    test::SmallTable table = PumpTable();
    table.Name(2, "Idle");
    EXPECT_THAT(Slips(table.Document(), "test t\n=> Idle\n=> 2:Idle\n=> 3:Idle\n"),
                ElementsAre("2:4: 2 states are called \"Idle\" in pump.zfsm; write 1:Idle or 2:Idle",
                            "4:4: 2 states are called \"Idle\" in pump.zfsm; write 1:Idle or 2:Idle"));
    EXPECT_THAT(SlipsOfPump("test t\n=> 77:Idle\n"), IsEmpty()); // the name alone says which
}

TEST(TestPlan, NamesAreComparedAsDocumentText) {
    test::SmallTable table = PumpTable();
    table.Name(1, " K\xFChl "); // Windows-1252
    EXPECT_THAT(Slips(table.Document(), "test t\n=> K\xC3\xBChl\n"), IsEmpty());
    EXPECT_THAT(Slips(table.Document(), "test t\n=> K\xE2\x98\x83hl\n"), testing::SizeIs(1));
}

TEST(TestPlan, ANewNameIsRecognisedByTheNamesLine) {
    test::SmallTable table = PumpTable();
    table.Name(2, "Running");
    const TestReadResult read = ReadTestFile("names 1:Idle 2:Run e6:Start\ntest t\npulse Start => Run\n");
    const TestPlan plan = PlanTests(read.File, table.Document(), "pump.zfsm");
    EXPECT_THAT(plan.Slips, IsEmpty());
    ASSERT_EQ(plan.Renames.size(), 1U);
    EXPECT_EQ(plan.Renames[0].NewName, "Running");
    EXPECT_EQ(plan.Tests.at(0).Steps.at(0).Way, std::vector<StateNumber>{2});
}

TEST(TestPlan, ANameThatMovedToANumberOfAnotherIsNotTakenForANewOne) {
    test::SmallTable table = PumpTable();
    table.Name(1, "Run").Name(2, "Idle"); // exchanged, and nothing is called Wait any more
    EXPECT_THAT(Slips(table.Document(), "names 1:Idle 2:Run 2:Wait\ntest t\n=> Wait\n"), testing::SizeIs(1));
    EXPECT_THAT(Slips(table.Document(), "names 1:Idle 2:Run\ntest t\n=> Idle\n"), IsEmpty());
}

TEST(TestPlan, ATimeWithASuffixNeedsAUnitThatItIsAWholeNumberOf) {
    const auto wait = [](const std::string& head, const std::string& time) {
        const TestReadResult read = ReadTestFile(head + "\ntest t\n+" + time + " => Idle\n");
        const TestPlan plan = PlanTests(read.File, PumpTable().Document(), "pump.zfsm");
        return plan.Slips.empty() ? std::to_string(plan.Tests.at(0).Steps.at(0).Wait) : plan.Slips[0].Text;
    };
    EXPECT_EQ(wait("unit 0.1 s", "99"), "99");
    EXPECT_EQ(wait("unit 0.1 s", "9.9 s"), "99");
    EXPECT_EQ(wait("unit 0.1 s", "1.5 min"), "900");
    EXPECT_EQ(wait("unit 10 ms", "2 h"), "720000");
    EXPECT_EQ(wait("unit 0.1 s", "0.25 s"), "0.25 s is no whole number of units of 0.1 s");
    EXPECT_EQ(wait("", "3s"), "3 s needs to know how long a unit is; write \"unit 0.1 s\" or the like above");
    EXPECT_EQ(wait("unit 0.1 s", "1.0000001 s"), "1.0000001 s has too many digits; a time with a suffix has "
                                                 "at most 9 and is a whole number of microseconds");
    EXPECT_EQ(wait("", "1000000000001"),
              "1000000000001 is longer than the 1000000000000 units that a step may take");
    EXPECT_EQ(wait("unit 0 s", "5"), "a unit is longer than 0");
    EXPECT_EQ(wait("unit 3", "5"), "a unit is a time with ms, s, min or h, as in \"unit 0.1 s\"");
}

TEST(TestPlan, OnlyAVariableLimitIsSetInATest) {
    test::SmallTable table = PumpTable();
    EXPECT_THAT(
        Slips(table.Document(), "test t\nlimit Run = 5\nlimit Idle = 5\n"),
        ElementsAre("2:7: the limit of 2:Run is the constant \"100\"; only a variable limit is set in a test",
                    "3:7: 1:Idle has no timeout with a variable limit"));
    table.Timing(2, kStartVariable, ";load");
    EXPECT_THAT(Slips(table.Document(), "test t\nlimit Run = 16777215\n"), IsEmpty());
    EXPECT_THAT(Slips(table.Document(), "test t\nlimit Run = 16777216\n"),
                ElementsAre("2:13: a timer counts to 16777215"));
}

TEST(TestPlan, AConstantHasToBeALimitOfTheDocument) {
    test::SmallTable table = PumpTable();
    table.Timing(2, kStartConstant, " LONG ");
    EXPECT_THAT(Slips(table.Document(), "constant LONG = 30\n"), IsEmpty());
    EXPECT_THAT(Slips(table.Document(), "constant LOGN = 30\nconstant 100 = 1\n"),
                ElementsAre("1:10: no limit in pump.zfsm is the constant \"LOGN\"; did you mean \"LONG\"?",
                            "2:10: no limit in pump.zfsm is the constant \"100\""));
}

TEST(TestPlan, EventsThatFollowAreNotSwitched) {
    EXPECT_THAT(
        SlipsOfPump(
            "signal run\nevent Start = run\nevent Stop = not Start\ntest t\non Start pulse Stop run\n"),
        ElementsAre("5:4: the event \"Start\" follows from others; switch those",
                    "5:16: the event \"Stop\" follows from others; switch those"));
}

TEST(TestPlan, EventsFollowInTheOrderOfTheFileAndNeverFromThemselves) {
    EXPECT_THAT(SlipsOfPump("event Stop = not Stop\n"),
                ElementsAre("1:18: the event \"Stop\" cannot follow from itself"));
    EXPECT_THAT(SlipsOfPump("event Stop = not Start\nevent Start = E8\n"),
                ElementsAre("2:7: an event above follows from this one; say this one first"));
    EXPECT_THAT(SlipsOfPump("event Stop = E8\nevent Stop = E9\n"),
                ElementsAre("2:7: this is said twice in the file"));
}

TEST(TestPlan, ASignalThatHidesAnEventIsASlip) {
    EXPECT_THAT(
        SlipsOfPump("signal Start\n"),
        ElementsAre(
            "1:8: the signal \"Start\" is called like an event; write \"event Start = Start\" when the "
            "event follows from it"));
    EXPECT_THAT(SlipsOfPump("signal Start\nevent Start = Start\n"), IsEmpty());
}

} // namespace
} // namespace orvane::run
