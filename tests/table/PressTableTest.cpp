// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/PressTable.h"

#include "core/TableGeometry.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

PressAction Left(RowNumber row, StateNumber column, PressModifiers modifiers = PressModifiers::None) {
    return ActionOfPress({row, column}, PressButton::Left, modifiers);
}

PressAction Right(RowNumber row, StateNumber column) {
    return ActionOfPress({row, column}, PressButton::Right, PressModifiers::None);
}

TEST(PressTable, TheTopRowsOfAStateOpenItsEditor) {
    for (const int row : {0, 1, 2, 3})
        EXPECT_EQ(Left(row, 7), PressAction::EditState);
}

TEST(PressTable, CellsTakeATarget) {
    for (const RowNumber row : CellRows())
        EXPECT_EQ(Left(row, 100), PressAction::EditTarget);
}

TEST(PressTable, AModifierOnAStateColumnDoesNothing) {
    for (const int row : {0, 3, 4, 54}) {
        EXPECT_EQ(Left(row, 1, PressModifiers::Shift), PressAction::Nothing);
        EXPECT_EQ(Left(row, 1, PressModifiers::Other), PressAction::Nothing);
    }
}

TEST(PressTable, RowHeadsOpenTheGeneralCodeAndTheEvents) {
    EXPECT_EQ(Left(0, 0), PressAction::EditGeneralCode);
    for (const int row : {1, 2, 3, 4, 5})
        EXPECT_EQ(Left(row, 0), PressAction::Nothing);
    for (const RowNumber row : EventRows())
        EXPECT_EQ(Left(row, 0), PressAction::EditEvent);
}

TEST(PressTable, ShiftAloneOnARowHeadStepsTheMachine) {
    for (const int row : {0, 5, 6, 54})
        EXPECT_EQ(Left(row, 0, PressModifiers::Shift), PressAction::StepMachine);
    EXPECT_EQ(Left(6, 0, PressModifiers::Other), PressAction::Nothing);
}

TEST(PressTable, TheRightButtonPopsUpTheMenuOfTheRow) {
    EXPECT_EQ(Right(0, 1), PressAction::StateMenu);
    EXPECT_EQ(Right(1, 1), PressAction::EntryActionMenu);
    EXPECT_EQ(Right(2, 1), PressAction::Nothing);
    EXPECT_EQ(Right(3, 1), PressAction::Nothing);
    for (const RowNumber row : CellRows())
        EXPECT_EQ(Right(row, 1), PressAction::TransitionMenu);
    for (const int row : {0, 1, 2, 3, 4, 5})
        EXPECT_EQ(Right(row, 0), PressAction::Nothing);
    for (const RowNumber row : EventRows())
        EXPECT_EQ(Right(row, 0), PressAction::EventMenu);
}

TEST(PressTable, OtherButtonsDoNothing) {
    EXPECT_EQ(ActionOfPress({0, 0}, PressButton::Other, PressModifiers::None), PressAction::Nothing);
    EXPECT_EQ(ActionOfPress({6, 1}, PressButton::Other, PressModifiers::None), PressAction::Nothing);
}

} // namespace
} // namespace orvane
