// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmTable.h"

#include "app/DocumentLifecycle.h"
#include "app/EditorWindows.h"
#include "app/HelpMenu.h"
#include "app/Remembered.h"
#include "app/SideWindows.h"
#include "app/TableMenus.h"
#include "app/TableStatusBar.h"
#include "app/Trace.h"
#include "app/WindowTitle.h"
#include "codegen/Reachability.h"
#include "kit/AnsiString.h"
#include "kit/OpenInDesktop.h"
#include "kit/UserMessageBox.h"
#include "kit/VocabularyFile.h"
#include "kit/frmMyToolTip.h"
#include "table/CellEdit.h"
#include "table/PressTable.h"
#include "table/ui/CellEditor.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/HoverHints.h"
#include "table/ui/TableGrid.h"
#include "welcome/ui/Greeting.h"

#include <QAction>
#include <QCloseEvent>
#include <QCursor>
#include <QDateTime>
#include <QDir>
#include <QMenu>

#include <array>

namespace orvane {

namespace {

constexpr int kHelpPage = 4835;
constexpr int kStartWidth = 1100; // pixels
constexpr int kStartHeight = 700;

struct ViewItem {
    const char* Name;
    SpecialRow Row;
};

constexpr auto kViewItems = std::to_array<ViewItem>({{"mnuShowExitAction", SpecialRow::ExitAction},
                                                     {"mnuShowElse", SpecialRow::Else},
                                                     {"mnuShowTimingMode", SpecialRow::TimingMode},
                                                     {"mnuShowTimeTarget", SpecialRow::TimeTarget}});

} // namespace

frmTable::frmTable(QWidget* parent)
    : QMainWindow(parent),
      menus_(new TableMenus(this)),
      commands_(new TableCommands(session_.Document, pressed_, *menus_, this)),
      lifecycle_(new DocumentLifecycle(session_, this, &Trace)),
      editors_(new EditorWindows(session_.Document, vocabulary_, this)),
      windows_(std::make_unique<SideWindows>(session_, generator_, [this] { CommitAndGenerate(); })),
      grid_(std::make_unique<TableGrid>(session_.Document, this)),
      frmMyToolTip_(new frmMyToolTip(this)),
      status_(new TableStatusBar(this)) {
    setObjectName(QStringLiteral("frmTable"));
    resize(kStartWidth, kStartHeight);
    setCentralWidget(grid_.get());
    setStatusBar(status_);
    ConnectDocument();
    ConnectFileMenu();
    ConnectMenus();
    ConnectGrid();
    ConnectEditors();
    ConnectHints();
    AddHelpKey(*this, kHelpPage);
    Trace("Start at " + QDateTime::currentDateTime().toString(Qt::ISODate).toStdString());
    LoadWords();
    lifecycle_->NewGrid();
    grid_->View().setFocus();
}

frmTable::~frmTable() = default;

void frmTable::ConnectDocument() {
    connect(lifecycle_, &DocumentLifecycle::Replaced, this, &frmTable::ShowReplacedDocument);
    connect(lifecycle_, &DocumentLifecycle::Saved, this, [this] {
        ShowDocumentState();
        windows_->DocumentRenamed();
        RememberFile(session_.CurrentFileName);
    });
    connect(&generator_, &GeneratorRun::WriteFailed, this, [this](const QString& path, const QString& why) {
        Tell(this, QStringLiteral("The generated program could not be written to\r\n%1\r\n%2.")
                       .arg(QDir::toNativeSeparators(path), why));
    });
    connect(grid_.get(), &TableGrid::RowsForced, this, [this] {
        ShowViewMarks();
        if (session_.Document.View.ShowTimingMode)
            editors_->ShowTimeoutTab(true);
    });
    connect(windows_.get(), &SideWindows::PlaceChosen, this, &frmTable::SelectCell);
}

// What is being typed in a cell belongs to the document by now.
void frmTable::ConnectFileMenu() {
    const auto connectFile = [this](const char* item, const std::function<void()>& command) {
        menus_->Connect(item, [this, command] {
            FinishCellEdit();
            command();
        });
    };
    connectFile("mnuFNew", [this] { lifecycle_->New(); });
    connectFile("mnuFOpen", [this] { lifecycle_->Open(); });
    connectFile("mnuFSave", [this] { lifecycle_->Save(); });
    connectFile("mnuFSaveAs", [this] { lifecycle_->SaveAs(); });
    connect(new HelpMenu(this), &HelpMenu::OpenWanted, this, [this](const QString& path) {
        FinishCellEdit();
        lifecycle_->OpenFile(path);
    });
}

void frmTable::ConnectMenus() {
    menus_->Connect("mnuUndo", [this] { UndoOrRedo(&UndoRing::UndoStep); });
    menus_->Connect("mnuRedo", [this] { UndoOrRedo(&UndoRing::RedoStep); });
    for (const ViewItem& item : kViewItems)
        menus_->Connect(item.Name, [this, row = item.Row] { ToggleView(row); });
    menus_->Connect("mnuPolytask", [this] { TogglePolytask(); });
    menus_->Connect("mnuCurrentState", [this] { SetCurrentState(pressed_.Column); });
    menus_->Connect("mnuBacktrack", [this] { windows_->BackTrack(pressed_.Column); });
    menus_->Connect("mnuCodeGenerate", [this] {
        CommitAndGenerate();
        windows_->ShowGenerator();
    });
    menus_->Connect("mnuBuilder", [this] { windows_->ShowBuilder(); });
    menus_->Connect("mnuBuildAndTest", [this] { windows_->BuildAndTest(); });
    commands_->Connect([this](const Change& change) {
        FinishCellEdit();
        RunCommand(change);
    });
}

void frmTable::ConnectGrid() {
    FsmGridView& view = grid_->View();
    connect(&view, &FsmGridView::CellPressed, this, &frmTable::PressGrid);
    connect(&view, &FsmGridView::ShiftChanged, this, &frmTable::SetShiftHeld);
    connect(&view, &FsmGridView::EnterPressed, this,
            [this] { BeginCellEdit(pressed_.Row, pressed_.Column); });
    connect(&grid_->Editor(), &CellEditor::CommitWanted, this, &frmTable::CommitCellEdit);
}

void frmTable::ConnectEditors() {
    menus_->Connect("mnuGeneralCode", [this] { EditGeneralCode(); });
    menus_->Connect("mnuEditTransAct", [this] { EditTransitionAction(); });
    connect(editors_, &EditorWindows::Edited, this, [this] {
        ShowMachineName();
        RefreshGenerators();
    });
}

void frmTable::ConnectHints() {
    connect(&grid_->Hints(), &HoverHints::HintWanted, this,
            [this](const QString& text, bool wrap) { frmMyToolTip_->Display(text, wrap, QCursor::pos()); });
    connect(&grid_->Hints(), &HoverHints::HintGone, frmMyToolTip_, &frmMyToolTip::UnDisplay);
}

// Without the words of the language the code panes are plain, and the user can see why.
void frmTable::LoadWords() {
    LoadedVocabulary loaded = LoadVocabulary();
    vocabulary_ = std::move(loaded.Words);
    windows_->SetVocabulary(vocabulary_);
    status_->ShowProblem(loaded.Problem);
}

void frmTable::Start(const CommandLine& commandLine) {
    if (!commandLine.DocumentPath.isEmpty()) {
        lifecycle_->Load(commandLine.DocumentPath);
    } else {
        lifecycle_->LoadSettings();
        if (!commandLine.NoSplash)
            ShowSplash(this);
    }
    Trace("");
    Trace("a");
    ShowDocumentState();
    Trace("b");
    CheckForUpdate(this);
    Trace("c");
    Trace("d");
}

void frmTable::closeEvent(QCloseEvent* event) {
    FinishCellEdit();
    event->setAccepted(lifecycle_->MayClose());
    if (!event->isAccepted())
        return;
    windows_->HideAll();
    Q_EMIT Closed();
}

void frmTable::RunCommand(const Change& change) {
    const std::optional<Redraw> redraw = change();
    if (!redraw)
        return;
    DrawAgain(*redraw);
    grid_->View().ShowChangesNow(); // before the program is written, which the disk can take its time for
    CommitChange();
    RefreshGenerators();
}

void frmTable::DrawAgain(const Redraw& redraw) {
    switch (redraw.What) {
    case Redraw::Extent::Nothing:
        break;
    case Redraw::Extent::Column:
        grid_->PopulateStateColumn(redraw.Column);
        break;
    case Redraw::Extent::RowHeads:
        grid_->PopulateRowHeaders();
        break;
    case Redraw::Extent::AllColumns:
        grid_->PopulateAllStateColumns();
        break;
    case Redraw::Extent::Everything:
        grid_->RefreshGrid();
        break;
    }
}

void frmTable::CommitChange() {
    if (!session_.Undo.Commit(Pack(session_.Document)))
        return;
    ShowDocumentState();
    windows_->DocumentChanged();
}

void frmTable::RefreshGenerators() { generator_.Run(session_.Document, session_.CurrentFileName); }

void frmTable::CommitAndGenerate() {
    FinishCellEdit();
    RefreshGenerators();
}

void frmTable::UndoOrRedo(const std::string* (UndoRing::*step)()) {
    grid_->Editor().Abandon();
    if (const std::string* image = (session_.Undo.*step)()) {
        for (const std::string& fault : Unpack(*image, session_.Document))
            Tell(this, FromAnsi(fault));
        grid_->RefreshGrid();
    }
    ShowDocumentState();
    windows_->DocumentChanged();
    RefreshGenerators();
}

void frmTable::ShowReplacedDocument() {
    grid_->Editor().Abandon();
    grid_->Hints().ClearHoverEffects();
    grid_->Model().SetCurrentState(kNoState);
    editors_->ShowExitTab(true);
    editors_->ShowTimeoutTab(true);
    grid_->RefreshGrid();
    ShowViewMarks();
    ShowDocumentState();
    windows_->DocumentReplaced();
    generator_.RunWithoutFile(session_.Document, session_.CurrentFileName);
    if (!session_.CurrentFileName.isEmpty())
        RememberFile(session_.CurrentFileName);
}

void frmTable::ShowDocumentState() {
    setWindowTitle(WindowTitle(session_.CurrentFileName, session_.IsModified()));
    menus_->Item("mnuUndo")->setEnabled(session_.Undo.CanUndo());
    menus_->Item("mnuRedo")->setEnabled(session_.Undo.CanRedo());
    status_->ShowHowToBegin(session_.CurrentFileName.isEmpty() && !session_.IsModified());
    ShowMachineName();
}

// In the corner of the table and in the status bar.
void frmTable::ShowMachineName() {
    if (status_->ShowName(FromAnsi(session_.Document.General.FsmName)))
        grid_->PopulateRowHeaders();
}

void frmTable::ShowViewMarks() {
    const ViewOptions& view = session_.Document.View;
    for (const ViewItem& item : kViewItems)
        menus_->Item(item.Name)->setChecked(IsMarked(view, item.Row));
    menus_->Item("mnuPolytask")->setChecked(view.Polytask);
}

void frmTable::PressGrid(const GridPress& press) {
    grid_->TestForColumWidthChange();
    pressed_ = {press.Row, press.Column};
    if (press.Column == 0)
        grid_->Editor().Abandon();
    switch (ActionOfPress(press.Row, press.Column, press.Button, press.Modifiers)) {
    case PressAction::Nothing:
        return;
    case PressAction::EditState:
        return EditState(press.Row, press.Column);
    case PressAction::EditTarget:
        return BeginCellEdit(press.Row, press.Column);
    case PressAction::EditEvent:
        return EditEvent(press.Row);
    case PressAction::EditGeneralCode:
        return EditGeneralCode();
    case PressAction::StepMachine:
        return StepMachine(press.Row);
    case PressAction::StateMenu:
        menus_->Item("mnuDeleteState")
            ->setEnabled(!ComputeReachability(session_.Document).Reached(press.Column));
        return PopUp("mnuColumnHead", press.GlobalPosition);
    case PressAction::EntryActionMenu:
        return PopUp("mnuEntryAction", press.GlobalPosition);
    case PressAction::TransitionMenu:
        return PopUp("mnuTranCell", press.GlobalPosition);
    case PressAction::EventMenu:
        return PopUp("mnuEventLabel", press.GlobalPosition);
    }
}

void frmTable::PopUp(const char* menu, const QPoint& position) {
    frmMyToolTip_->UnDisplay(); // it would lie under the menu
    commands_->EnablePasteItems();
    menus_->Menu(menu)->popup(position);
}

// Fires the event of this row: the machine goes where the current state's transition leads.
void frmTable::StepMachine(int row) {
    const int target = StepTarget(session_.Document, grid_->Model().CurrentState(), row);
    if (target == kNoState)
        return;
    grid_->Hints().HideNextState();
    SetCurrentState(target);
    grid_->Hints().ShowNextState(row, target);
}

void frmTable::BeginCellEdit(int row, int column) {
    CommitOpenEdit();
    if (row < kFirstCellRow || column == 0 || !CanEditCell(session_.Document, row))
        return;
    if (grid_->View().CellRect(row, column).isEmpty())
        return;
    grid_->View().setCurrentIndex(grid_->Model().index(row, column));
    grid_->Editor().Begin(row, column, FromAnsi(CellEditText(session_.Document, row, column)));
}

void frmTable::CommitCellEdit() {
    CellEditor& editor = grid_->Editor();
    const int column = editor.EditColumn();
    const std::string typed = ToAnsi(editor.text()).Text;
    RunCommand([&] {
        if (const auto refusal = StoreTypedTarget(session_.Document, editor.EditRow(), column, typed))
            Show(this, *refusal);
        editor.Abandon();
        return Redraw{Redraw::Extent::Column, column};
    });
}

void frmTable::CommitOpenEdit() {
    if (grid_->Editor().IsOpen())
        CommitCellEdit();
}

// Before another command changes, moves or stores the cell: what was typed there is stored, and a cell that
// was only opened stays as it is.
void frmTable::FinishCellEdit() {
    if (grid_->Editor().isModified())
        CommitOpenEdit();
    else
        grid_->Editor().Abandon();
}

void frmTable::EditState(int row, int state) {
    grid_->Editor().Abandon();
    RunCommand([&] {
        editors_->EditState(row, state);
        return Redraw{Redraw::Extent::AllColumns};
    });
}

void frmTable::EditEvent(int row) {
    RunCommand([&] {
        editors_->EditEvent(row);
        return Redraw{Redraw::Extent::RowHeads};
    });
}

void frmTable::EditGeneralCode() {
    RunCommand([&] {
        editors_->EditGeneralCode();
        return Redraw{Redraw::Extent::RowHeads};
    });
}

void frmTable::EditTransitionAction() {
    FinishCellEdit();
    RunCommand([&] {
        editors_->EditTransitionAction(pressed_.Row, pressed_.Column);
        return Redraw{Redraw::Extent::Column, pressed_.Column};
    });
}

void frmTable::ToggleView(SpecialRow row) {
    ToggleRow(session_.Document.View, row, grid_->StandardHeight());
    grid_->ApplyRowVisibility();
    ShowViewMarks();
    const ViewOptions& view = session_.Document.View;
    editors_->ShowExitTab(IsMarked(view, SpecialRow::ExitAction));
    editors_->ShowTimeoutTab(view.ShowTimingMode || view.ShowTimeTarget);
}

void frmTable::TogglePolytask() {
    session_.Document.View.Polytask = !session_.Document.View.Polytask;
    ShowViewMarks();
    RefreshGenerators();
}

void frmTable::SelectCell(int state, int row) {
    grid_->View().CellRect(row, state); // brings the cell into view
    grid_->View().setCurrentIndex(grid_->Model().index(row, state));
    raise();
    activateWindow();
    grid_->View().setFocus();
}

void frmTable::SetCurrentState(int state) { grid_->Model().SetCurrentState(state); }

void frmTable::SetShiftHeld(bool held) {
    grid_->Hints().SetShiftHeld(held);
    status_->ShowShift(held);
}

} // namespace orvane
