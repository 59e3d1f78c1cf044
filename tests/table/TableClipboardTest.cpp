// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TableClipboard.h"

#include "support/Property.h"
#include "support/RandomDocument.h"

namespace orvane {
namespace {

class TableClipboardTest : public testing::Test {
  protected:
    TableClipboardTest() {
        StateRecord& pump = Document.State(3);
        pump.Name = "Pump";
        pump.EntryCode = ";on";
        pump.ColWidth = 1500;
        pump.Targets[6] = 4;
        pump.Actions[6] = ";act";
        Document.State(5).Targets[7] = 9;
        Document.State(9).Targets[6] = 5;
        Document.Event(6).Name = "Start";
        Original = Document;
    }

    FsmDocument Document;
    FsmDocument Original;
    TableClipboard Clipboard;
};

TEST_F(TableClipboardTest, APastedStateOverwritesTheColumnWithItsWidthAndTransitions) {
    CopyState(Document, Clipboard, 3);
    EXPECT_EQ(Clipboard.Kind, ClipKind::State);
    PasteState(Document, Clipboard, 5);
    EXPECT_EQ(Document.State(5), Original.State(3));
}

TEST_F(TableClipboardTest, TransitionsOfOtherStatesIntoAPastedColumnAreUntouched) {
    CopyState(Document, Clipboard, 3);
    PasteState(Document, Clipboard, 5);
    Document.State(5) = Original.State(5);
    EXPECT_EQ(Document, Original);
}

TEST_F(TableClipboardTest, APastedEventBringsItsCellsInAllStates) {
    CopyEvent(Document, Clipboard, 6);
    EXPECT_EQ(Clipboard.Kind, ClipKind::Event);
    PasteEvent(Document, Clipboard, 7);
    EXPECT_EQ(Document.Event(7), Original.Event(6));
    for (const StateNumber state : StateNumbers()) {
        EXPECT_EQ(Document.State(state).Targets[7], Original.State(state).Targets[6]) << state;
        EXPECT_EQ(Document.State(state).Actions[7], Original.State(state).Actions[6]) << state;
    }
    EXPECT_EQ(Document.State(5).Targets[7], 0); // an empty cell overwrites too
}

TEST_F(TableClipboardTest, OnlyTheEntryActionOfACopiedEntryActionIsPasted) {
    CopyEntryAction(Document, Clipboard, 3);
    EXPECT_EQ(Clipboard.Kind, ClipKind::EntryAction);
    EXPECT_EQ(Clipboard.ClipState, Document.State(3)); // although the whole state was kept
    PasteEntryAction(Document, Clipboard, 5);
    EXPECT_EQ(Document.State(5).EntryCode, ";on");
    Document.State(5).EntryCode.clear();
    EXPECT_EQ(Document, Original);
}

TEST_F(TableClipboardTest, ACutEntryActionCanBePastedElsewhere) {
    CutEntryAction(Document, Clipboard, 3);
    EXPECT_EQ(Clipboard.Kind, ClipKind::EntryAction);
    EXPECT_EQ(Document.State(3).EntryCode, "");
    PasteEntryAction(Document, Clipboard, 3);
    EXPECT_EQ(Document, Original);
}

TEST_F(TableClipboardTest, DeletingAnEntryActionLeavesTheClipboardAlone) {
    CopyEntryAction(Document, Clipboard, 3);
    const TableClipboard before = Clipboard;
    DeleteEntryAction(Document, 3);
    EXPECT_EQ(Document.State(3).EntryCode, "");
    EXPECT_EQ(Clipboard, before);
}

TEST_F(TableClipboardTest, ACutTransitionLeavesAnEmptyCellAndIsRestoredByPastingElsewhere) {
    CutTransition(Document, Clipboard, {6, 3});
    EXPECT_EQ(Clipboard.Kind, ClipKind::Transition);
    EXPECT_EQ(Document.State(3).Targets[6], 0);
    EXPECT_EQ(Document.State(3).Actions[6], "");
    PasteTransition(Document, Clipboard, {kTimeoutRow, 8});
    EXPECT_EQ(Document.State(8).Targets[kTimeoutRow], 4);
    EXPECT_EQ(Document.State(8).Actions[kTimeoutRow], ";act");
}

TEST_F(TableClipboardTest, ACutActionLeavesItsTransition) {
    CutTransitionAction(Document, Clipboard, {6, 3});
    EXPECT_EQ(Clipboard.Kind, ClipKind::TransitionAction);
    EXPECT_EQ(Document.State(3).Targets[6], 4);
    EXPECT_EQ(Document.State(3).Actions[6], "");
}

TEST_F(TableClipboardTest, APastedActionLeavesTheTargetOfItsCell) {
    CopyTransitionAction(Document, Clipboard, {6, 3});
    PasteTransitionAction(Document, Clipboard, {7, 5});
    EXPECT_EQ(Document.State(5).Targets[7], 9);
    EXPECT_EQ(Document.State(5).Actions[7], ";act");
}

TEST_F(TableClipboardTest, TheActionOfACopiedTransitionCanBePastedAlone) {
    CopyTransition(Document, Clipboard, {6, 3});
    PasteTransitionAction(Document, Clipboard, {7, 5});
    EXPECT_EQ(Document.State(5).Targets[7], 9);
    EXPECT_EQ(Document.State(5).Actions[7], ";act");
}

TEST_F(TableClipboardTest, CopyingChangesNothingInTheDocument) {
    CopyState(Document, Clipboard, 3);
    CopyEvent(Document, Clipboard, 6);
    CopyEntryAction(Document, Clipboard, 3);
    CopyTransition(Document, Clipboard, {6, 3});
    CopyTransitionAction(Document, Clipboard, {6, 3});
    EXPECT_EQ(Document, Original);
}

TEST(TableClipboard, ACopiedEventOrStatePastedBackChangesNothing) {
    test::ExpectProperty({}, [] {
        const FsmDocument original = *test::AnyDocument();
        FsmDocument document = original;
        TableClipboard clipboard;
        const int row = *rc::gen::inRange(kFirstEventRow, kLastRow + 1);
        CopyEvent(document, clipboard, row);
        PasteEvent(document, clipboard, row);
        const int state = *rc::gen::inRange(1, kStateCount + 1);
        CopyState(document, clipboard, state);
        PasteState(document, clipboard, state);
        RC_ASSERT(document == original);
    });
}

constexpr PasteItems kAllOff{};
constexpr PasteItems kAllOn{true, true, true, true, true};

TEST(PasteItems, AnEmptyClipboardTurnsEverythingOff) {
    EXPECT_EQ(EnablePasteItems(ClipKind::Empty, kAllOn), kAllOff);
}

TEST(PasteItems, AStateLeavesTheTransitionItemsAsTheyAre) {
    EXPECT_EQ(EnablePasteItems(ClipKind::State, kAllOff), (PasteItems{true, false, false, false, false}));
    EXPECT_EQ(EnablePasteItems(ClipKind::State, kAllOn), (PasteItems{true, false, false, true, true}));
}

TEST(PasteItems, AnEventLeavesTheActionItemAsItIs) {
    EXPECT_EQ(EnablePasteItems(ClipKind::Event, kAllOff), (PasteItems{false, true, false, false, false}));
    EXPECT_EQ(EnablePasteItems(ClipKind::Event, kAllOn), (PasteItems{false, true, false, false, true}));
}

TEST(PasteItems, AnEntryActionTurnsTheOthersOff) {
    for (const PasteItems& present : {kAllOff, kAllOn})
        EXPECT_EQ(EnablePasteItems(ClipKind::EntryAction, present),
                  (PasteItems{false, false, true, false, false}));
}

TEST(PasteItems, ATransitionCanBePastedWholeOrItsActionAlone) {
    for (const PasteItems& present : {kAllOff, kAllOn})
        EXPECT_EQ(EnablePasteItems(ClipKind::Transition, present),
                  (PasteItems{false, false, false, true, true}));
}

TEST(PasteItems, AnActionCanOnlyBePastedAsAnAction) {
    for (const PasteItems& present : {kAllOff, kAllOn})
        EXPECT_EQ(EnablePasteItems(ClipKind::TransitionAction, present),
                  (PasteItems{false, false, false, false, true}));
}

} // namespace
} // namespace orvane
