// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/kill/Aftermath.h"

#include "core/DocumentReader.h"
#include "core/TightPacked.h"
#include "files/FileReader.h"

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

} // namespace

Aftermath LookAfter(FileSystem& files, const RecoveryFolder& folder, const FileSystem::Path& document,
                    const Report& last) {
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
    // An undo up to what was saved leaves nothing to recover.
    if (!isThere && aftermath.Loss.empty())
        aftermath.Loss = "the last committed change is neither in the file nor in a journal";
    return aftermath;
}

} // namespace orvane
