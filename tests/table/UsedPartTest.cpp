// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/UsedPart.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

class UsedPartTest : public testing::Test {
  protected:
    UsedPartTest() {
        Document.State(2).Name = "First";
        Document.State(5).Name = "Last";
        Document.Event(6).Name = "A";
        Document.Event(8).Name = "B";
        Document.Event(20).Code = ";no name";
    }

    FsmDocument Document;
};

TEST_F(UsedPartTest, TheUsedColumnsAreThoseWithSomethingInThem) {
    EXPECT_EQ(FirstUsedState(Document), 2);
    EXPECT_EQ(LastUsedState(Document), 5);
    EXPECT_EQ(FirstUsedState(FsmDocument()), 1);
    EXPECT_EQ(LastUsedState(FsmDocument()), 1);
}

TEST_F(UsedPartTest, TheFirstCellIsInTheFirstRowThatIsShown) {
    EXPECT_EQ(FirstCell(Document), (Cell{6, 1}));
    Document.View.RowVisible.Else = 300;
    EXPECT_EQ(FirstCell(Document), (Cell{kElseRow, 1}));
}

TEST_F(UsedPartTest, TheLastCellIsAtTheLastNamedEventOrTransition) {
    EXPECT_EQ(LastUsedCell(Document), (Cell{8, 5}));
    Document.State(3).Targets[10] = 2;
    EXPECT_EQ(LastUsedCell(Document), (Cell{10, 5}));
    Document.State(3).Actions[12] = ";act";
    EXPECT_EQ(LastUsedCell(Document), (Cell{12, 5}));
    EXPECT_EQ(LastUsedCell(FsmDocument()), (Cell{6, 1}));
}

TEST_F(UsedPartTest, TheCellBelowIsInTheNextRowThatTakesATransition) {
    EXPECT_EQ(CellBelow(Document, {6, 3}), (Cell{8, 3}));
    EXPECT_EQ(CellBelow(Document, {8, 3}), (Cell{8, 3}));
    EXPECT_EQ(CellBelow(Document, {kTimeoutRow, 3}), (Cell{6, 3})); // ELSE is hidden
    EXPECT_EQ(CellBelow(Document, {kLastRow, 3}), (Cell{kLastRow, 3}));
}

TEST_F(UsedPartTest, TheFirstDifferenceIsToldWithItsPlace) {
    FsmDocument after = Document;
    EXPECT_EQ(FirstDifference(Document, after), std::nullopt);
    after.Event(6).LastTab = 1; // no undo keeps it
    EXPECT_EQ(FirstDifference(Document, after), std::nullopt);
    after.General.FsmName = "PMP";
    EXPECT_EQ(FirstDifference(Document, after), Cell{});
    after.Event(8).Code = ";test";
    EXPECT_EQ(FirstDifference(Document, after), (Cell{8, kNoState}));
    after.State(5).Actions[8] = ";act";
    EXPECT_EQ(FirstDifference(Document, after), (Cell{8, 5}));
    after.State(5).TimerId = "T";
    EXPECT_EQ(FirstDifference(Document, after), (Cell{kTimingModeRow, 5}));
    after.State(5).EntryCode = ";in";
    EXPECT_EQ(FirstDifference(Document, after), (Cell{kEntryActionRow, 5}));
}

TEST_F(UsedPartTest, AColumnIsTheOnlyOneThatDiffersUnlessOthersShowItToo) {
    const auto afterwards = [this](const auto& change) {
        FsmDocument after = Document;
        change(after);
        return OnlyColumnThatDiffers(Document, after);
    };
    EXPECT_EQ(afterwards([](FsmDocument&) {}), std::nullopt);
    EXPECT_EQ(afterwards([](FsmDocument& after) { after.State(5).Targets[8] = 1; }), StateNumber(5));
    EXPECT_EQ(afterwards([](FsmDocument& after) { after.State(5).ExitCode = ";out"; }), StateNumber(5));
    EXPECT_EQ(afterwards([](FsmDocument& after) { after.State(5).Name = "Other"; }), std::nullopt);
    EXPECT_EQ(
        afterwards([](FsmDocument& after) { after.State(5).Targets[8] = after.State(6).Targets[8] = 1; }),
        std::nullopt);
    EXPECT_EQ(afterwards([](FsmDocument& after) {
                  after.State(5).Targets[8] = 1;
                  after.Event(8).Name = "Other";
              }),
              std::nullopt);
    EXPECT_EQ(afterwards([](FsmDocument& after) {
                  after.State(5).Targets[8] = 1;
                  after.General.FsmName = "Other";
              }),
              std::nullopt);
}

} // namespace
} // namespace orvane
