// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Subject.h"
#include "kit/Room.h"

namespace orvane {

// Gives things another name, with what is called after them.
class RenameRoom : public Room {
    Q_OBJECT

  public:
    explicit RenameRoom(const RoomPlace& place) : session_(place.Open), window_(place.Window) {}

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return false; }
    void Told(const Change&) override {}

  private:
    void Rename(const find::Subject& subject);

    Session& session_;
    QMainWindow& window_;
};

} // namespace orvane
