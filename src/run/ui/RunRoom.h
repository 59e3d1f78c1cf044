// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"
#include "run/ui/RunWish.h"

#include <memory>

namespace orvane {

class TestsPane;
class dckRun;
namespace run {
class LiveRun;
}

// Runs the machine while it is drawn. The pane is hidden until it is asked for, and costs nothing then; what
// was done in it is played again on the table as it is when the pane is shown again.
class RunRoom : public Room {
    Q_OBJECT

  public:
    explicit RunRoom(const RoomPlace& place);
    ~RunRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return run_ != nullptr; }
    void Told(const Change& change) override;
    void FireEvent(RowNumber row) override;

  private:
    enum class Log { GoesOn, IsAnother };

    void TogglePane();
    void ShowPane();
    void MakePane();
    void PaneShown(bool shown);
    void Do(RunWish wish);
    void SaveAsTest();
    void RunTests();
    void Show(Log log);
    bool IsShown() const;

    Session& session_;
    QMainWindow& window_;
    std::unique_ptr<run::LiveRun> run_; // made when the pane is
    dckRun* pane_ = nullptr;
    TestsPane* tests_ = nullptr; // in the pane
    bool missedEdits_ = false;   // while the pane was hidden
};

} // namespace orvane
