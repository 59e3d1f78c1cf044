// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/PressTable.h"

namespace orvane {

namespace {

PressAction StateMenuOfRow(RowNumber row) {
    if (row == kHeadRow)
        return PressAction::StateMenu;
    if (row == kEntryActionRow)
        return PressAction::EntryActionMenu;
    return row >= kFirstCellRow ? PressAction::TransitionMenu : PressAction::Nothing;
}

PressAction RowHeadEditor(RowNumber row) {
    if (row == kHeadRow)
        return PressAction::EditGeneralCode;
    return EventRows().Contains(row) ? PressAction::EditEvent : PressAction::Nothing;
}

} // namespace

PressAction ActionOfPress(Cell cell, PressButton button, PressModifiers modifiers) {
    const bool isRowHead = cell.State == kNoState;
    if (button == PressButton::Right) {
        if (!isRowHead)
            return StateMenuOfRow(cell.Row);
        return EventRows().Contains(cell.Row) ? PressAction::EventMenu : PressAction::Nothing;
    }
    if (button != PressButton::Left)
        return PressAction::Nothing;
    if (modifiers == PressModifiers::Shift && isRowHead)
        return PressAction::StepMachine;
    if (modifiers != PressModifiers::None)
        return PressAction::Nothing;
    if (isRowHead)
        return RowHeadEditor(cell.Row);
    return cell.Row >= kFirstCellRow ? PressAction::EditTarget : PressAction::EditState;
}

} // namespace orvane
