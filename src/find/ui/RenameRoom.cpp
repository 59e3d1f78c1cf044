// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/RenameRoom.h"

#include "find/ui/SubjectAt.h"
#include "find/ui/frmRename.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>

namespace orvane {

namespace {

constexpr auto kOwnCommands =
    std::to_array<Command>({Command::Rename, Command::RenameState, Command::RenameEvent});

} // namespace

std::span<const Command> RenameRoom::Commands() const { return kOwnCommands; }

ObserverRank RenameRoom::Rank() const { return ObserverRank::Rooms; }

void RenameRoom::Run(Command command) {
    if (command == Command::RenameState)
        return Rename(find::OfState{session_.Pressed().State});
    if (command == Command::RenameEvent)
        return Rename(find::OfEvent{session_.Pressed().Row});
    Rename(SubjectAt(session_.Document(), ChosenCell(window_, session_)));
}

void RenameRoom::Rename(const find::Subject& subject) {
    frmRename dialog(session_.Document(), subject, &window_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<find::TextChange> chosen = dialog.Chosen();
    session_.Edit({EntryOf(Command::Rename).Step, {Touched::Extent::Everything, {}}},
                  [&](const Editable& open) { Apply(open.Document, chosen); });
    if (chosen.size() > 1)
        Q_EMIT Said(tr("Renamed, %1 places in all").arg(chosen.size()));
}

} // namespace orvane
