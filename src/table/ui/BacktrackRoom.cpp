// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/BacktrackRoom.h"

#include "session/Commands.h"
#include "session/Session.h"
#include "table/ui/frmBackTrack.h"

#include <QMainWindow>

namespace orvane {

BacktrackRoom::BacktrackRoom(const RoomPlace& place) : session_(place.Open) {}

BacktrackRoom::~BacktrackRoom() = default;

std::span<const Command> BacktrackRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::Backtrack});
    return commands;
}

void BacktrackRoom::Run(Command) { BackTrack(session_.Pressed().State); }

void BacktrackRoom::BackTrack(StateNumber state) {
    if (!frmBackTrack_) {
        frmBackTrack_ = std::make_unique<frmBackTrack>();
        connect(frmBackTrack_.get(), &frmBackTrack::StateChosen, this, &BacktrackRoom::BackTrack);
    }
    frmBackTrack_->BackTrack(session_.Document(), state);
}

ObserverRank BacktrackRoom::Rank() const { return ObserverRank::Rooms; }

bool BacktrackRoom::Listens() const { return frmBackTrack_ && frmBackTrack_->isVisible(); }

void BacktrackRoom::Told(const Change& change) {
    if (change.Committed || change.Kind == ChangeKind::Undone || change.Kind == ChangeKind::Redone ||
        change.Kind == ChangeKind::Replaced)
        frmBackTrack_->RefreshBackTrack(session_.Document());
}

void BacktrackRoom::Close() {
    if (frmBackTrack_)
        frmBackTrack_->hide();
}

} // namespace orvane
