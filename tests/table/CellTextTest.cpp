// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellText.h"

#include "core/BoundsError.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

// Every letter is as wide as the others.
const struct : TextMeasurer {
    Twips operator()(std::string_view text) const override { return 100 * static_cast<int>(text.size()); }
} WidthOf;

constexpr int kWide = 6000;

FsmDocument WideDocument() {
    FsmDocument document(kWide);
    document.View.Col0Width = kWide;
    return document;
}

std::string CellTextAt(const FsmDocument& document, int row, int column) {
    return CellText(document, {row, column}, WidthOf);
}

TEST(CellText, TheHeadOfTheTableIsTheNamePrefix) {
    FsmDocument document = WideDocument();
    document.General.FsmName = "PMP";
    EXPECT_EQ(CellTextAt(document, kHeadRow, 0), "PMP");
}

TEST(CellText, TheSpecialRowsHaveTheirHeads) {
    const FsmDocument document = WideDocument();
    EXPECT_EQ(CellTextAt(document, kExitActionRow, 0), "Exit Action");
    EXPECT_EQ(CellTextAt(document, kTimingModeRow, 0), "Timeout mode");
    EXPECT_EQ(CellTextAt(document, kTimeoutRow, 0), "Timeout target");
    EXPECT_EQ(CellTextAt(document, kElseRow, 0), "ELSE");
    EXPECT_EQ(CellTextAt(document, kEntryActionRow, 0), ForceLREventAction(kWide, WidthOf));
}

TEST(CellText, AnEventWithoutCodeShowsItsNameAndOneBlank) {
    FsmDocument document = WideDocument();
    document.Event(6).Name = "Start";
    document.Event(7).Name = "Stop";
    document.Event(7).Code = ";stop?";
    EXPECT_EQ(CellTextAt(document, 6, 0), "Start ");
    EXPECT_EQ(CellTextAt(document, 7, 0), "Stop");
    EXPECT_EQ(CellTextAt(document, 54, 0), " ");
}

TEST(CellText, EventNamesAreNotFittedButTheOtherHeadsAre) {
    FsmDocument document;
    document.View.Col0Width = 700;
    document.Event(6).Name = "AnEventWithALongName";
    document.Event(6).Code = ";";
    document.General.FsmName = "PUMPSTATION";
    EXPECT_EQ(CellTextAt(document, 6, 0), "AnEventWithALongName");
    EXPECT_EQ(CellTextAt(document, kHeadRow, 0), "PUMP..");
    EXPECT_EQ(CellTextAt(document, kElseRow, 0), "ELSE");
    EXPECT_EQ(CellTextAt(document, kTimingModeRow, 0), "Time..");
    EXPECT_EQ(CellTextAt(document, kEntryActionRow, 0), "Even..");
}

TEST(CellText, AStateHeadIsNumberAndName) {
    FsmDocument document = WideDocument();
    document.State(3).Name = "Idle ";
    EXPECT_EQ(CellTextAt(document, kHeadRow, 3), "3:Idle");
    EXPECT_EQ(CellTextAt(document, kHeadRow, 100), "100:");
}

TEST(CellText, ANameTooWideForItsColumnIsItsLongestFittingBeginningAndTwoDots) {
    FsmDocument document;
    document.State(7).Name = "Running";
    EXPECT_EQ(CellTextAt(document, kHeadRow, 7),
              "7:Runni.."); // 7 characters are narrower than 945 - 200 twips
    document.State(7).ColWidth = 250;
    EXPECT_EQ(CellTextAt(document, kHeadRow, 7), "");
}

TEST(CellText, EntryAndExitCodeShowTheirTabsAsBlanks) {
    FsmDocument document = WideDocument();
    document.State(1).EntryCode = "\tSet\tM1\r\n\tOn";
    document.State(1).ExitCode = "\tClr\tM1";
    EXPECT_EQ(CellTextAt(document, kEntryActionRow, 1), " Set M1\r\n On");
    EXPECT_EQ(CellTextAt(document, kExitActionRow, 1), " Clr M1");
}

TEST(CellText, TheTimingRowNamesTimerAndLimit) {
    FsmDocument document = WideDocument();
    StateRecord& state = document.State(2);
    state.TimerId = "T1";
    state.TimeConst = "100";
    state.TimingVar = ";variable";
    const char* const expected[] = {"", "Start T1/100", "Start T1/Var", "Cont T1/100", "Cont T1/Var"};
    for (int mode = 0; mode <= 4; ++mode) {
        state.TimingMode = mode;
        EXPECT_EQ(CellTextAt(document, kTimingModeRow, 2), expected[mode]);
    }
}

