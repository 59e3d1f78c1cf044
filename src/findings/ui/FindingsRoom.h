// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DesignFinding.h"
#include "findings/FindingList.h"
#include "kit/Background.h"
#include "kit/PaneRoom.h"

#include <optional>
#include <vector>

namespace orvane {

class dckFindings;

// Gathers what there is to be told of the design after every edit: for the count in the status bar, for the
// marks in the table, and for the list, which is hidden until it is asked for.
class FindingsRoom : public PaneRoom {
    Q_OBJECT

  public:
    explicit FindingsRoom(const RoomPlace& place);
    ~FindingsRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return true; }
    void Told(const Change& change) override;

  protected:
    Pane* MakePane() override;
    void Shown() override;
    void Hiding() override;

  private:
    void Gather();
    void Forget();
    void Explore();
    void TakeExplored(findings::Explored explored);
    void GoOn(int step);
    void GoTo(int row);

    Session& session_;
    QMainWindow& window_;
    dckFindings* pane_ = nullptr;
    std::vector<DesignFinding> explored_; // of the document as it stands
    std::size_t at_ = 0;                  // where F8 was last
    std::optional<DesignFinding> last_;   // what stood there
    Background<findings::Explored> work_{*this};
};

} // namespace orvane
