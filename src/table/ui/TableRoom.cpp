// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableRoom.h"

#include "kit/AnsiString.h"
#include "kit/UserMessageBox.h"
#include "kit/frmMyToolTip.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "table/CellEdit.h"
#include "table/PressTable.h"
#include "table/ui/CellEditor.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/HoverHints.h"
#include "table/ui/TableGrid.h"

#include <QCursor>
#include <QMainWindow>

namespace orvane {

namespace {

constexpr auto kOwnCommands = std::to_array<Command>({Command::Undo,
                                                      Command::Redo,
                                                      Command::ShowExitAction,
                                                      Command::ShowElse,
                                                      Command::ShowTimingMode,
                                                      Command::ShowTimeTarget,
                                                      Command::Polytask,
                                                      Command::CopyState,
                                                      Command::PasteState,
                                                      Command::InsertState,
                                                      Command::DeleteState,
                                                      Command::SetCurrentState,
                                                      Command::InsertEvent,
                                                      Command::DeleteEvent,
                                                      Command::CopyEvent,
                                                      Command::PasteEvent,
                                                      Command::CopyAction,
                                                      Command::CutAction,
                                                      Command::PasteAction,
                                                      Command::CopyTransition,
                                                      Command::CutTransition,
                                                      Command::PasteTransition,
                                                      Command::CopyEntryAction,
                                                      Command::PasteEntryAction,
                                                      Command::DeleteEntryAction,
                                                      Command::CutEntryAction});

} // namespace

TableRoom::TableRoom(const RoomPlace& place)
    : session_(place.Open),
      window_(place.Window),
      grid_(std::make_unique<TableGrid>(place.Open, &place.Window)),
      typing_(place.Open, *grid_, place.Window),
      commands_(place.Open, place.Window),
      frmMyToolTip_(new frmMyToolTip(&place.Window)) {
    window_.setCentralWidget(grid_.get());
    ConnectGrid();
    grid_->View().setFocus();
}

TableRoom::~TableRoom() = default;

void TableRoom::ConnectGrid() {
    FsmGridView& view = grid_->View();
    connect(&view, &FsmGridView::CellPressed, this, &TableRoom::PressGrid);
    connect(&view, &FsmGridView::ShiftChanged, this, [this](bool held) { session_.HoldShift(held); });
    connect(&view, &FsmGridView::EnterPressed, this, [this] { typing_.BeginCellEdit(session_.Pressed()); });
    connect(&grid_->Editor(), &CellEditor::CommitWanted, this, [this] { typing_.CommitCellEdit(); });
    connect(&grid_->Editor(), &CellEditor::textChanged, this, [this] { session_.TellDraft(); });
    connect(&grid_->Hints(), &HoverHints::HintWanted, this,
            [this](const QString& text, bool wrap) { frmMyToolTip_->Display(text, wrap, QCursor::pos()); });
    connect(&grid_->Hints(), &HoverHints::HintGone, frmMyToolTip_, &frmMyToolTip::UnDisplay);
}

std::span<const Command> TableRoom::Commands() const { return kOwnCommands; }

void TableRoom::Run(Command command) {
    switch (command) {
    case Command::Undo:
        return Step(session_.Undo());
    case Command::Redo:
        return Step(session_.Redo());
    case Command::SetCurrentState:
        return session_.SetCurrentState(session_.Pressed().State);
    default:
        return commands_.Run(command);
    }
}

void TableRoom::Step(std::vector<std::string> faults) {
    for (const std::string& fault : faults)
        Tell(&window_, FromAnsi(fault));
}

void TableRoom::Prepare(const CommandEntry& next) {
    if (next.Typed == Typing::IsTaken)
        typing_.Finish();
    else if (next.Typed == Typing::IsDropped)
        typing_.Abandon();
}

ObserverRank TableRoom::Rank() const { return ObserverRank::Table; }

void TableRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Moved || change.Kind == ChangeKind::Ran)
        return ShowWhereTheUserIs();
    if (change.Kind == ChangeKind::Judged)
        return grid_->Model().ShowFindings(session_.Findings());
    if (change.Kind == ChangeKind::Replaced)
        ShowAnotherDocument();
    if (change.RowsForced || change.Kind == ChangeKind::RowsToggled)
        grid_->ApplyRowVisibility();
    grid_->Draw(change.Where);
    if (change.Kind == ChangeKind::Edited)
        grid_->View().ShowChangesNow(); // before the program is written, which the disk can take its time for
}

void TableRoom::ShowAnotherDocument() {
    typing_.Abandon();
    grid_->Hints().ClearHoverEffects();
    ShowWhereTheUserIs();
}

void TableRoom::ShowWhereTheUserIs() {
    grid_->Hints().SetShiftHeld(session_.ShiftHeld());
    grid_->Model().SetCurrentState(session_.CurrentState());
    grid_->Model().ShowRun(session_.Run());
}

void TableRoom::PressGrid(const GridPress& press) {
    grid_->TestForColumWidthChange();
    const Cell cell = press.Place;
    session_.Press(cell);
    if (cell.State == kNoState)
        typing_.Abandon();
    switch (ActionOfPress(cell, press.Button, press.Modifiers)) {
    case PressAction::Nothing:
        return;
    case PressAction::EditState:
        typing_.Abandon();
        [[fallthrough]];
    case PressAction::EditEvent:
    case PressAction::EditGeneralCode:
        Q_EMIT EditWanted(cell);
        return;
    case PressAction::EditTarget:
        return typing_.BeginCellEdit(cell);
    case PressAction::StepMachine:
        StepMachine(cell.Row);
        if (EventRows().Contains(cell.Row))
            Q_EMIT EventFired(cell.Row);
        return;
    case PressAction::StateMenu:
        return PopUp(Command::StateMenu, press);
    case PressAction::EntryActionMenu:
        return PopUp(Command::EntryActionMenu, press);
    case PressAction::TransitionMenu:
        return PopUp(Command::TransitionMenu, press);
    case PressAction::EventMenu:
        return PopUp(Command::EventMenu, press);
    }
}

void TableRoom::PopUp(Command menu, const GridPress& press) {
    frmMyToolTip_->UnDisplay(); // it would lie under the menu
    session_.EnablePasteItems();
    Q_EMIT MenuWanted(menu, press.GlobalPosition);
}

// Fires the event of this row: the machine goes where the current state's transition leads.
void TableRoom::StepMachine(RowNumber row) {
    const StateNumber target = StepTarget(session_.Document(), {row, session_.CurrentState()});
    if (target == kNoState)
        return;
    grid_->Hints().HideNextState();
    session_.SetCurrentState(target);
    grid_->Hints().ShowNextState({row, target});
}

void TableRoom::ShowPlace(Cell place) {
    grid_->View().CellRect(place); // brings the cell into view
    grid_->View().setCurrentIndex(IndexOf(grid_->Model(), place));
    window_.raise();
    window_.activateWindow();
    grid_->View().setFocus();
}

} // namespace orvane
