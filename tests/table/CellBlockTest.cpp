// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellBlock.h"

#include "table/CellBlockText.h"
#include "table/StructuralEdits.h"
#include "table/TableClipboard.h"
#include "table/TableOrder.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// States 1..3, events in rows 6, 7 and 9; row 8 has no name; the timeout row is shown, ELSE is not.
class CellBlockTest : public testing::Test {
  protected:
    CellBlockTest() {
        for (const auto& [state, name] : {std::pair(1, "Idle"), std::pair(2, "Run"), std::pair(3, "Stop")})
            Document.State(state).Name = name;
        for (const int row : {6, 7, 9})
            Document.Event(row).Name = "Event";
        Document.View.RowVisible.TimeTarget = 300;
        Document.State(1).Targets[6] = 2;
        Document.State(1).Actions[6] = ";go";
        Document.State(2).Targets[7] = 3;
        Document.State(2).Actions[6] = ";alone";
    }

    CellChoice Between(Cell a, Cell b) const { return ChoiceBetween(Document, a, b); }
    StateNumber Target(int row, int state) const { return Document.State(state).Targets[row]; }
    std::string Action(int row, int state) const { return Document.State(state).Actions[row]; }

    FsmDocument Document;
    TableClipboard Clipboard;
};

TEST_F(CellBlockTest, AChoiceHasTheCellsBetweenItsCornersButNoHiddenRow) {
    const CellChoice choice = Between({7, 3}, {4, 2});
    EXPECT_THAT(choice.Rows, ElementsAre(4, 6, 7));
    EXPECT_THAT(choice.States, ElementsAre(2, 3));
    EXPECT_EQ(choice.Size(), 6u);
}

TEST_F(CellBlockTest, HeadsAreNoPartOfAChoice) {
    EXPECT_TRUE(Between({3, 1}, {6, 1}).IsEmpty());
    EXPECT_TRUE(Between({6, 1}, {6, kNoState}).IsEmpty());
}

TEST_F(CellBlockTest, TheWholeChoiceLeavesOutWhatHasNoName) {
    Document.State(5).Name = "Far";
    const CellChoice all = WholeChoice(Document);
    EXPECT_THAT(all.Rows, ElementsAre(4, 6, 7, 9));
    EXPECT_THAT(all.States, ElementsAre(1, 2, 3, 5));
    EXPECT_TRUE(WholeChoice(FsmDocument()).IsEmpty());
}

TEST_F(CellBlockTest, OneCellFillsTheWholeChoice) {
    CopyCells(Document, Clipboard, Between({6, 1}, {6, 1}));
    EXPECT_EQ(Clipboard.Kind, ClipKind::Transition); // the pop-up menus paste it too
    EXPECT_EQ(LayDown(Document, *BlockToPaste(Clipboard), Between({6, 2}, {7, 3})), 0u);
    for (const int row : {6, 7}) {
        for (const int state : {2, 3}) {
            EXPECT_EQ(Target(row, state), 2);
            EXPECT_EQ(Action(row, state), ";go");
        }
    }
    EXPECT_EQ(Target(9, 2), 0);
}

TEST_F(CellBlockTest, ABlockIsLaidDownFromTheCornerAndPassesOverAnEventWithoutName) {
    CopyCells(Document, Clipboard, Between({6, 1}, {7, 2}));
    EXPECT_EQ(Clipboard.Kind, ClipKind::Block);
    EXPECT_EQ(LayDown(Document, *BlockToPaste(Clipboard), Between({7, 2}, {7, 2})), 2u);
    EXPECT_EQ(Target(7, 2), 2);
    EXPECT_EQ(Action(7, 2), ";go");
    EXPECT_EQ(Target(7, 3), 0);
    EXPECT_EQ(Action(7, 3), ";alone");
    EXPECT_EQ(Target(8, 2), 0); // no name: left clear
    EXPECT_EQ(Target(8, 3), 0);
    EXPECT_EQ(Target(9, 3), 0); // and what was meant for it went nowhere else
}

TEST_F(CellBlockTest, ABlockIsLaidOverTheRowsThatAreShown) {
    CopyCells(Document, Clipboard, Between({6, 1}, {7, 1}));
    EXPECT_EQ(LayDown(Document, *BlockToPaste(Clipboard), Between({4, 3}, {4, 3})), 0u);
    EXPECT_EQ(Target(4, 3), 2);
    EXPECT_EQ(Target(5, 3), 0); // hidden
    EXPECT_EQ(Target(6, 3), 0);
}

TEST_F(CellBlockTest, WhatFallsOffTheTableIsCounted) {
    Document.Event(54).Name = "Last";
    CopyCells(Document, Clipboard, Between({6, 1}, {7, 2}));
    EXPECT_EQ(LayDown(Document, *BlockToPaste(Clipboard), Between({54, 100}, {54, 100})), 3u);
    EXPECT_EQ(Target(54, 100), 2);
}

