// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestReader.h"

#include "run/TestWriter.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// "LINE:COLUMN: text" of each slip.
std::vector<std::string> Slips(std::string_view bytes) {
    std::vector<std::string> slips;
    for (const TestMessage& slip : ReadTestFile(bytes).Slips)
        slips.push_back(std::to_string(slip.At.Line) + ":" + std::to_string(slip.At.Column) + ": " +
                        slip.Text);
    return slips;
}

std::string SlipOfStep(const std::string& step) {
    const std::vector<std::string> slips = Slips("test t\n" + step + "\n");
    return slips.empty() ? "" : slips.front();
}

TestStep StepOf(const std::string& step) {
    const TestReadResult read = ReadTestFile("test t\n" + step);
    EXPECT_THAT(read.Slips, IsEmpty());
    return std::get<TestStep>(read.File.Lines.at(1).What);
}

TEST(TestReader, UnderstandsEveryKindOfLine) {
    EXPECT_THAT(Slips("machine \"my pump.zfsm\" ; comment\r\n"
                      "unit 0.1 s\n"
                      "\n"
                      "constant 3s = 30\n"
                      "signal a b \"c d\"\n"
                      "event E = not a and (b or \"c d\")\n"
                      "names 1:Idle 2:\"Two Words\" e6:Start\n"
                      "reading unstarted-since-power-on\n"
                      "   ; only a comment\n"
                      "test what it shows: \"quotes\" => and > signs\n"
                      "  on a b off E limit Run = 3 s\n"
                      "  => Idle\n"
                      "  +99 pulse \"on\" => 3:Idle => #4 via Timeout stays runs \"a b\" not runs x ran 2 "
                      "timer \"\" = 5\n"
                      "  timeout => Run again\n"
                      "  scan 3 => Run spins\n"),
                IsEmpty());
}

TEST(TestReader, ATestIsCalledByTheTextUpToTheComment) {
    const TestReadResult read = ReadTestFile("test  a \"b\" => c   ; d\n");
    EXPECT_EQ(std::get<TestHead>(read.File.Lines.at(0).What).Text, "a \"b\" => c");
    EXPECT_EQ(read.File.Lines.at(0).Comment, " d");
}

TEST(TestReader, AQuotedWordIsANameAndNoWordOfTheLanguage) {
    const TestStep step = StepOf("on \"off\" \"a \\\"b\\\\\" off c");
    ASSERT_EQ(step.Doings.size(), 2U);
    EXPECT_EQ(step.Doings[0].Inputs.at(0).Text, "off");
    EXPECT_EQ(step.Doings[0].Inputs.at(1).Text, "a \"b\\");
    EXPECT_EQ(step.Doings[1].Inputs.at(0).Text, "c");
}

TEST(TestReader, ANumberStandsInFrontOfAName) {
    const TestStep step = StepOf("=> 3:Idle => 12:\"Two Words\" => #7 => 3s");
    const std::vector<TestName>& way = step.Expect->Way;
    ASSERT_EQ(way.size(), 4U);
    EXPECT_EQ(way[0].Number, 3);
    EXPECT_EQ(way[0].Text, "Idle");
    EXPECT_EQ(way[1].Number, 12);
    EXPECT_EQ(way[1].Text, "Two Words");
    EXPECT_EQ(way[2].Number, 7);
    EXPECT_EQ(way[2].Text, "");
    EXPECT_EQ(way[3].Number, std::nullopt);
    EXPECT_EQ(way[3].Text, "3s");
}

TEST(TestReader, ATimeHasItsSuffixBehindItOrABlankAway) { EXPECT_EQ(StepOf("+3s"), StepOf("+ 3 s")); }

TEST(TestReader, PlacesCountCharactersAndNotBytes) {
    EXPECT_EQ(SlipOfStep("on \xC3\xBC\xE2\x82\xAC ,"), "2:7: nothing can be done by \",\"");
}

