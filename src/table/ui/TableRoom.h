// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"
#include "session/Change.h"
#include "table/PressTable.h"
#include "table/ui/CellCommands.h"
#include "table/ui/CellTyping.h"
#include "table/ui/TableCommands.h"

#include <memory>

namespace orvane {

class TableGrid;
class TableKeys;
class frmChooseTarget;
class frmGoTo;
class frmMyToolTip;
struct GridPress;

// The table in the middle of the window: what is drawn there, and what a press, a key or a command does to
// it.
class TableRoom : public Room {
    Q_OBJECT

  public:
    explicit TableRoom(const RoomPlace& place);
    ~TableRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    void Prepare(const CommandEntry& next) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return true; }
    void Told(const Change& change) override;
    void ShowPlace(Cell place) override;

  private:
    void ConnectGrid();
    void ShowAnotherDocument();
    void ShowWhereTheUserIs();
    void ConnectKeys();
    void AddOwnKeys();
    void EditByKey(Cell cell, PressModifiers modifiers);
    void FireEventOf(RowNumber row);
    void TypeInto(Cell cell, const QString& text);
    void ChooseTargetOf(Cell cell, const QString& text);
    bool TakesTransition(Cell cell);
    void GoTo();
    void RunOnPressedCell(Command command);
    void PressGrid(const GridPress& press);
    void PopUp(Command menu, const GridPress& press);
    void StepMachine(RowNumber row);
    void Step(std::vector<std::string> (Session::*step)());
    Touched PartToDraw(const Change& change) const;
    void Tell(const QString& text);

    Session& session_;
    QMainWindow& window_;
    std::unique_ptr<TableGrid> grid_; // goes before what it shows
    CellTyping typing_;
    TableKeys* keys_;
    frmChooseTarget* frmChooseTarget_;
    frmGoTo* frmGoTo_ = nullptr; // made when it is first wanted
    TableCommands commands_;
    CellCommands cells_;
    frmMyToolTip* frmMyToolTip_;
    const FsmDocument* steppedFrom_ = nullptr; // while a step back or forward is told
};

} // namespace orvane
