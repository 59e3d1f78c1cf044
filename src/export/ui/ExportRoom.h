// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"

namespace orvane {

class FsmDocument;
class frmExport;
class frmImport;

// Gives the document other forms, as files for other programs, and takes machines in from such files.
class ExportRoom : public Room {
    Q_OBJECT

  public:
    explicit ExportRoom(const RoomPlace& place) : session_(place.Open), window_(place.Window) {}

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return false; }
    void Told(const Change&) override {}

  private:
    void Export();
    void Write(const frmExport& asked);
    void Import();
    void TakeIntoOpen(const FsmDocument& imported);
    void TakeAsNew(const FsmDocument& imported);

    Session& session_;
    QMainWindow& window_;
};

} // namespace orvane
