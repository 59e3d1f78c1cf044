// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/kill/Aftermath.h"

#include "core/DocumentReader.h"
#include "core/TightPacked.h"
#include "files/FileReader.h"
#include "session/RecoveryName.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t kLargest = 1 << 26;

std::string SavedImage(FileSystem& files, const FileSystem::Path& document) {
    const FileContent content = ReadFile(files, document, kLargest);
    return content ? Pack(ReadDocument(content.Bytes()).Document) : std::string();
}

bool Holds(const RecoveredJournal& journal, const Report& last) {
    const auto is = [&](std::size_t step) {
        return step < journal.History.size() && journal.History[step].Image == last.Image;
    };
    const std::size_t now = journal.Current;
    if (is(now))
        return true;
    switch (last.Next) {
    case Doing::Drawing:
    case Doing::Redoing:
        return now > 0 && is(now - 1);
    case Doing::Undoing:
        return is(now + 1);
    case Doing::Starting:
    case Doing::Recovering:
    case Doing::Saving:
        break;
    }
    return false;
}

JournalTime Now() { return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now()); }

// A step up to what was saved leaves nothing to recover, and a journal that says so.
bool IsOverAndHolds(FileSystem& files, const FileSystem::Path& path, const Report& last) {
    const FileContent content = ReadFile(files, path, kLargest);
    if (!content)
        return false;
    const RecoveredJournal journal = Recover(content.Bytes());
    return !journal.HasUnsavedWork() && Holds(journal, last);
}

bool SomeJournalIsOver(FileSystem& files, const FileSystem::Path& recovery, const Report& last) {
    const std::vector<FileSystem::Path> names = files.Names(recovery).Got;
    return std::any_of(names.begin(), names.end(), [&](const FileSystem::Path& name) {
        return name.extension() == kJournalSuffix && IsOverAndHolds(files, recovery / name, last);
    });
}

} // namespace

Aftermath LookAfter(FileSystem& files, const FileSystem::Path& recovery, const FileSystem::Path& document,
                    const Report& last) {
    const RecoveryFolder folder(files, recovery);
    Aftermath aftermath;
    bool isThere = SavedImage(files, document) == last.Image;
    for (const OrphanedJournal& orphan : folder.Orphans()) {
        if (orphan.WasDiscarded)
            continue;
        ++aftermath.Offers;
        const Result<AdoptedJournal> adopted = folder.Adopt(orphan.Name, Now());
        if (adopted.Failure) {
            aftermath.Loss = "a journal cannot be opened: " + adopted.Failure.message();
            return aftermath;
        }
        if (adopted.Got.Journal.End == JournalEnd::Damaged)
            aftermath.Loss = "a journal is damaged";
        folder.LetGo(adopted.Got);
        const RecoveredJournal& journal = adopted.Got.Journal;
        if (!Holds(journal, last))
            continue;
        isThere = true;
        if (aftermath.Image.empty())
            aftermath.Image = journal.History[journal.Current].Image;
    }
    if (!isThere && aftermath.Loss.empty() && !SomeJournalIsOver(files, recovery, last))
        aftermath.Loss = "the last committed change is neither in the file nor in a journal";
    return aftermath;
}

} // namespace orvane
