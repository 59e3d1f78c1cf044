// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/HoverHint.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::optional<Hint> Prose(const std::string& text) { return Hint{text, true}; }
std::optional<Hint> Code(const std::string& text) { return Hint{text, false}; }

class HoverHintTest : public testing::Test {
  protected:
    HoverHintTest() {
        State.Tooltip = "Waits for water";
        State.EntryCode = "\tSet\tM1";
        State.ExitCode = "\tClr\tM1";
        Document.State(5).Name = "Busy";
        Document.State(5).Tooltip = "Pumps";
    }

    std::optional<Hint> HintAt(int row, int column, bool shiftHeld = false) const {
        return HoverHint(Document, {row, column}, shiftHeld);
    }

    FsmDocument Document;
    StateRecord& State = Document.State(1);
};

TEST_F(HoverHintTest, AnEmptyDocumentHasHintsOnlyForTimingAndTheSpecialHeads) {
    const FsmDocument empty;
    for (int row = 0; row < kTableRows; ++row) {
        EXPECT_EQ(HoverHint(empty, {row, 1}, false).has_value(), row == kTimingModeRow) << row;
        EXPECT_EQ(HoverHint(empty, {row, 0}, false).has_value(), row <= kElseRow) << row;
    }
}

TEST_F(HoverHintTest, AStateHeadTellsItsTooltipWhetherShiftIsHeldOrNot) {
    EXPECT_EQ(HintAt(0, 1), Code("Waits for water"));
    EXPECT_EQ(HintAt(0, 1, true), Code("Waits for water"));
}

TEST_F(HoverHintTest, ActionsShowTheirCodeUnlessShiftIsHeld) {
    EXPECT_EQ(HintAt(1, 1), Code("\tSet\tM1"));
    EXPECT_EQ(HintAt(2, 1), Code("\tClr\tM1"));
    for (const int row : {1, 2, 3})
        EXPECT_EQ(HintAt(row, 1, true), std::nullopt) << row;
}

TEST_F(HoverHintTest, TheTimingRowExplainsTheModeAndNamesTheTimer) {
    State.TimeConst = "100";
    State.TimingVar = "\tLoad\tLimit";
    const std::string defaultTimer = "\r\nUses default timer";
    EXPECT_EQ(HintAt(3, 1), Prose(defaultTimer));
    State.TimingMode = 1;
    EXPECT_EQ(HintAt(3, 1), Prose("Starts timing on entering state. Times out after a constant time of 100 "
                                  "system ticks." +
                                  defaultTimer));
    State.TimingMode = 2;
    EXPECT_EQ(HintAt(3, 1), Prose("Starts timing on entering state. Times out after a variable time accessed "
                                  "with: \r\n\r\n\tLoad\tLimit" +
                                  defaultTimer));
    State.TimerId = "T7";
    State.TimingMode = 3;
    EXPECT_EQ(HintAt(3, 1), Prose("Continues timing started in a previous state. Times out after a constant "
                                  "time of 100 system ticks.\r\nUses timer T7"));
    State.TimingMode = 4;
    EXPECT_EQ(HintAt(3, 1), Prose("Continues timing started in a previous state. Times out after avariable "
                                  "time accessed with: \r\n\r\n\tLoad\tLimit\r\nUses timer T7"));
    State.TimingMode = 99;
    EXPECT_EQ(HintAt(3, 1), Prose("\r\nUses timer T7"));
}

TEST_F(HoverHintTest, ATransitionWithoutActionSaysWhereItGoes) {
    State.Targets[6] = 5;
    EXPECT_EQ(HintAt(6, 1), Prose("Go to state 5:Busy\r\nPumps"));
    State.Actions[6] = "  ";
    EXPECT_EQ(HintAt(6, 1), Prose("Go to state 5:Busy\r\nPumps"));
}

TEST_F(HoverHintTest, ATransitionWithAnActionShowsTheActionFirst) {
    State.Targets[kTimeoutRow] = 5;
    State.Actions[kTimeoutRow] = "\tSet\tM2";
    EXPECT_EQ(HintAt(4, 1), Prose("\tSet\tM2\r\nThen go to state 5:Busy\r\nPumps"));
    EXPECT_EQ(HintAt(4, 1, true), HintAt(4, 1));
}

TEST_F(HoverHintTest, AnActionWithoutTargetIsShownAsCode) {
    State.Actions[kElseRow] = "\tSet\tM2";
    EXPECT_EQ(HintAt(5, 1), Code("\tSet\tM2"));
}

TEST_F(HoverHintTest, TheHeadsOfTheSpecialRowsExplainThem) {
    EXPECT_EQ(HintAt(0, 0), Prose("This will pre-fix all line labels in the automatically generated code. "));
    EXPECT_EQ(
        HintAt(1, 0),
        Prose("This COLUMN contains events that are to be recognised and acted upon. The pink cells define "
              "individual events. You can click on a pink cell and then edit its underlying content, "
              "thereby fully defining the event.\r\n\r\nThis ROW contains actions to be taken on entering "
              "each state. This will typically be turning an output on or off. The green cells define "
              "actions. You can click on a green cell and then edit its underlying content."));
    EXPECT_EQ(HintAt(2, 0), Code("Not implemented! "));
    EXPECT_EQ(HintAt(3, 0), Prose("This row determines the timeout modes for each state "));
    EXPECT_EQ(HintAt(4, 0), Prose("This row sets the target state if a state times out "));
    EXPECT_EQ(
        HintAt(5, 0),
        Prose("A transition specified in this row is always executed if no other event/condition is met "));
    EXPECT_EQ(HintAt(5, 0, true), HintAt(5, 0));
}

TEST_F(HoverHintTest, AnEventShowsItsCodeOrWithoutCodeItsTooltip) {
    Document.Event(6).Tooltip = "The float switch";
    EXPECT_EQ(HintAt(6, 0), Prose("The float switch"));
    Document.Event(6).Code = "\tTest\tI1";
    EXPECT_EQ(HintAt(6, 0), Code("\tTest\tI1"));
    EXPECT_EQ(HintAt(6, 0, true), std::nullopt);
}

} // namespace
} // namespace orvane
