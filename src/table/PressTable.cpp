// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/PressTable.h"

#include "core/TableGeometry.h"

namespace orvane {

namespace {

PressAction StateMenuOfRow(int row) {
    if (row == kHeadRow)
        return PressAction::StateMenu;
    if (row == kEntryActionRow)
        return PressAction::EntryActionMenu;
    return row >= kFirstCellRow ? PressAction::TransitionMenu : PressAction::Nothing;
}

PressAction RowHeadEditor(int row) {
    if (row == kHeadRow)
        return PressAction::EditGeneralCode;
    return EventRows().Contains(row) ? PressAction::EditEvent : PressAction::Nothing;
}

} // namespace

PressAction ActionOfPress(int row, int column, PressButton button, PressModifiers modifiers) {
    const bool isRowHead = column == 0;
    if (button == PressButton::Right) {
        if (!isRowHead)
            return StateMenuOfRow(row);
        return EventRows().Contains(row) ? PressAction::EventMenu : PressAction::Nothing;
    }
    if (button != PressButton::Left)
        return PressAction::Nothing;
    if (modifiers == PressModifiers::Shift && isRowHead)
        return PressAction::StepMachine;
    if (modifiers != PressModifiers::None)
        return PressAction::Nothing;
    if (isRowHead)
        return RowHeadEditor(row);
    return row >= kFirstCellRow ? PressAction::EditTarget : PressAction::EditState;
}

} // namespace orvane
