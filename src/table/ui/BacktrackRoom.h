// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"

#include <memory>

namespace orvane {

class frmBackTrack;

// The list of the transitions that lead into a state, which follows the document while it is open.
class BacktrackRoom : public Room {
    Q_OBJECT

  public:
    explicit BacktrackRoom(const RoomPlace& place);
    ~BacktrackRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override;
    void Told(const Change& change) override;
    void Close() override;

  private:
    void BackTrack(StateNumber state);

    Session& session_;
    std::unique_ptr<frmBackTrack>
        frmBackTrack_; // no window of the main window's, so that this can be in front
};

} // namespace orvane
