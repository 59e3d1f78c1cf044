// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/RecoveryFolder.h"

#include <algorithm>
#include <set>
#include <utility>

namespace orvane {

namespace {

FileSystem::Path FromUtf8(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string ToUtf8(const FileSystem::Path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

// A file of ours in the folder.
struct Entry {
    FileSystem::Path Name;
    RecoveryName Parsed;
};

std::vector<Entry> EntriesOf(FileSystem& files, const FileSystem::Path& folder) {
    std::vector<Entry> entries;
    for (const FileSystem::Path& name : files.Names(folder).Got) {
        if (const std::optional<RecoveryName> parsed = ParseRecoveryName(name))
            entries.push_back({name, *parsed});
    }
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.Name < b.Name; });
    return entries;
}

bool IsJournal(const Entry& entry) {
    return entry.Parsed.Kind == RecoveryFileKind::Journal || entry.Parsed.Kind == RecoveryFileKind::Discarded;
}

// A journal that nobody else has, and what is in it.
struct OpenJournal {
    FileHandle Lock;
    RecoveredJournal Journal;
};

Result<OpenJournal> OpenJournalFile(FileSystem& files, const FileSystem::Path& path) {
    const Result<FileHandle> opened = files.OpenLocked(path, Existence::Old);
    if (opened.Failure)
        return {{}, opened.Failure};
    const Result<std::string> bytes = ReadAll(files, opened.Got);
    if (bytes.Failure) {
        (void)files.Close(opened.Got);
        return {{}, bytes.Failure};
    }
    return {{opened.Got, Recover(bytes.Got)}, {}};
}

// What is left of a journal when its images have been looked at.
struct Listed {
    Entry File;
    OrphanedJournal Orphan;
    bool IsOver = false; // closed, or all of it was saved
    std::vector<std::string> Replaces;
};

Listed ListedOf(const Entry& file, const RecoveredJournal& journal) {
    Listed listed{file, {}, false, journal.Head.Replaces};
    OrphanedJournal& orphan = listed.Orphan;
    orphan.Name = ToUtf8(file.Name);
    orphan.Path = journal.Head.Path;
    orphan.Stamp = journal.Head.Stamp;
    orphan.LastChange = journal.Records > 0 ? journal.LastChange : file.Parsed.Time;
    orphan.Changes = journal.Changes;
    orphan.Drafts = journal.Drafts.size();
    orphan.IsModified = journal.IsModified();
    orphan.WasDamaged = journal.End == JournalEnd::Damaged;
    orphan.WasDiscarded = file.Parsed.Kind == RecoveryFileKind::Discarded;
    listed.IsOver = !orphan.WasDamaged && !journal.History.empty() && !journal.HasUnsavedWork();
    return listed;
}

// All journals that nobody has open.
std::vector<Listed> ListAll(FileSystem& files, const FileSystem::Path& folder) {
    std::vector<Listed> all;
    for (const Entry& entry : EntriesOf(files, folder)) {
        if (!IsJournal(entry))
            continue;
        const Result<OpenJournal> opened = OpenJournalFile(files, folder / entry.Name);
        if (opened.Failure)
            continue;
        all.push_back(ListedOf(entry, opened.Got.Journal));
        (void)files.Close(opened.Got.Lock);
    }
    return all;
}

std::set<std::string> ReplacedNames(const std::vector<Listed>& all) {
    std::set<std::string> names;
    for (const Listed& listed : all)
        names.insert(listed.Replaces.begin(), listed.Replaces.end());
    return names;
}

bool HoldsAnything(const OrphanedJournal& orphan) {
    return orphan.IsModified || orphan.Drafts > 0 || orphan.WasDamaged;
}

// Removes a file unless somebody has it. False when it is still there and nobody has.
bool RemoveUnused(FileSystem& files, const FileSystem::Path& path) {
    const Result<FileHandle> lock = files.OpenLocked(path, Existence::Old);
    if (lock.Failure == std::errc::device_or_resource_busy ||
        lock.Failure == std::errc::no_such_file_or_directory)
        return true;
    const bool removed = !files.Remove(path);
    if (!lock.Failure)
        (void)files.Close(lock.Got);
    return removed;
}

// A file as its age is judged.
struct Ageing {
    FileSystem::Path Name;
    std::uint64_t Size = 0;
    JournalTime Time; // that its age counts from
    std::chrono::hours Limit{};
    bool IsOrphan = false;
    bool IsOver = false;
    bool IsUnfinished = false;
};

// All but what somebody has open.
std::vector<Ageing> AgeingFiles(FileSystem& files, const FileSystem::Path& folder) {
    std::vector<Ageing> all;
    for (const Listed& listed : ListAll(files, folder)) {
        const bool isDiscarded = listed.Orphan.WasDiscarded;
        all.push_back({listed.File.Name, 0, isDiscarded ? listed.File.Parsed.Time : listed.Orphan.LastChange,
                       isDiscarded ? RecoveryFolder::kDiscardedAge : RecoveryFolder::kAge, !isDiscarded,
                       listed.IsOver && !isDiscarded});
    }
    for (const Entry& entry : EntriesOf(files, folder)) {
        const bool isUnfinished = entry.Parsed.Kind == RecoveryFileKind::Unfinished;
        if (!IsJournal(entry))
            all.push_back({entry.Name, 0, entry.Parsed.Time,
                           isUnfinished ? RecoveryFolder::kUnfinishedAge : RecoveryFolder::kAge, false, false,
                           isUnfinished});
    }
    for (Ageing& file : all)
        file.Size = files.Look(folder / file.Name).Got.Size;
    return all;
}

} // namespace

std::optional<FileSystem::Path> RecoveryFolderPath(const RecoveryEnvironment& environment) {
#ifdef _WIN32
    const FileSystem::Path local = FromUtf8(environment.LocalAppData);
    if (!local.is_absolute())
        return std::nullopt;
    return local / "Orvane" / "recovery";
#else
    const FileSystem::Path state = FromUtf8(environment.XdgStateHome);
    if (state.is_absolute()) // a relative one counts as not set
        return state / "orvane" / "recovery";
    const FileSystem::Path home = FromUtf8(environment.Home);
    if (!home.is_absolute())
        return std::nullopt;
    return home / ".local" / "state" / "orvane" / "recovery";
#endif
}

std::vector<OrphanedJournal> RecoveryFolder::Orphans() const {
    const std::vector<Listed> all = ListAll(files_, folder_);
    const std::set<std::string> replaced = ReplacedNames(all);
    std::vector<OrphanedJournal> orphans;
    for (const Listed& listed : all) {
        const bool isWanted = HoldsAnything(listed.Orphan) && (listed.Orphan.WasDiscarded || !listed.IsOver);
        if (isWanted && !replaced.contains(listed.Orphan.Name))
            orphans.push_back(listed.Orphan);
    }
    std::stable_sort(orphans.begin(), orphans.end(), [](const OrphanedJournal& a, const OrphanedJournal& b) {
        return a.LastChange > b.LastChange;
    });
    return orphans;
}

Result<AdoptedJournal> RecoveryFolder::Adopt(const std::string& name, JournalTime now) const {
    Result<OpenJournal> opened = OpenJournalFile(files_, folder_ / FromUtf8(name));
    if (opened.Failure)
        return {{}, opened.Failure};
    AdoptedJournal adopted{std::move(opened.Got.Journal), {}};
    const bool wasDamaged = adopted.Journal.End == JournalEnd::Damaged;
    adopted.Files.push_back({name, opened.Got.Lock, wasDamaged ? RecoveryStem(now) + kDiscardedSuffix : ""});
    for (const std::string& older : adopted.Journal.Head.Replaces) {
        const Result<FileHandle> lock = files_.OpenLocked(folder_ / FromUtf8(older), Existence::Old);
        if (!lock.Failure)
            adopted.Files.push_back({older, lock.Got, {}});
    }
    return {std::move(adopted), {}};
}

void RecoveryFolder::LetGo(const AdoptedJournal& adopted) const {
    for (const RetiredJournal& file : adopted.Files)
        (void)files_.Close(file.Lock);
}

std::error_code RecoveryFolder::Discard(const std::string& name, JournalTime now) const {
    Result<AdoptedJournal> adopted = Adopt(name, now);
    if (adopted.Failure)
        return adopted.Failure;
    std::vector<RetiredJournal>& files = adopted.Got.Files;
    const std::error_code failure =
        files_.Rename(folder_ / FromUtf8(name), folder_ / (RecoveryStem(now) + kDiscardedSuffix));
    if (!failure) { // what it replaced goes for good
        (void)files_.Close(files.front().Lock);
        files.erase(files.begin());
        PutAway(files_, folder_, files);
        return {};
    }
    LetGo(adopted.Got);
    return failure;
}

Result<FileSystem::Path> RecoveryFolder::KeepReplaced(const FileSystem::Path& replaced,
                                                      std::string_view bytes, JournalTime now) const {
    if (const std::error_code failure = files_.MakePrivateFolder(folder_))
        return {{}, failure};
    FileSystem::Path name = RecoveryStem(now) + "-";
    name += replaced.filename();
    const FileSystem::Path path = folder_ / name;
    const Result<FileHandle> file = files_.OpenLocked(path, Existence::New);
    if (file.Failure)
        return {{}, file.Failure};
    std::error_code failure = WriteAll(files_, file.Got, bytes);
    if (!failure)
        failure = files_.Sync(file.Got);
    const std::error_code closing = files_.Close(file.Got);
    if (!failure)
        failure = closing;
    if (!failure)
        failure = files_.SyncFolder(folder_);
    if (!failure || failure == std::errc::invalid_argument) // not every file system can sync a folder
        return {path, {}};
    (void)files_.Remove(path);
    return {{}, failure};
}

// A young part of a journal is left alone: its writer has made it and is about to lock it, and would have no
// journal if it found the lock taken.
void RecoveryFolder::Age(JournalTime now, std::uint64_t mostBytes) const {
    std::vector<Ageing> kept;
    for (Ageing& file : AgeingFiles(files_, folder_)) {
        if (file.IsOver || now - file.Time > file.Limit)
            RemoveUnused(files_, folder_ / file.Name);
        else if (!file.IsUnfinished)
            kept.push_back(std::move(file));
    }
    std::uint64_t size = 0;
    for (const Ageing& file : kept)
        size += file.Size;
    std::stable_sort(kept.begin(), kept.end(), [](const Ageing& a, const Ageing& b) {
        return std::pair(a.IsOrphan, a.Time) < std::pair(b.IsOrphan, b.Time);
    });
    if (!kept.empty() && kept.back().IsOrphan)
        kept.pop_back();
    for (auto file = kept.begin(); file != kept.end() && size > mostBytes; ++file) {
        RemoveUnused(files_, folder_ / file->Name);
        size -= file->Size;
    }
}

std::size_t RecoveryFolder::DeleteAll() const {
    std::size_t left = 0;
    for (const Entry& entry : EntriesOf(files_, folder_))
        left += RemoveUnused(files_, folder_ / entry.Name) ? 0 : 1;
    return left;
}

} // namespace orvane
