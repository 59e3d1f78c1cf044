// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/JournalRecord.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// An image of the history and the edit that led to it. Both live where the history keeps them.
struct JournalImage {
    std::string_view Image;
    std::string_view Name; // empty for the oldest
};

// All that a journal has to bring back, as things stand at one moment.
struct JournalState {
    std::string Path;                  // of the document, full, UTF-8; empty when it has no file
    std::optional<JournalStamp> Stamp; // of that file as it was read or saved; none when it has no file
    std::string Document;              // as the writer writes it
    bool ImagesFallShort = false;      // some text holds the delimiter, which undo cannot carry
    std::vector<JournalImage> History; // oldest first, at least one and not more than kMostImages
    std::size_t Current = 0;           // the place in the history
    std::string_view SavedImage;       // that counts as saved; empty when nobody knows
    JournalView View;
    std::vector<JournalDraft> Drafts;
};

// Who owns what the journal keeps: asked when a file is begun, at the first change and when an old one has
// grown too long or cannot be written any more.
class JournalSource {
  public:
    // The change that is being told is in it already.
    virtual JournalState State() const = 0;

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
