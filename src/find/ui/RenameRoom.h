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
    bool Listens() const override { return true; }
    void Told(const Change& change) override;

  private:
    void Rename(const find::Subject& subject);
    void OfferPrefix(const std::string& formerName);

    Session& session_;
    QMainWindow& window_;
    std::string machineName_; // before the edit that is told
};

} // namespace orvane
