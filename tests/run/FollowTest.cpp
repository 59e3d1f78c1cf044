// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Follow.h"

#include "run/PumpTable.h"
#include "table/StructuralEdits.h"

#include <gtest/gtest.h>

namespace orvane::run {
namespace {

FsmDocument Pump() { return test::PumpTable().Document(); }

TEST(Followed, NothingMovesWhenTargetsAndTextsOfCellsChange) {
    FsmDocument after = Pump();
    after.State(1).Targets[9] = 2;
    after.State(1).Actions[9] = ";new";
    const Followed followed(Pump(), after);
    EXPECT_EQ(followed.Row(6), RowNumber(6));
    EXPECT_EQ(followed.State(100), StateNumber(100));
}

TEST(Followed, RowsAndColumnsBehindAnInsertedOneMoveOn) {
    FsmDocument after = Pump();
    TableClipboard clipboard;
    InsertEvent(after, clipboard, 7);
    InsertState(after, clipboard, 1);
    const Followed followed(Pump(), after);
    EXPECT_EQ(followed.Row(6), RowNumber(6));
    EXPECT_EQ(followed.Row(7), RowNumber(8));
    EXPECT_EQ(followed.State(1), StateNumber(2));
    EXPECT_EQ(followed.State(2), StateNumber(3));
}

TEST(Followed, ADeletedRowIsGoneAndTheOthersMoveBack) {
    FsmDocument after = Pump();
    TableClipboard clipboard;
    DeleteEvent(after, clipboard, 6);
    DeleteState(after, clipboard, 1);
    const Followed followed(Pump(), after);
    EXPECT_EQ(followed.Row(6), RowNumber());
    EXPECT_EQ(followed.Row(7), RowNumber(6));
    EXPECT_EQ(followed.State(1), StateNumber());
    EXPECT_EQ(followed.State(2), StateNumber(1));
    EXPECT_FALSE(followed.Step(PulseOf(BitOf(6))));
    EXPECT_EQ(followed.Step(PulseOf(BitOf(7))), PulseOf(BitOf(6)));
    EXPECT_FALSE(followed.Step(LimitOf(1, 5)));
    EXPECT_EQ(followed.Step(LimitOf(2, 5)), LimitOf(1, 5));
    EXPECT_EQ(followed.Step(WaitFor(64)), WaitFor(64));
}

TEST(Followed, ARenamedOrEditedEventStaysWhereItIs) {
    FsmDocument after = Pump();
    after.Event(6).Name = "Go";
    after.State(2).Name = "Running";
    const Followed followed(Pump(), after);
    EXPECT_EQ(followed.Row(6), RowNumber(6));
    EXPECT_EQ(followed.Row(7), RowNumber(7));
    EXPECT_EQ(followed.State(2), StateNumber(2));
}

TEST(Followed, TheLastRowIsNoDifferentFromOthers) {
    FsmDocument before = Pump();
    before.Event(54).Name = "Last";
    FsmDocument after = before;
    after.Event(54).Name = "Renamed";
    EXPECT_EQ(Followed(before, after).Row(54), RowNumber(54));
    after = before;
    TableClipboard clipboard;
    InsertEvent(after, clipboard, 7); // drops the last one
    EXPECT_EQ(Followed(before, after).Row(54), RowNumber());
    EXPECT_EQ(Followed(before, after).Row(53), RowNumber(54));
}

TEST(Followed, EventsThatChangedPlacesAreFoundByTheirNames) {
    FsmDocument after = Pump();
    std::swap(after.Event(6), after.Event(7));
    const Followed followed(Pump(), after);
    EXPECT_EQ(followed.Row(6), RowNumber(7));
    EXPECT_EQ(followed.Row(7), RowNumber(6));
}

} // namespace
} // namespace orvane::run
