// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/JournalRecord.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A step of the history as a difference: images of a large document would be gigabytes. The texts live where
// the history keeps them.
struct JournalChange {
    std::string_view Name; // of the edit
    TextDelta Change;      // of the image before
};

// All that a journal has to bring back, as things stand at one moment.
struct JournalState {
    std::string Path;                  // of the document, full, UTF-8; empty when it has no file
    std::optional<JournalStamp> Stamp; // of that file as it was read or saved; none when it has no file
    std::string Document;              // as the writer writes it
    bool ImagesFallShort = false;      // some text holds the delimiter, which undo cannot carry
    std::string Oldest;                // image that undo can reach
    std::vector<JournalChange> Steps;  // that lead from there to the newest one; fewer than kMostImages
    std::size_t Current = 0;           // so many of them lead to the present image
    std::string_view SavedImage;       // that counts as saved; empty when nobody knows
    JournalView View;
    std::vector<JournalDraft> Drafts;

    std::size_t PresentSize() const {
        return Current == 0 ? Oldest.size() : Steps[Current - 1].Change.NewSize();
    }
};

// Who owns what the journal keeps: asked when a file is begun, at the first change and when an old one has
// grown too long or cannot be written any more.
class JournalSource {
  public:
    // The change that is being told is in it already.
    virtual JournalState State() const = 0;
    // The document alone, as in the state.
    virtual std::string DocumentText() const = 0;

  protected:
    ~JournalSource() = default;
};

// A whole journal.
struct JournalFile {
    std::string Bytes;
    std::uint32_t Records = 0;
};

// What a new file is begun with, apart from the state.
struct JournalBeginning {
    std::string_view Salt;
    JournalTime Time;
    std::string Program;
    std::vector<std::string> Replaces; // as in JournalHead
    std::uint64_t Changes = 0;         // made and not saved
};

// None where a text is too long for a record.
std::optional<JournalFile> BeginJournal(const JournalBeginning& beginning, const JournalState& state);

} // namespace orvane
