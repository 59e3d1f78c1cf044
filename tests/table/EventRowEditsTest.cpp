// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoundsError.h"
#include "table/StructuralEdits.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(InsertEvent, EverythingBelowMovesDownByOneRow) {
    FsmDocument document;
    document.Event(8) = {"Stop", ";stop?", "tip", 1};
    document.State(2).Targets[8] = 5;
    document.State(2).Actions[8] = ";act";
    document.State(2).Targets[7] = 4;
    document.State(2).Targets[kElseRow] = 3;
    TableClipboard clipboard;
    EXPECT_EQ(InsertEvent(document, clipboard, 8), std::nullopt);
    EXPECT_EQ(document.Event(9), (EventRecord{"Stop", ";stop?", "tip", 1}));
    EXPECT_EQ(document.Event(8), EventRecord());
    const StateRecord& state = document.State(2);
    EXPECT_EQ(state.Targets[9], 5);
    EXPECT_EQ(state.Actions[9], ";act");
    EXPECT_EQ(state.Targets[8], 0);
    EXPECT_EQ(state.Actions[8], "");
    EXPECT_EQ(state.Targets[7], 4);
    EXPECT_EQ(state.Targets[kElseRow], 3);
}

TEST(InsertEvent, TheCopiedStateMovesWithTheRows) {
    FsmDocument document;
    TableClipboard clipboard;
    clipboard.ClipState.Targets[8] = 5;
    clipboard.ClipState.Actions[8] = ";act";
    InsertEvent(document, clipboard, 6);
    EXPECT_EQ(clipboard.ClipState.Targets[9], 5);
    EXPECT_EQ(clipboard.ClipState.Actions[9], ";act");
    EXPECT_EQ(clipboard.ClipState.Targets[8], 0);
}

TEST(InsertEvent, IsRefusedWhileAStateHasATransitionInTheBottomRow) {
    for (const int row : {6, 30, 54}) {
        FsmDocument document;
        document.State(40).Targets[kLastRow] = 1;
        document.State(41).Targets[kLastRow] = 1;
        const FsmDocument original = document;
        TableClipboard clipboard;
        clipboard.ClipState.Targets[8] = 5;
        const TableClipboard copied = clipboard;
        EXPECT_EQ(InsertEvent(document, clipboard, row),
                  UserMessage{"Sorry, you can't insert an event row because at least\r\n"
                              "one state (40) has a transition in the very bottom cell.\r\n"
                              "and inserting a row involves moving everything down a row."});
        EXPECT_EQ(document, original);
        EXPECT_EQ(clipboard, copied);
    }
}

TEST(InsertEvent, AtTheBottomRowDropsTheOldBottomRow) {
    FsmDocument document;
    document.Event(54).Name = "Last";
    document.State(1).Actions[54] = ";an action alone does not block";
    TableClipboard clipboard;
    EXPECT_EQ(InsertEvent(document, clipboard, 54), std::nullopt);
    EXPECT_EQ(document, FsmDocument());
}

TEST(InsertEvent, RowsThatHoldNoEventsAreRefusedAsAFaultOfTheCaller) {
    FsmDocument document;
    TableClipboard clipboard;
    for (const int row : {-1, 0, kTimeoutRow, kElseRow, 55}) {
        EXPECT_THROW(InsertEvent(document, clipboard, row), BoundsError);
        EXPECT_THROW(DeleteEvent(document, clipboard, row), BoundsError);
    }
    EXPECT_EQ(document, FsmDocument());
}

TEST(DeleteEvent, EverythingBelowMovesUpByOneRow) {
    FsmDocument document;
    document.Event(9) = {"Stop", ";stop?", "tip", 1};
    document.State(2).Targets[9] = 5;
    document.State(2).Actions[9] = ";act";
    document.State(2).Targets[kElseRow] = 3;
    TableClipboard clipboard;
    DeleteEvent(document, clipboard, 8);
    EXPECT_EQ(document.Event(8), (EventRecord{"Stop", ";stop?", "tip", 1}));
    EXPECT_EQ(document.Event(9), EventRecord());
    EXPECT_EQ(document.State(2).Targets[8], 5);
    EXPECT_EQ(document.State(2).Actions[8], ";act");
    EXPECT_EQ(document.State(2).Targets[9], 0);
    EXPECT_EQ(document.State(2).Targets[kElseRow], 3);
}

TEST(DeleteEvent, IsAskedAboutWhereSomeStateHasATransition) {
    FsmDocument document;
    for (const StateNumber state : StateNumbers())
        document.State(state).Targets[8] = 1;
    EXPECT_EQ(QuestionBeforeDeleteEvent(document, 8),
              (UserMessage{.Text = "The event row contains one or more state transitions.\r\n"
                                   "Are you quite sure you want to delete it?",
                           .Title = "Careful!",
                           .Icon = MessageIcon::Warning,
                           .Buttons = MessageButtons::YesNo}));
    EXPECT_EQ(QuestionBeforeDeleteEvent(document, 7), std::nullopt);
    EXPECT_EQ(QuestionBeforeDeleteEvent(document, 9), std::nullopt);
    TableClipboard clipboard;
    DeleteEvent(document, clipboard, 8);
    EXPECT_EQ(document, FsmDocument());
}

TEST(DeleteEvent, ARowWithActionsOnlyGoesWithoutAQuestion) {
    FsmDocument document;
    document.Event(8).Name = "Stop";
    document.State(2).Actions[8] = ";act";
    TableClipboard clipboard;
    EXPECT_EQ(QuestionBeforeDeleteEvent(document, 8), std::nullopt);
    DeleteEvent(document, clipboard, 8);
    EXPECT_EQ(document, FsmDocument());
}

TEST(DeleteEvent, TheActionOfTheBottomRowMovesUpAndStaysAsWell) {
    FsmDocument document;
    document.Event(54).Name = "Last";
    document.State(2).Targets[54] = 7;
    document.State(2).Actions[54] = ";act";
    TableClipboard clipboard;
    DeleteEvent(document, clipboard, 53);
    EXPECT_EQ(document.Event(53).Name, "Last");
    EXPECT_EQ(document.Event(54), EventRecord());
    EXPECT_EQ(document.State(2).Targets[53], 7);
    EXPECT_EQ(document.State(2).Actions[53], ";act");
    EXPECT_EQ(document.State(2).Targets[54], 0);
    EXPECT_EQ(document.State(2).Actions[54], ";act");
}

TEST(DeleteEvent, OfTheBottomRowLeavesItsAction) {
    FsmDocument document;
    document.Event(54).Name = "Last";
    document.State(2).Targets[54] = 7;
    document.State(2).Actions[54] = ";act";
    TableClipboard clipboard;
    DeleteEvent(document, clipboard, 54);
    EXPECT_EQ(document.Event(54), EventRecord());
    EXPECT_EQ(document.State(2).Targets[54], 0);
    EXPECT_EQ(document.State(2).Actions[54], ";act");
}

TEST(DeleteEvent, TheCopiedStateMovesWithTheRowsAndLosesItsBottomAction) {
    FsmDocument document;
    TableClipboard clipboard;
    clipboard.ClipState.Targets[54] = 5;
    clipboard.ClipState.Actions[54] = ";act";
    DeleteEvent(document, clipboard, 8);
    EXPECT_EQ(clipboard.ClipState.Targets[53], 5);
    EXPECT_EQ(clipboard.ClipState.Actions[53], ";act");
    EXPECT_EQ(clipboard.ClipState.Targets[54], 0);
    EXPECT_EQ(clipboard.ClipState.Actions[54], "");
}

} // namespace
} // namespace orvane
