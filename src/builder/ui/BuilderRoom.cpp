// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/BuilderRoom.h"

#include "builder/ui/frmBuilder.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>

namespace orvane {

namespace {

constexpr auto kOwnCommands = std::to_array<Command>({Command::Builder, Command::BuildAndTest});

} // namespace

BuilderRoom::BuilderRoom(const RoomPlace& place) : session_(place.Open) {}

BuilderRoom::~BuilderRoom() = default;

std::span<const Command> BuilderRoom::Commands() const { return kOwnCommands; }

void BuilderRoom::Run(Command command) {
    if (command == Command::BuildAndTest)
        return Window().GoGoGo();
    Window().show();
    Window().raise();
    Window().activateWindow();
}

ObserverRank BuilderRoom::Rank() const { return ObserverRank::Rooms; }

bool BuilderRoom::Listens() const { return frmBuilder_ != nullptr; }

void BuilderRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        frmBuilder_->StartDocument();
    else if (change.Kind == ChangeKind::Saved)
        frmBuilder_->RenameDocument();
}

frmBuilder& BuilderRoom::Window() {
    if (!frmBuilder_) {
        frmBuilder_ = std::make_unique<frmBuilder>(session_);
        connect(frmBuilder_.get(), &frmBuilder::BuildWanted, this,
                [this] { Q_EMIT CommandWanted(Command::BuildAndTest); });
        frmBuilder_->StartDocument();
    }
    return *frmBuilder_;
}

bool BuilderRoom::MayLeave() { return !frmBuilder_ || frmBuilder_->MayLeaveScript(); }

void BuilderRoom::Close() {
    if (frmBuilder_)
        frmBuilder_->hide();
}

} // namespace orvane