TEST(CellText, ATimingModeThatNobodyKnowsShowsAnEmptyCell) {
    StateRecord state;
    state.TimerId = "T1";
    for (const std::int32_t mode : {-1, 5, 255, 100000}) {
        state.TimingMode = mode;
        EXPECT_EQ(TimingText(state), "") << mode;
    }
}

TEST(CellText, ATransitionCellShowsItsTargetAndAStarForItsAction) {
    FsmDocument document = WideDocument();
    document.State(5).Name = "Busy";
    StateRecord& state = document.State(1);
    state.Targets[6] = 5;
    state.Actions[6] = ";act";
    state.Actions[7] = ";act";
    state.Targets[kTimeoutRow] = 5;
    state.Targets[kElseRow] = 9;
    EXPECT_EQ(CellTextAt(document, 6, 1), "5:Busy*");
    EXPECT_EQ(CellTextAt(document, 7, 1), "*");
    EXPECT_EQ(CellTextAt(document, 8, 1), "");
    EXPECT_EQ(CellTextAt(document, kTimeoutRow, 1), "5:Busy");
    EXPECT_EQ(CellTextAt(document, kElseRow, 1), "9:");
}

TEST(CellText, TheStarIsCutOffWithTheRest) {
    FsmDocument document;
    document.State(5).Name = "Bottle";
    document.State(1).Targets[6] = 5;
    document.State(1).Actions[6] = ";act";
    EXPECT_EQ(CellTextAt(document, 6, 1), "5:Bottl..");
}

// Such widths come in foreign documents.
TEST(CellText, TheSmallestAndTheLargestWidthsAreTakenAsTheyAre) {
    FsmDocument document;
    document.General.FsmName = "PMP";
    document.State(1).Name = "Idle";
    for (const std::int32_t width : {std::numeric_limits<std::int32_t>::min(), -1, 0}) {
        document.View.Col0Width = width;
        document.State(1).ColWidth = width;
        EXPECT_EQ(CellText(document, {0, 0}, WidthOf), "");
        EXPECT_EQ(CellText(document, {1, 0}, WidthOf), "");
        EXPECT_EQ(CellText(document, {0, 1}, WidthOf), "");
    }
    document.View.Col0Width = 100'000;
    document.State(1).ColWidth = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(CellText(document, {0, 0}, WidthOf), "PMP");
    EXPECT_EQ(CellText(document, {0, 1}, WidthOf), "1:Idle");
}

TEST(CellText, CellsOutsideTheTableAreRefused) {
    const FsmDocument document;
    for (const int column : {0, 1}) {
        EXPECT_THROW(CellTextAt(document, -1, column), BoundsError);
        EXPECT_THROW(CellTextAt(document, 55, column), BoundsError);
    }
    EXPECT_THROW(CellTextAt(document, 6, -1), BoundsError);
    EXPECT_THROW(CellTextAt(document, 6, 101), BoundsError);
}

TEST(EventActionHead, SpreadsOverTheColumn) {
    // 1890 - 200 - 1100 leaves 590: 5.9 blanks, so 6, and half of them less one on each side.
    EXPECT_EQ(ForceLREventAction(1890, WidthOf), "Event  |  Action");
    EXPECT_EQ(ForceLREventAction(1300 + 1200, WidthOf), "Event     |     Action");
}

TEST(EventActionHead, HalvesGoToTheEvenNumber) {
    // 4.5 blanks are 4, which leaves 1 on each side; 5.5 are 6.
    EXPECT_EQ(ForceLREventAction(1300 + 450, WidthOf), "Event | Action");
    EXPECT_EQ(ForceLREventAction(1300 + 550, WidthOf), "Event  |  Action");
    // 5 blanks: 1.5 on each side are 2; 7: 2.5 are 2 as well; 9: 3.5 are 4.
    EXPECT_EQ(ForceLREventAction(1300 + 500, WidthOf), "Event  |  Action");
    EXPECT_EQ(ForceLREventAction(1300 + 700, WidthOf), "Event  |  Action");
    EXPECT_EQ(ForceLREventAction(1300 + 900, WidthOf), "Event    |    Action");
}

TEST(EventActionHead, ANarrowColumnHasTheCompactHead) {
    for (const int width : {0, 200, 1300, 1300 + 349})
        EXPECT_EQ(ForceLREventAction(width, WidthOf), "Event | Action") << width;
    EXPECT_EQ(ForceLREventAction(1300 + 499, WidthOf), "Event  |  Action");
}

TEST(TargetText, IsEmptyWithoutATargetAndElseNumberAndName) {
    FsmDocument document;
    document.State(12).Name = "Wait ";
    EXPECT_EQ(TargetText(document, 0), "");
    EXPECT_EQ(TargetText(document, 12), "12:Wait ");
}

} // namespace
} // namespace orvane
