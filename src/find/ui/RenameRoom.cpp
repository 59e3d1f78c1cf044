// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/RenameRoom.h"

#include "find/ui/SubjectAt.h"
#include "find/ui/frmRename.h"
#include "kit/AnsiString.h"
#include "kit/UserMessageBox.h"
#include "kit/WhenIdle.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

// How many places of the code surely have the machine's old name in them.
std::ptrdiff_t PlacesOfPrefix(const FsmDocument& former, const std::string& newName) {
    const find::RenamePlan plan = PlanRename(former, find::OfMachine{}, newName);
    if (!plan.Refusal.empty())
        return 0;
    return std::count_if(plan.Uses.begin(), plan.Uses.end(), [](const find::TextUse& use) {
        return use.IsSure && use.Kind != find::UseKind::Name;
    });
}

} // namespace

std::span<const Command> RenameRoom::Commands() const {
    static constexpr auto commands =
        std::to_array<Command>({Command::Rename, Command::RenameState, Command::RenameEvent});
    return commands;
}

ObserverRank RenameRoom::Rank() const { return ObserverRank::Rooms; }

void RenameRoom::Run(Command command) {
    if (command == Command::RenameState)
        return Rename(find::OfState{session_.Pressed().State});
    if (command == Command::RenameEvent)
        return Rename(find::OfEvent{session_.Pressed().Row});
    Rename(ChosenSubject(window_, session_));
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

// The letters of the name go into the document while they are typed; what counts is the name before the
// editor came up and after it was closed.
void RenameRoom::Told(const Change& change) {
    const bool isStep = change.Kind == ChangeKind::Replaced || change.Kind == ChangeKind::Edited ||
                        change.Kind == ChangeKind::Undone || change.Kind == ChangeKind::Redone;
    if (!isStep)
        return;
    const std::string former = std::exchange(machineName_, session_.Document().General.FsmName);
    if (change.Kind == ChangeKind::Edited && change.Name == EntryOf(Command::GeneralCode).Step &&
        former != machineName_)
        OnceIdle(*this, [this, former] { OfferPrefix(former); });
}

// Most symbols of a machine's own code begin with its name.
void RenameRoom::OfferPrefix(const std::string& formerName) {
    FsmDocument former = session_.Document();
    if (former.General.FsmName != machineName_)
        return; // another name is being typed
    former.General.FsmName = formerName;
    const std::ptrdiff_t places = PlacesOfPrefix(former, machineName_);
    if (places == 0 ||
        !AskYesNo(&window_,
                  tr("The machine is called %1 now. Symbols of its code still begin with %2_ (%3 in "
                     "all).\r\n\r\nRename them, too? You will see each of them first.")
                      .arg(FromAnsi(machineName_), FromAnsi(formerName))
                      .arg(places)))
        return;
    frmRename dialog(former, find::OfMachine{}, &window_);
    dialog.Suggest(machineName_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<find::TextChange> chosen = dialog.Chosen();
    session_.Edit({EntryOf(Command::Rename).Step, {Touched::Extent::Everything, {}}},
                  [&](const Editable& open) {
                      open.Document.General.FsmName = formerName; // what the changes were planned on
                      Apply(open.Document, chosen);
                  });
    Q_EMIT Said(tr("Renamed, %1 places in all").arg(chosen.size()));
}

} // namespace orvane
