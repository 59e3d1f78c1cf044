// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoundsError.h"
#include "table/StructuralEdits.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const UserMessage kNoRoom{.Text = "Sorry, there is no room left to insert a new column",
                          .Title = "We have a problem here, Housten",
                          .Icon = MessageIcon::Critical,
                          .Buttons = MessageButtons::Ok};

FsmDocument WithNames(int lastState) {
    FsmDocument document;
    for (int state = 1; state <= lastState; ++state)
        document.State(state).Name = "S" + std::to_string(state);
    return document;
}

TEST(InsertState, ColumnsUpToTheFreeOneMoveRightAndTheirTargetsFollow) {
    FsmDocument document = WithNames(99); // only column 100 is free
    for (int target = 1; target <= 50; ++target)
        document.State(1).Targets[kFirstCellRow + target - 1] = static_cast<std::int16_t>(target);
    for (int target = 51; target <= 99; ++target)
        document.State(99).Targets[kFirstCellRow + target - 51] = static_cast<std::int16_t>(target);
    TableClipboard clipboard;
    EXPECT_EQ(InsertState(document, clipboard, 6), std::nullopt);
    for (int state = 1; state <= 5; ++state)
        EXPECT_EQ(document.State(state).Name, "S" + std::to_string(state));
    EXPECT_EQ(document.State(6), document.StateTemplate());
    for (int state = 7; state <= 100; ++state)
        EXPECT_EQ(document.State(state).Name, "S" + std::to_string(state - 1));
    for (int target = 1; target <= 50; ++target)
        EXPECT_EQ(document.State(1).Targets[kFirstCellRow + target - 1], target < 6 ? target : target + 1);
    for (int target = 51; target <= 99; ++target)
        EXPECT_EQ(document.State(100).Targets[kFirstCellRow + target - 51], target + 1);
}

TEST(InsertState, TheFreeColumnIsTheLastOneAndWhatLiesBehindItStays) {
    FsmDocument document = WithNames(100);
    document.State(20) = document.StateTemplate();
    document.State(50) = document.StateTemplate();
    document.State(1).Targets[6] = 49;
    document.State(1).Targets[7] = 51;
    TableClipboard clipboard;
    EXPECT_EQ(InsertState(document, clipboard, 10), std::nullopt);
    EXPECT_EQ(document.State(21), document.StateTemplate()); // the free column 20 moved along
    EXPECT_EQ(document.State(50).Name, "S49");
    EXPECT_EQ(document.State(51).Name, "S51");
    EXPECT_EQ(document.State(1).Targets[6], 50);
    EXPECT_EQ(document.State(1).Targets[7], 51);
}

TEST(InsertState, ATimingModeOrAnActionDoesNotKeepAColumnFromBeingFree) {
    FsmDocument document = WithNames(99);
    document.State(100).TimingMode = 2;
    document.State(100).Actions[6] = ";act";
    document.State(100).ColWidth = 2000;
    TableClipboard clipboard;
    EXPECT_EQ(InsertState(document, clipboard, 1), std::nullopt);
    EXPECT_EQ(document.State(100).Name, "S99");
    EXPECT_EQ(document.State(100).TimingMode, 0);
}

TEST(InsertState, EveryTextAndEveryTargetKeepsAColumnInUse) {
    const auto blocks = [](auto fill) {
        FsmDocument document = WithNames(99);
        fill(document.State(100));
        TableClipboard clipboard;
        return InsertState(document, clipboard, 99).has_value();
    };
    EXPECT_TRUE(blocks([](StateRecord& state) { state.Name = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.Tooltip = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.EntryCode = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.ExitCode = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.TimeConst = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.TimingVar = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.TimerId = "x"; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.Targets[kFirstCellRow] = 1; }));
    EXPECT_TRUE(blocks([](StateRecord& state) { state.Targets[kLastRow] = 1; }));
    EXPECT_FALSE(blocks([](StateRecord&) {}));
}

TEST(InsertState, IsRefusedWhenNoColumnBehindIsFree) {
    FsmDocument document = WithNames(100);
    const FsmDocument original = document;
    TableClipboard clipboard;
    clipboard.Kind = ClipKind::Event;
    const TableClipboard copied = clipboard;
    for (const StateNumber state : StateNumbers())
        EXPECT_EQ(InsertState(document, clipboard, state), kNoRoom) << state;
    EXPECT_EQ(document, original);
    EXPECT_EQ(clipboard, copied);
}

TEST(InsertState, AtTheLastColumnThereIsNoRoomEvenInAnEmptyTable) {
    FsmDocument document;
    TableClipboard clipboard;
    EXPECT_EQ(InsertState(document, clipboard, 100), kNoRoom);
}

