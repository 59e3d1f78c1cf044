// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"

#include <memory>

namespace orvane {

class frmBuilder;

// The builder script of the document, and the build.
class BuilderRoom : public Room {
    Q_OBJECT

  public:
    explicit BuilderRoom(const RoomPlace& place);
    ~BuilderRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override;
    void Told(const Change& change) override;
    bool MayLeave() override;
    void Close() override;

  private:
    void StartDocument();
    frmBuilder& Window();

    Session& session_;
    std::unique_ptr<frmBuilder> frmBuilder_; // no window of the main window's: the table can be in front
};

} // namespace orvane
