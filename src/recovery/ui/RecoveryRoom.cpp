// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/RecoveryRoom.h"

#include "core/ProgramVersion.h"

#include <chrono>

namespace orvane {

namespace {

std::string Variable(const char* name) { return qEnvironmentVariable(name).toStdString(); }

JournalTime Now() {
    return std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

std::optional<FileSystem::Path> Folder() {
    return RecoveryFolderPath({.XdgStateHome = Variable("XDG_STATE_HOME"),
                               .Home = Variable("HOME"),
                               .LocalAppData = Variable("LOCALAPPDATA")});
}

} // namespace

RecoveryRoom::RecoveryRoom(const RoomPlace& place) {
    draftsDue_.setSingleShot(true);
    connect(&draftsDue_, &QTimer::timeout, this, &RecoveryRoom::WaitForDrafts);
    if (const std::optional<FileSystem::Path> folder = Folder())
        journal_.emplace(place.Open, JournalPlace{files_, *folder, "Orvane " + ProgramVersion(), &Now});
}

ObserverRank RecoveryRoom::Rank() const { return ObserverRank::Rooms; }

// The journal has heard the change itself.
void RecoveryRoom::Told(const Change&) {
    if (!draftsDue_.isActive())
        WaitForDrafts();
    if (const std::optional<std::string> message = journal_->TakeMessage())
        Q_EMIT Said(QString::fromStdString(*message));
}

// The moment moves on while somebody types.
void RecoveryRoom::WaitForDrafts() {
    const std::optional<DraftPace::Clock::time_point> due = journal_->DraftsDue();
    if (!due)
        return;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - DraftPace::Clock::now());
    if (left.count() > 0)
        draftsDue_.start(left);
    else
        journal_->WriteDrafts();
}

} // namespace orvane