TEST(InsertState, ForgetsACopiedEventAndNothingElse) {
    for (const ClipKind kind : {ClipKind::Empty, ClipKind::State, ClipKind::EntryAction, ClipKind::Transition,
                                ClipKind::TransitionAction}) {
        FsmDocument document;
        TableClipboard clipboard;
        clipboard.Kind = kind;
        InsertState(document, clipboard, 1);
        EXPECT_EQ(clipboard.Kind, kind);
    }
    FsmDocument document;
    TableClipboard clipboard;
    CopyEvent(document, clipboard, 6);
    InsertState(document, clipboard, 1);
    EXPECT_EQ(clipboard.Kind, ClipKind::Empty);
    EXPECT_EQ(EnablePasteItems(clipboard.Kind, {.Event = true}), PasteItems());
}

TEST(InsertState, TheClipboardsTargetsFollow) {
    FsmDocument document = WithNames(8);
    TableClipboard clipboard;
    clipboard.Kind = ClipKind::Transition;
    clipboard.ClipTarget = 7;
    clipboard.ClipState.Targets[6] = 8;
    clipboard.ClipState.Targets[7] = 2;
    InsertState(document, clipboard, 6);
    EXPECT_EQ(clipboard.ClipTarget, 8);
    EXPECT_EQ(clipboard.ClipState.Targets[6], 9);
    EXPECT_EQ(clipboard.ClipState.Targets[7], 2);
}

TEST(StateColumns, ATransitionFollowsItsTargetThroughInsertionAndDeletion) {
    FsmDocument document = WithNames(8);
    document.State(5).Targets[6] = 7;
    TableClipboard clipboard;
    InsertState(document, clipboard, 6);
    EXPECT_EQ(document.State(5).Targets[6], 8);
    DeleteState(document, clipboard, 6);
    EXPECT_EQ(document.State(5).Targets[6], 7);
}

TEST(DeleteState, TransitionsToTheDeletedStateLeadToTheOneBehindIt) {
    FsmDocument document = WithNames(8);
    document.State(1).Targets[6] = 4;
    document.State(1).Targets[7] = 5;
    document.State(1).Targets[8] = 3;
    TableClipboard clipboard;
    DeleteState(document, clipboard, 4);
    EXPECT_EQ(document.State(4).Name, "S5");
    EXPECT_EQ(document.State(1).Targets[6], 4);
    EXPECT_EQ(document.State(1).Targets[7], 4);
    EXPECT_EQ(document.State(1).Targets[8], 3);
}

TEST(DeleteState, LeavesColumn100AsItWasAndACopyOfItInColumn99) {
    FsmDocument document = WithNames(100);
    document.State(100).Targets[6] = 50;
    document.State(99).Targets[6] = 50;
    const StateRecord last = document.State(100);
    TableClipboard clipboard;
    DeleteState(document, clipboard, 10);
    EXPECT_EQ(document.State(100), last);
    EXPECT_EQ(document.State(99), last); // its targets are those of column 100, not renumbered
    EXPECT_EQ(document.State(98).Name, "S99");
    EXPECT_EQ(document.State(98).Targets[6], 49);
}

TEST(DeleteState, Of100RenumbersAndMovesNothing) {
    FsmDocument document = WithNames(100);
    document.State(1).Targets[6] = 100;
    const FsmDocument original = document;
    TableClipboard clipboard;
    DeleteState(document, clipboard, 100);
    EXPECT_EQ(document, original);
}

TEST(DeleteState, ForgetsACopiedTransitionToTheStateAndACopiedEvent) {
    const auto kindAfter = [](ClipKind kind, std::int16_t target) {
        FsmDocument document;
        TableClipboard clipboard;
        clipboard.Kind = kind;
        clipboard.ClipTarget = target;
        DeleteState(document, clipboard, 4);
        return clipboard.Kind;
    };
    EXPECT_EQ(kindAfter(ClipKind::Transition, 4), ClipKind::Empty);
    EXPECT_EQ(kindAfter(ClipKind::Transition, 5), ClipKind::Transition);
    EXPECT_EQ(kindAfter(ClipKind::Event, 0), ClipKind::Empty);
    for (const ClipKind kind : {ClipKind::State, ClipKind::EntryAction, ClipKind::TransitionAction})
        EXPECT_EQ(kindAfter(kind, 4), kind);
}

TEST(DeleteState, TheClipboardsTargetsFollow) {
    FsmDocument document;
    TableClipboard clipboard;
    clipboard.Kind = ClipKind::Transition;
    clipboard.ClipTarget = 7;
    clipboard.ClipState.Targets[6] = 100;
    DeleteState(document, clipboard, 4);
    EXPECT_EQ(clipboard.ClipTarget, 6);
    EXPECT_EQ(clipboard.ClipState.Targets[6], 99);
}

TEST(StateColumns, NumbersThatAreNoStatesAreRefusedAsAFaultOfTheCaller) {
    FsmDocument document;
    TableClipboard clipboard;
    for (const int state : {-1, 0, 101}) {
        EXPECT_THROW(InsertState(document, clipboard, state), BoundsError);
        EXPECT_THROW(DeleteState(document, clipboard, state), BoundsError);
    }
}

} // namespace
} // namespace orvane
