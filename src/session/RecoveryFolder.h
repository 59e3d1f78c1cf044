// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/JournalReader.h"
#include "session/RecoveryFiles.h"
#include "session/RecoveryName.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// What the environment says of where a program may keep its state; empty for what is not set. UTF-8.
struct RecoveryEnvironment {
    std::string XdgStateHome;
    std::string Home;
    std::string LocalAppData; // on Windows the only one that counts
};

// None when there is no place.
std::optional<FileSystem::Path> RecoveryFolderPath(const RecoveryEnvironment& environment);

// A journal that no window has open, as a list shows it.
struct OrphanedJournal {
    std::string Name;                  // of its file
    std::string Path;                  // of the document, UTF-8; empty when it had no file
    std::optional<JournalStamp> Stamp; // of that file as the journal's window knew it
    JournalTime LastChange;
    std::uint64_t Changes = 0; // steps, undos and redos that were not saved
    std::size_t Drafts = 0;    // open editors
    bool IsModified = false;   // the document differs from the saved one
    bool WasDamaged = false;   // something behind what is there could not be read
    bool WasDiscarded = false; // the user did not want it, but that is not long ago
};

// Recovered work, and the journals that hold it, which are locked until a writer has adopted them or they are
// let go.
struct AdoptedJournal {
    RecoveredJournal Journal;
    std::vector<RetiredJournal> Files;
};

// The folder with the journals and the bytes of replaced files. Files that this program did not name are
// never touched, nor are journals that somebody has open.
class RecoveryFolder {
  public:
    static constexpr std::chrono::days kDiscardedAge{7};
    static constexpr std::chrono::days kAge{90};            // of orphans and of replaced bytes
    static constexpr std::chrono::hours kUnfinishedAge{1};  // of what nobody will finish any more
    static constexpr std::uint64_t kMostBytes = 200u << 20; // in all

    RecoveryFolder(FileSystem& files, FileSystem::Path folder) : files_(files), folder_(std::move(folder)) {}

    // Journals with unsaved work, and discarded ones; the one changed last comes first. One that a newer
    // journal replaces is not among them.
    std::vector<OrphanedJournal> Orphans() const;

    // Takes the journal, with those that it replaces. Fails with device_or_resource_busy when another window
    // was faster, and with what the system says when it cannot be read. Of a damaged one all is brought back
    // that stands before the damage, and the file is kept among the discarded ones.
    Result<AdoptedJournal> Adopt(const std::string& name, JournalTime now) const;
    // It was looked at only.
    void LetGo(const AdoptedJournal& adopted) const;
    // The user does not want it: it becomes one of the discarded.
    std::error_code Discard(const std::string& name, JournalTime now) const;

    // Keeps the bytes of a file that is about to be replaced, and waits for the disk. Gives the path of the
    // copy.
    Result<FileSystem::Path> KeepReplaced(const FileSystem::Path& replaced, std::string_view bytes,
                                          JournalTime now) const;

    // Removes what is over: closed and saved journals, parts of new ones, and what is too old or too much.
    // Of too much the discarded and replaced go first, each time the oldest; the newest orphan never.
    void Age(JournalTime now, std::uint64_t mostBytes = kMostBytes) const;
    // Removes all that no window has open. Gives how many files could not be removed.
    std::size_t DeleteAll() const;

  private:
    FileSystem& files_;
    FileSystem::Path folder_;
};

} // namespace orvane