TEST(TestReader, SaysWhatIsWrongAndWhatWasProbablyMeant) {
    EXPECT_EQ(SlipOfStep("puls Start"), "2:1: no line begins with \"puls\"; did you mean \"pulse\"?");
    EXPECT_EQ(SlipOfStep("=> Idle vai Start"),
              "2:9: nothing can be expected by \"vai\"; did you mean \"via\"?");
    EXPECT_EQ(SlipOfStep("=> Idle not stays"), "2:13: behind \"not\" stands \"runs\"");
    EXPECT_EQ(SlipOfStep("=>"), "2:3: here should stand the name of a state");
    EXPECT_EQ(SlipOfStep("on"), "2:3: here should stand the name of an event or a signal");
    EXPECT_EQ(SlipOfStep("limit Run 3"), "2:11: \"=\" is missing behind the state whose limit it is");
    EXPECT_EQ(SlipOfStep("on \"a"), "2:4: the quote is not closed");
    EXPECT_EQ(SlipOfStep("on a > b"), "2:6: \">\" stands alone; an arrow is \"=>\"");
    EXPECT_EQ(SlipOfStep("on a\"b\""), "2:5: a quote stands in the middle of a word");
    EXPECT_EQ(SlipOfStep("on a \xFF"),
              "2:6: here is a byte that is not UTF-8; save the file in that encoding");
    EXPECT_EQ(SlipOfStep("+5 timeout"),
              "2:4: \"timeout\" and \"+\" both say how long to wait; one line takes one of them");
    EXPECT_EQ(SlipOfStep("pulse a scan"), "2:9: \"pulse\" is one scan by itself; use \"on\" with \"scan\"");
    EXPECT_EQ(SlipOfStep("scan 0"), "2:6: a number of scans is 1 to 1000000");
    EXPECT_EQ(SlipOfStep("=> Idle ran -1"),
              "2:13: here should stand how many texts ran, a whole number from 0 on, not \"-1\"");
}

TEST(TestReader, TimesAreWholeUnitsOrHaveASuffix) {
    for (const char* time : {"+-5", "+5d", "+1.", "+.5", "+1e3", "+\"5\"", "+1234567890123456"})
        EXPECT_THAT(SlipOfStep(time),
                    testing::StartsWith("2:2: a time is a whole number of units, or a number with"))
            << time;
    EXPECT_EQ(SlipOfStep("+0.5"),
              "2:2: a time without ms, s, min or h is a whole number of units, not \"0.5\"");
}

TEST(TestReader, TheHeadsHaveTheirSlips) {
    EXPECT_THAT(Slips("reading at-limt\n"),
                ElementsAre("1:9: there is no reading \"at-limt\"; did you mean \"at-limit\"?"));
    EXPECT_THAT(Slips("names Idle\n"),
                ElementsAre("1:7: names are written as 3:Idle for a state and e6:Start for an event"));
    EXPECT_THAT(Slips("event A = (b\n"),
                ElementsAre("1:13: \")\" is missing at the end of what is in parentheses"));
    EXPECT_THAT(Slips("unit 1 s 2\n"), ElementsAre("1:10: nothing is expected here, but there is \"2\""));
    EXPECT_THAT(Slips("test ; c\n"),
                ElementsAre("1:5: the test has no name; say behind \"test\" what it shows"));
    EXPECT_THAT(
        Slips("=> Idle\n"),
        ElementsAre("1:1: a step stands before the first test; begin one with \"test\" and what it shows"));
}

TEST(TestReader, EachLineHasItsOwnSlip) {
    EXPECT_THAT(Slips("test t\nfoo\n=> Idle\nbar\n"),
                ElementsAre(testing::StartsWith("2:1: "), testing::StartsWith("4:1: ")));
}

TEST(TestReader, AfterManySlipsTheRestIsNotLookedAt) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i)
        bytes += "?\n";
    EXPECT_EQ(Slips(bytes).size(), kMostSlips);
}

TEST(TestReader, AnExpressionThatIsNestedTooDeeplyIsASlip) {
    EXPECT_THAT(Slips("event A = " + std::string(100'000, '(') + "\n"),
                ElementsAre("1:111: the expression is nested too deeply"));
}

TEST(TestReader, AMarkOfTheEncodingIsNoText) { EXPECT_THAT(Slips("\xEF\xBB\xBFtest t\n"), IsEmpty()); }

TEST(TestReader, NotBindsBeforeAndAndAndBeforeOr) {
    const auto written = [](const char* expression) {
        const TestReadResult read = ReadTestFile("event E = " + std::string(expression) + "\n");
        return WriteTestFile(read.File);
    };
    EXPECT_EQ(written("not a and b or c"), "event E = not a and b or c\n");
    EXPECT_EQ(written("((not a) and b) or c"), "event E = not a and b or c\n");
    EXPECT_EQ(written("not (a and (b or c))"), "event E = not (a and (b or c))\n");
    EXPECT_EQ(written("a or (b or c)"), "event E = a or (b or c)\n");
}

} // namespace
} // namespace orvane::run
