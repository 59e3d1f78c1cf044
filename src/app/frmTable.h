// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine.h"
#include "app/DocumentSession.h"
#include "app/Redraw.h"
#include "app/TableCommands.h"
#include "codegen/ui/GeneratorRun.h"
#include "table/RowVisibility.h"
#include "text/Vocabulary.h"

#include <QMainWindow>

#include <memory>

namespace orvane {

class DocumentLifecycle;
class EditorWindows;
class SideWindows;
class TableGrid;
class TableMenus;
class TableStatusBar;
class frmMyToolTip;
struct GridPress;

// The main window: the document as a table. It owns the document, its history and the other windows, and runs
// the commands; what a command does to the document is an engine function.
class frmTable : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmTable(QWidget* parent = nullptr);
    ~frmTable() override;

    // Opens what the program was started with, or the settings document.
    void Start(const CommandLine& commandLine);

    // Generates the program anew and writes it.
    void RefreshGenerators();

  Q_SIGNALS:
    // The program ends with its main window.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    // Building the window.
    void ConnectDocument();
    void ConnectFileMenu();
    void ConnectMenus();
    void ConnectGrid();
    void ConnectEditors();
    void ConnectHints();
    void LoadWords();

    // Every change of the document comes through here: change, redraw, CommitChange, RefreshGenerators.
    void RunCommand(const Change& change);
    void DrawAgain(const Redraw& redraw);
    void CommitChange();
    void UndoOrRedo(const std::string* (UndoRing::*step)());

    // Showing what is the case.
    void ShowReplacedDocument();
    void ShowDocumentState();
    void ShowMachineName();
    void ShowViewMarks();

    // A press on the table.
    void PressGrid(const GridPress& press);
    void PopUp(const char* menu, const QPoint& position);
    void StepMachine(int row);

    // Typing a target.
    void BeginCellEdit(int row, int column);
    void CommitCellEdit();
    void CommitOpenEdit();
    void CommitAndGenerate(); // what is being typed in a cell belongs to the program
    void FinishCellEdit();

    void EditState(int row, int state);
    void EditEvent(int row);
    void EditGeneralCode();
    void EditTransitionAction();

    void ToggleView(SpecialRow row);
    void TogglePolytask();
    void SelectCell(int state, int row);
    void SetCurrentState(int state);
    void SetShiftHeld(bool held);

    DocumentSession session_;
    GeneratorRun generator_;
    GridCell pressed_; // by the last press of a mouse button
    TableMenus* menus_;
    TableCommands* commands_;
    DocumentLifecycle* lifecycle_;
    EditorWindows* editors_;
    std::unique_ptr<SideWindows> windows_;
    std::unique_ptr<TableGrid> grid_; // goes before what it shows
    frmMyToolTip* frmMyToolTip_;
    TableStatusBar* status_;
    Vocabulary vocabulary_;
};

} // namespace orvane
