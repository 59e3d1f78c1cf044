// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/WorkList.h"

#include "session/OwnSave.h"
#include "session/UserRecoveryFolder.h"
#include "text/Sha256.h"

#include <QDateTime>

namespace orvane {

namespace {

// The size is that of the file as it was known, so that no more is read than there was once.
FileFate FateOfBytes(FileSystem& files, const FileSystem::Path& path, const FileAsKnown& known) {
    const Result<FileHandle> opened = files.OpenToRead(path, Opening::AtOnce);
    if (opened.Failure)
        return FileFate::Unreadable;
    const Result<std::string> bytes = ReadAll(files, opened.Got);
    (void)files.Close(opened.Got);
    return bytes.Failure ? FileFate::Unreadable : FateByBytes(known, Sha256(bytes.Got));
}

FileFate FateSoFar(FileSystem& files, const OrphanedJournal& orphan) {
    if (orphan.Path.empty())
        return FileFate::NeverSaved;
    const FileSystem::Path path = std::u8string(orphan.Path.begin(), orphan.Path.end());
    const Result<FileFacts> facts = files.Look(path);
    if (facts.Failure == std::errc::no_such_file_or_directory)
        return FileFate::Gone;
    if (facts.Failure || facts.Got.Kind != FileKind::Regular)
        return FileFate::Unreadable;
    if (!orphan.Stamp)
        return FileFate::ChangedSince;
    const FileAsKnown known{orphan.Stamp->Size, orphan.Stamp->Modified, orphan.Stamp->Sha256};
    const std::optional<FileFate> fate = FateBySizeAndTime(known, {facts.Got.Size, facts.Got.Changed});
    return fate ? *fate : FateOfBytes(files, path, known);
}

bool WasSavedByItself(FileSystem& files, const RecoveryFolder& folder, const OrphanedJournal& orphan) {
    Result<AdoptedJournal> adopted = folder.Adopt(orphan.Name, TimeNow());
    if (adopted.Failure)
        return false;
    folder.LetGo(adopted.Got);
    return TakeOwnSave(files, adopted.Got.Journal);
}

FileFate FateOf(FileSystem& files, const RecoveryFolder& folder, const OrphanedJournal& orphan) {
    const FileFate fate = FateSoFar(files, orphan);
    const bool isOwn = fate == FileFate::ChangedSince && WasSavedByItself(files, folder, orphan);
    return isOwn ? FileFate::SavedHere : fate;
}

} // namespace

WorkList ListWork(FileSystem& files, const RecoveryFolder& folder) {
    const LocalMinute now = LocalTimeOf(TimeNow());
    WorkList list;
    for (const OrphanedJournal& orphan : folder.Orphans()) {
        const FileFate fate = FateOf(files, folder, orphan);
        const LeftWork work{.Path = orphan.Path,
                            .LastChange = LocalTimeOf(orphan.LastChange),
                            .Changes = fate == FileFate::SavedHere ? 0 : orphan.Changes,
                            .OpenEditors = orphan.Drafts,
                            .IsPartlyLost = orphan.WasDamaged,
                            .File = fate};
        (orphan.WasDiscarded ? list.Discarded : list.Left).push_back({orphan.Name, RowOf(work, now)});
    }
    return list;
}

LocalMinute LocalTimeOf(JournalTime time) {
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count());
    const QDate day = local.date();
    return {std::chrono::year(day.year()) / day.month() / day.day(), local.time().hour(),
            local.time().minute()};
}

} // namespace orvane
