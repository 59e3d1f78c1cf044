// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableRoom.h"

#include "kit/AnsiString.h"
#include "kit/UserMessageBox.h"
#include "kit/frmMyToolTip.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "table/CellEdit.h"
#include "table/UsedPart.h"
#include "table/ui/CellEditor.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/HoverHints.h"
#include "table/ui/TableGrid.h"
#include "table/ui/TableKeys.h"
#include "table/ui/frmChooseTarget.h"
#include "table/ui/frmGoTo.h"

#include <QAction>
#include <QCursor>
#include <QMainWindow>
#include <QScopedValueRollback>

namespace orvane {

TableRoom::TableRoom(const RoomPlace& place)
    : session_(place.Open),
      window_(place.Window),
      grid_(std::make_unique<TableGrid>(place.Open, &place.Window)),
      typing_(place.Open, *grid_, place.Window),
      keys_(new TableKeys(place.Open, grid_->View())),
      frmChooseTarget_(new frmChooseTarget(place.Open.Document(), grid_->View())),
      commands_(place.Open, place.Window),
      cells_(place.Open),
      frmMyToolTip_(new frmMyToolTip(&place.Window)) {
    window_.setCentralWidget(grid_.get());
    ConnectGrid();
    ConnectKeys();
    grid_->View().setFocus();
}

TableRoom::~TableRoom() = default;

void TableRoom::ConnectGrid() {
    FsmGridView& view = grid_->View();
    connect(&view, &FsmGridView::CellPressed, this, &TableRoom::PressGrid);
    connect(&view, &FsmGridView::ShiftChanged, this, [this](bool held) { session_.HoldShift(held); });
    connect(&view, &FsmGridView::EnterPressed, this, [this] { typing_.BeginCellEdit(session_.Pressed()); });
    connect(&grid_->Editor(), &CellEditor::CommitWanted, this, [this] { typing_.CommitCellEdit(); });
    connect(&grid_->Editor(), &CellEditor::EnterPressed, this, [this] { typing_.CommitByEnter(); });
    connect(&grid_->Editor(), &CellEditor::textChanged, this, [this] { session_.TellDraft(); });
    connect(&grid_->Hints(), &HoverHints::HintWanted, this,
            [this](const QString& text, bool wrap) { frmMyToolTip_->Display(text, wrap, QCursor::pos()); });
    connect(&grid_->Hints(), &HoverHints::HintGone, frmMyToolTip_, &frmMyToolTip::UnDisplay);
    connect(&grid_->Hints(), &HoverHints::HintChanged, frmMyToolTip_, &frmMyToolTip::Follow);
    connect(&grid_->Editor(), &CellEditor::OpenChanged, &grid_->Hints(), &HoverHints::SetQuiet);
    connect(frmChooseTarget_, &frmChooseTarget::OpenChanged, &grid_->Hints(), &HoverHints::SetQuiet);
}

// The keys of some commands are heard where the table has the focus, and nowhere else.
void TableRoom::AddOwnKeys() {
    for (const CommandEntry& entry : kCommands) {
        if (entry.Where != HeardIn::TheTable)
            continue;
        if (auto* item = window_.findChild<QAction*>(QLatin1String(QByteArrayView(entry.Name))))
            grid_->View().addAction(item);
    }
}

void TableRoom::ConnectKeys() {
    AddOwnKeys();
    connect(keys_, &TableKeys::EditWanted, this, &TableRoom::EditByKey);
    connect(keys_, &TableKeys::Typed, this, &TableRoom::TypeInto);
    connect(frmChooseTarget_, &frmChooseTarget::Chosen, this,
            [this](Cell cell, StateNumber target) { typing_.StoreTarget(cell, target); });
}

// As a press of the mouse, but that Enter still opens the cell that was pressed last.
void TableRoom::EditByKey(Cell cell, PressModifiers modifiers) {
    const PressAction action = ActionOfPress(cell, PressButton::Left, modifiers);
    if (action == PressAction::StepMachine)
        FireEventOf(cell.Row);
    else if (action == PressAction::EditTarget && TakesTransition(cell))
        typing_.BeginCellEdit(cell, BegunBy::Key);
    else if (action != PressAction::Nothing && action != PressAction::EditTarget)
        Q_EMIT EditWanted(cell);
}

void TableRoom::TypeInto(Cell cell, const QString& text) {
    if (text.front() < QLatin1Char('0') || text.front() > QLatin1Char('9'))
        ChooseTargetOf(cell, text);
    else if (TakesTransition(cell))
        typing_.BeginByTyping(cell, text);
}

void TableRoom::ChooseTargetOf(Cell cell, const QString& text) {
    if (!TakesTransition(cell) || grid_->View().CellRect(cell).isEmpty())
        return;
    frmMyToolTip_->UnDisplay();
    frmChooseTarget_->Begin(cell, text);
}

bool TableRoom::TakesTransition(Cell cell) {
    if (!HasTransition(cell))
        Q_EMIT Said(tr("Only a cell where an event's row and a state's column meet leads to a state."));
    else if (!CanEditCell(session_.Document(), cell.Row))
        Q_EMIT Said(tr("This row has no event yet. Name one first: press its pink cell, or F2 there."));
    else
        return true;
    return false;
}

void TableRoom::GoTo() {
    if (frmGoTo_ == nullptr)
        frmGoTo_ = new frmGoTo(session_.Document(), &window_);
    if (const std::optional<Cell> place = frmGoTo_->Ask())
        ShowPlace(*place);
}

std::span<const Command> TableRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::Undo,
                                                             Command::Redo,
                                                             Command::CutCell,
                                                             Command::CopyCell,
                                                             Command::PasteCell,
                                                             Command::ClearCell,
                                                             Command::ChooseTarget,
                                                             Command::GoTo,
                                                             Command::ZoomIn,
                                                             Command::ZoomOut,
                                                             Command::ZoomReset,
                                                             Command::FitColumns,
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
    return commands;
}

