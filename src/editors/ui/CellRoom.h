// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/PaneRoom.h"
#include "session/Draft.h"

namespace orvane {

class dckCell;

// The current cell beside the table, shown and edited without a dialog. What is typed in a field is one edit
// when the field is left, when another cell is chosen and before every command; until then it is a draft.
class CellRoom : public PaneRoom, public DraftSource {
    Q_OBJECT

  public:
    explicit CellRoom(const RoomPlace& place);
    ~CellRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    void Prepare(const CommandEntry& next) override;
    ObserverRank Rank() const override;
    void Told(const Change& change) override;

    std::optional<Draft> CurrentDraft() const override;

  protected:
    Pane* MakePane() override;
    void Shown() override;
    void Hiding() override;

  private:
    void Commit();
    void TellUnfinished();

    Session& session_;
    const Vocabulary& words_;
    QMainWindow& window_;
    dckCell* pane_ = nullptr; // made when it is first wanted
};

} // namespace orvane
