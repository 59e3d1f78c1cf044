// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Background.h"
#include "kit/PaneRoom.h"
#include "run/WayFromRun.h"
#include "run/ui/RunWish.h"

#include <QTimer>

#include <memory>

namespace orvane {

class TestsPane;
class dckRun;
class frmTour;
namespace run {
class LiveRun;
}

// Runs the machine while it is drawn. The pane is hidden until it is asked for, and costs nothing then; what
// was done in it is played again on the table as it is when the pane is shown again.
class RunRoom : public PaneRoom {
    Q_OBJECT

  public:
    explicit RunRoom(const RoomPlace& place);
    ~RunRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return run_ != nullptr || frmTour_ != nullptr; }
    void Told(const Change& change) override;
    void FireEvent(RowNumber row) override;

  protected:
    Pane* MakePane() override;
    void Shown() override;
    void Hiding() override;

  private:
    enum class Log { GoesOn, IsAnother };

    void ConnectPane();
    void TellRun(const Change& change);
    void Do(RunWish wish);
    void FindWay(StateNumber to);
    void ReplayOn();
    void DropSearch();
    void MakeTour();
    void SaveAsTest();
    void RunTests();
    void Show(Log log);

    Session& session_;
    QMainWindow& window_;
    std::unique_ptr<run::LiveRun> run_; // made when the pane is
    dckRun* pane_ = nullptr;
    TestsPane* tests_ = nullptr; // in the pane
    frmTour* frmTour_ = nullptr; // belongs to the main window; made when it is asked for
    bool missedEdits_ = false;   // while the pane was hidden
    QTimer tmrReplay_;           // of a long run after an edit
    Background<run::WayFromRun> way_{*this};
};

} // namespace orvane