void TableRoom::Run(Command command) {
    switch (command) {
    case Command::Undo:
        return Step(&Session::Undo);
    case Command::Redo:
        return Step(&Session::Redo);
    case Command::CutCell:
    case Command::CopyCell:
    case Command::PasteCell:
    case Command::ClearCell:
        return Tell(cells_.Run(command, keys_->Choice()));
    case Command::ChooseTarget:
        return ChooseTargetOf(session_.CurrentCell(), {});
    case Command::GoTo:
        return GoTo();
    case Command::ZoomIn:
        return grid_->Zoom(1);
    case Command::ZoomOut:
        return grid_->Zoom(-1);
    case Command::ZoomReset:
        return grid_->Zoom(0);
    case Command::FitColumns:
        return grid_->FitColumns();
    case Command::SetCurrentState:
        return session_.SetCurrentState(session_.Pressed().State);
    default:
        return RunOnPressedCell(command);
    }
}

// Several transitions on the clipboard are laid down from the pressed cell on.
void TableRoom::RunOnPressedCell(Command command) {
    const Cell pressed = session_.Pressed();
    cells_.Follow(command, pressed);
    if (command == Command::PasteTransition && session_.Clipboard().Kind == ClipKind::Block)
        return Tell(cells_.PasteOwn(ChoiceBetween(session_.Document(), pressed, pressed)));
    commands_.Run(command);
}

void TableRoom::Tell(const QString& text) {
    if (!text.isEmpty())
        Q_EMIT Said(text);
}

// Goes to where something is another now, so that nothing changes out of sight.
void TableRoom::Step(std::vector<std::string> (Session::*step)()) {
    const FsmDocument before = session_.Document();
    const std::vector<std::string> faults = [&] {
        const QScopedValueRollback stepping(steppedFrom_, &before);
        return (session_.*step)();
    }();
    for (const std::string& fault : faults)
        orvane::Tell(&window_, FromAnsi(fault));
    const std::optional<Cell> place = FirstDifference(before, session_.Document());
    if (place && !grid_->View().CellRect(*place).isEmpty())
        grid_->View().setCurrentIndex(IndexOf(grid_->Model(), *place));
}

void TableRoom::Prepare(const CommandEntry& next) {
    if (next.Typed != Typing::Stays)
        frmChooseTarget_->Abandon();
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
    if (change.Kind == ChangeKind::Replaced || change.Kind == ChangeKind::RowsToggled)
        keys_->Forget();
    if (change.RowsForced || change.Kind == ChangeKind::RowsToggled)
        grid_->ApplyRowVisibility();
    grid_->Draw(PartToDraw(change));
    grid_->Hints().FollowChange();
    if (change.Kind == ChangeKind::Edited)
        grid_->View().ShowChangesNow(); // before the program is written, which the disk can take its time for
}

// A step brings a whole document, of which hardly ever more than one column is another.
Touched TableRoom::PartToDraw(const Change& change) const {
    if (steppedFrom_ == nullptr || change.Where.What != Touched::Extent::Everything)
        return change.Where;
    const std::optional<StateNumber> column = OnlyColumnThatDiffers(*steppedFrom_, session_.Document());
    return column ? Touched{Touched::Extent::Column, *column} : change.Where;
}

void TableRoom::ShowAnotherDocument() {
    typing_.Abandon();
    frmChooseTarget_->Abandon();
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
    if (press.Button == PressButton::Left)
        keys_->Forget();
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
        return FireEventOf(cell.Row);
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

void TableRoom::FireEventOf(RowNumber row) {
    StepMachine(row);
    if (EventRows().Contains(row))
        Q_EMIT EventFired(row);
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
