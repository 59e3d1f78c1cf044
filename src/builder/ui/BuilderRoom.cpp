// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/BuilderRoom.h"

#include "builder/ui/frmBuilder.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>

namespace orvane {

BuilderRoom::BuilderRoom(const RoomPlace& place) : session_(place.Open) {}

BuilderRoom::~BuilderRoom() = default;

std::span<const Command> BuilderRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::Builder, Command::BuildAndTest});
    return commands;
}

void BuilderRoom::Run(Command command) {
    if (command == Command::BuildAndTest)
        return Window().GoGoGo();
    Window().show();
    Window().raise();
    Window().activateWindow();
}

ObserverRank BuilderRoom::Rank() const { return ObserverRank::Rooms; }

bool BuilderRoom::Listens() const { return frmBuilder_ != nullptr || session_.HasRestoredScript(); }

void BuilderRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        StartDocument();
    else if (change.Kind == ChangeKind::Saved && frmBuilder_)
        frmBuilder_->RenameDocument();
}

// What was being typed when a window was lost is shown, but does not take the keys that are meant for the
// table.
void BuilderRoom::StartDocument() {
    Window().StartDocument();
    const std::optional<std::string> script = session_.TakeRestoredScript();
    if (!script)
        return;
    frmBuilder_->TakeRestored(*script);
    frmBuilder_->setAttribute(Qt::WA_ShowWithoutActivating);
    frmBuilder_->show();
    frmBuilder_->setAttribute(Qt::WA_ShowWithoutActivating, false);
}

frmBuilder& BuilderRoom::Window() {
    if (!frmBuilder_) {
        frmBuilder_ = std::make_unique<frmBuilder>(session_);
        connect(frmBuilder_.get(), &frmBuilder::BuildWanted, this,
                [this] { Q_EMIT CommandWanted(Command::BuildAndTest); });
        connect(frmBuilder_.get(), &frmBuilder::Noted, this, &Room::Said);
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