TEST_F(CellBlockTest, CuttingTakesTargetsAndActionsAway) {
    CutCells(Document, Clipboard, Between({6, 1}, {7, 2}));
    EXPECT_EQ(Target(6, 1), 0);
    EXPECT_EQ(Action(6, 1), "");
    EXPECT_EQ(Action(6, 2), "");
    EXPECT_EQ(Target(7, 2), 0);
    LayDown(Document, *BlockToPaste(Clipboard), Between({6, 1}, {6, 1}));
    EXPECT_EQ(Target(6, 1), 2);
    EXPECT_EQ(Action(6, 2), ";alone");
}

TEST_F(CellBlockTest, AnActionAloneLeavesTheTargetsOfTheCells) {
    CopyTransitionAction(Document, Clipboard, {6, 1});
    LayDown(Document, *BlockToPaste(Clipboard), Between({7, 2}, {7, 3}));
    EXPECT_EQ(Target(7, 2), 3);
    EXPECT_EQ(Action(7, 2), ";go");
    EXPECT_EQ(Target(7, 3), 0);
    EXPECT_EQ(Action(7, 3), ";go");
}

TEST_F(CellBlockTest, WhatIsNoTransitionIsNotPastedIntoCells) {
    CopyState(Document, Clipboard, 1);
    EXPECT_FALSE(BlockToPaste(Clipboard));
    CopyEvent(Document, Clipboard, 6);
    EXPECT_FALSE(BlockToPaste(Clipboard));
}

TEST_F(CellBlockTest, ACopiedBlockFollowsColumnsThatAreInserted) {
    CopyCells(Document, Clipboard, Between({6, 1}, {7, 2}));
    InsertState(Document, Clipboard, 1);
    EXPECT_EQ(Clipboard.ClipBlock.Cells[0].Target, StateNumber(3));
    EXPECT_EQ(Clipboard.ClipBlock.Cells[3].Target, StateNumber(4));
}

TEST_F(CellBlockTest, ACopiedBlockFollowsColumnsThatChangePlaces) {
    CopyCells(Document, Clipboard, Between({6, 1}, {7, 2}));
    Rearrange(Document, Clipboard, StateOrder::Swapping(2, 50));
    EXPECT_EQ(Clipboard.ClipBlock.Cells[0].Target, StateNumber(50));
    EXPECT_EQ(Clipboard.ClipBlock.Cells[1].Target, StateNumber(kNoState));
}

TEST_F(CellBlockTest, ACopiedBlockIsForgottenWithAStateThatItLeadsTo) {
    CopyCells(Document, Clipboard, Between({6, 1}, {7, 2}));
    DeleteState(Document, Clipboard, 1);
    EXPECT_EQ(Clipboard.Kind, ClipKind::Block);
    DeleteState(Document, Clipboard, 2); // the former 3
    EXPECT_EQ(Clipboard.Kind, ClipKind::Empty);
}

TEST_F(CellBlockTest, CellsAreTextWithTabsAndAStarForAnAction) {
    EXPECT_EQ(TextOfCells(Document, Between({6, 1}, {7, 2})), "2:Run*\t*\n\t3:Stop\n");
    Document.State(2).Name = "Two\twords";
    EXPECT_EQ(TextOfCells(Document, Between({6, 1}, {6, 1})), "2:Two words*\n");
}

TEST_F(CellBlockTest, TextIsReadAsNumbersAndNames) {
    const ReadBlock read = BlockOfText(Document, "3\t2:Anything*\r\n stop \t\r\n");
    ASSERT_TRUE(read.Block);
    EXPECT_EQ(read.Block->Columns, 2u);
    EXPECT_THAT(read.Block->Cells,
                ElementsAre(BlockCell{StateNumber(3), {}}, BlockCell{StateNumber(2), {}},
                            BlockCell{StateNumber(3), {}}, BlockCell{StateNumber(kNoState), std::string()}));
}

TEST_F(CellBlockTest, TextThatIsNoStateIsRefusedAsAWhole) {
    EXPECT_EQ(BlockOfText(Document, "1\tNowhere\t2").Refused, "Nowhere");
    EXPECT_EQ(BlockOfText(Document, "101").Refused, "101");
    Document.State(3).Name = "Run"; // two have the name now
    EXPECT_EQ(BlockOfText(Document, "Run").Refused, "Run");
}

TEST_F(CellBlockTest, ShortLinesLeaveTheirLastCellsAsTheyAre) {
    const ReadBlock read = BlockOfText(Document, "1\n2\t3");
    ASSERT_TRUE(read.Block);
    EXPECT_EQ(read.Block->Cells[1], BlockCell());
    EXPECT_EQ(read.Block->Rows(), 2u);
}

TEST_F(CellBlockTest, ATableThatGoesOutAndComesBackChangesNothing) {
    const FsmDocument before = Document;
    const CellChoice all = Between({4, 1}, {9, 3});
    const ReadBlock read = BlockOfText(Document, TextOfCells(Document, all));
    ASSERT_TRUE(read.Block);
    LayDown(Document, *read.Block, all);
    EXPECT_EQ(Document, before);
}

TEST_F(CellBlockTest, NoTextIsNoBlock) { EXPECT_THAT(BlockOfText(Document, "").Block->Cells, IsEmpty()); }

} // namespace
} // namespace orvane
