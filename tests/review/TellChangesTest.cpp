// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/TellChanges.h"

#include "review/Compare.h"
#include "review/DiffHtml.h"
#include "review/ShowText.h"
#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using testing::HasSubstr;
using testing::Not;

SmallTable PumpOfTwoSpeeds() {
    SmallTable table;
    table.Name(1, "Idle", ";idle").Name(2, "Run", ";run\r\n;fast").Name(3, "Stop", ";stop");
    table.Cell(1, 6, 2).Cell(2, 7, 3, ";slow").Cell(3, 8, 1).Cell(2, kTimeoutRow, 1);
    return table;
}

std::string Told(const SmallTable& oldOne, const SmallTable& newOne) {
    const std::string text = DiffText(review::Compare(oldOne.Document(), newOne.Document()),
                                      oldOne.Document(), newOne.Document(), "a -> b");
    return text.substr(text.find('\n') + 1);
}

TEST(TellChanges, NamesWhatCameWentAndHasAnotherName) {
    SmallTable newOne = PumpOfTwoSpeeds();
    newOne.Name(3, "Halt", ";stop").Name(4, "Fill", ";fill").Cell(4, 9, 2, ";open").Cell(1, 6, 4);
    EXPECT_EQ(Told(PumpOfTwoSpeeds(), newOne), "1:Idle, E6: -> 4:Fill (was 2:Run)\n"
                                               "state 3:Halt renamed from Stop (guessed)\n"
                                               "state 4:Fill added\n"
                                               "  +entry action\n"
                                               "  +  ;fill\n"
                                               "  +E9: -> 2:Run\n"
                                               "  +  ;open\n");
}

TEST(TellChanges, ShowsCodeAsHunksAndWordsBesideTheOldOnes) {
    SmallTable newOne = PumpOfTwoSpeeds();
    newOne.Name(2, "Run", ";run\r\n;slow").Cell(2, 7, 0, ";slow");
    newOne.Document().State(2).Tooltip = "runs";
    newOne.Document().General.FsmName = "Q";
    newOne.Document().View.Polytask = true;
    newOne.Document().State(2).ColWidth = 1000;
    newOne.Document().State(90).ColWidth = 1000;
    EXPECT_EQ(Told(PumpOfTwoSpeeds(), newOne), "machine, name: Q (was P)\n"
                                               "machine, Polytask: yes (was no)\n"
                                               "state 2:Run, comment: runs (was empty)\n"
                                               "state 2:Run, entry action\n"
                                               "  @@ -1,2 +1,2 @@\n"
                                               "   ;run\n"
                                               "  -;fast\n"
                                               "  +;slow\n"
                                               "state 2:Run, column width: 1000 (was 945)\n"
                                               "2:Run, E7: -> none (was 3:Stop)\n"
                                               "empty column 90, width: 1000 (was 945)\n");
}

TEST(TellChanges, OneLineSaysWhatWasRenumbered) {
    SmallTable newOne;
    newOne.Name(1, "Idle", ";idle").Name(3, "Run", ";run\r\n;fast").Name(4, "Stop", ";stop").Name(2, "New");
    newOne.Cell(1, 6, 3).Cell(3, 7, 4, ";slow").Cell(4, 8, 1).Cell(3, kTimeoutRow, 1);
    EXPECT_EQ(Told(PumpOfTwoSpeeds(), newOne), "renumbered: states 2..3 are 3..4\nstate 2:New added\n");
    EXPECT_EQ(Told(newOne, PumpOfTwoSpeeds()), "renumbered: states 3..4 are 2..3\nstate 2:New removed\n");
}

TEST(TellChanges, OneThatWasRenumberedIsNotSeveral) {
    SmallTable newOne;
    newOne.Name(1, "Idle", ";idle").Name(2, "Run", ";run\r\n;fast").Name(4, "Stop", ";stop").Name(3, "New");
    newOne.Cell(1, 6, 2).Cell(2, 7, 4, ";slow").Cell(4, 8, 1).Cell(2, kTimeoutRow, 1);
    EXPECT_EQ(Told(PumpOfTwoSpeeds(), newOne), "renumbered: state 3 is 4\nstate 3:New added\n");
}

TEST(TellChanges, AMoveIsToldWithTheOldNumber) {
    SmallTable newOne = PumpOfTwoSpeeds();
    std::swap(newOne.Document().Event(6), newOne.Document().Event(9));
    newOne.Cell(1, 6, 0).Cell(1, 9, 2);
    EXPECT_THAT(Told(PumpOfTwoSpeeds(), newOne), HasSubstr("event 9:E6 moved, was 6\n"));
}

