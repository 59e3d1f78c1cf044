// SPDX-License-Identifier: GPL-3.0-or-later
// Brings back what a journal holds.
#pragma once

#include "core/FsmDocument.h"
#include "session/JournalStory.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

enum class JournalEnd {
    Clean,   // behind the last record
    Torn,    // inside a record that was being written, or in what the disk left there: nothing was lost
    Damaged, // in front of whole records, or it is no journal at all: the user has to be told
};

struct RecoveredJournal {
    JournalHead Head;                      // path and stamp as of the last save
    FsmDocument Document = FsmDocument();  // as it stood
    std::vector<JournalStep> History;      // oldest first; empty when there is nothing to recover
    std::size_t Current = 0;               // the place in the history that the document stood at
    std::optional<std::string> SavedImage; // none when nobody knows any more
    // Undo cannot carry the document: see DocumentRecord.
    bool ImagesFallShort = false;
    std::vector<JournalDraft> Drafts; // of open editors, the one touched last at the end
    std::optional<JournalClose> Closed;
    JournalTime LastChange;
    std::uint64_t Changes = 0; // steps, undos and redos since the last save

    JournalEnd End = JournalEnd::Damaged;
    std::size_t GoodBytes = 0;         // of the file, up to where it was read
    std::uint32_t Records = 0;         // up to there
    std::vector<std::string> Messages; // what unpacking the present image told, as Unpack

    bool IsModified() const { return !History.empty() && History[Current].Image != SavedImage; }
    // Whether somebody would miss it.
    bool HasUnsavedWork() const { return !Closed && (IsModified() || !Drafts.empty()); }
};

// Takes records while all of them is right; the first that is not ends the journal. Never fails: bytes that
// are no journal hold no history.
RecoveredJournal Recover(std::string_view bytes);

} // namespace orvane