TEST(TellChanges, NothingToTellIsAnEmptyText) {
    EXPECT_EQ(DiffText(review::Compare(PumpOfTwoSpeeds().Document(), PumpOfTwoSpeeds().Document()),
                       PumpOfTwoSpeeds().Document(), PumpOfTwoSpeeds().Document(), "a -> b"),
              "");
}

TEST(TellChanges, ControlCharactersDoNotReachTheTerminal) {
    SmallTable newOne = PumpOfTwoSpeeds();
    newOne.Document().State(2).Tooltip = "a\x1B[31m\r\nb\xFC";
    newOne.Name(1, "Idle", ";idle\r\n\tOn\x07");
    const std::string told = Told(PumpOfTwoSpeeds(), newOne);
    EXPECT_THAT(told, HasSubstr("comment: a\\x1B[31m\\x0D\\x0Ab\xC3\xBC (was empty)\n"));
    EXPECT_THAT(told, HasSubstr("  +\tOn\\x07\n"));
}

TEST(DiffHtml, IsAPageWithSignsAndEscapedTexts) {
    SmallTable newOne = PumpOfTwoSpeeds();
    newOne.Name(4, "<Fill> & more").Cell(4, 9, 2, ";a<b");
    const std::string html = DiffHtml(review::Compare(PumpOfTwoSpeeds().Document(), newOne.Document()),
                                      PumpOfTwoSpeeds().Document(), newOne.Document(), "a -> b");
    EXPECT_THAT(html, HasSubstr("<h1>a -&gt; b: 1 change</h1>"));
    EXPECT_THAT(html,
                HasSubstr("<tr class=\"came\"><td>+</td><td>state 4:&lt;Fill&gt; &amp; more added<pre>"));
    EXPECT_THAT(html, HasSubstr("<span class=\"p\">+  ;a&lt;b</span>"));
    EXPECT_THAT(html, Not(HasSubstr(";a<b")));
}

TEST(ShowText, HasNamesInPlaceOfNumbers) {
    SmallTable table = PumpOfTwoSpeeds();
    table.Timing(2, 1, "100").Cell(3, 9, 7);
    EXPECT_EQ(review::ShowText(table.Document()), "machine P\n"
                                                  "event E6\n  code:\n    ;test\n"
                                                  "event E7\n  code:\n    ;test\n"
                                                  "event E8\n  code:\n    ;test\n"
                                                  "event E9\n  code:\n    ;test\n"
                                                  "state Idle\n"
                                                  "  entry action:\n    ;idle\n"
                                                  "  on E6 -> Run\n"
                                                  "state Run\n"
                                                  "  entry action:\n    ;run\n    ;fast\n"
                                                  "  timeout mode: 1\n"
                                                  "  constant time limit: 100\n"
                                                  "  on Timeout -> Idle\n"
                                                  "  on E7 -> Stop\n"
                                                  "    ;slow\n"
                                                  "state Stop\n"
                                                  "  entry action:\n    ;stop\n"
                                                  "  on E8 -> Idle\n"
                                                  "  on E9 -> #7\n"
                                                  "empty column\nempty column\nempty column\n"
                                                  "state #7\n");
}

TEST(ShowText, OfOneMoreStateHasOnlyItsLinesMore) {
    SmallTable newOne;
    newOne.Name(1, "Idle", ";idle").Name(3, "Run", ";run\r\n;fast").Name(4, "Stop", ";stop").Name(2, "New");
    newOne.Cell(1, 6, 3).Cell(3, 7, 4, ";slow").Cell(4, 8, 1).Cell(3, kTimeoutRow, 1);
    std::string text = review::ShowText(newOne.Document());
    text.erase(text.find("state New\n"), std::string_view("state New\n").size());
    EXPECT_EQ(text, review::ShowText(PumpOfTwoSpeeds().Document()));
}

TEST(ShowText, NumbersTellApartWhatHasTheSameName) {
    SmallTable table;
    table.Name(1, "Wait").Name(2, "Wait").Name(3, " Run ").Cell(3, 6, 2);
    const std::string text = review::ShowText(table.Document());
    EXPECT_THAT(text, HasSubstr("state Wait #1\nstate Wait #2\nstate Run\n  name: \" Run \"\n"));
    EXPECT_THAT(text, HasSubstr("  on E6 -> Wait #2\n"));
}

} // namespace
} // namespace orvane::test
