// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/JournalRecord.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// As many images as the undo ring can reach: the present one and the steps before and behind it.
inline constexpr std::size_t kMostImages = 100;

struct JournalStep {
    std::string Image;
    std::string Name; // of the edit that led here; empty for the oldest
    JournalTime Time;

    bool operator==(const JournalStep&) const = default;
};

// What happened, record after record. The images are kept as the changes they are written as and are only
// made at the end, those that can still be reached: two thousand images of a full table would be gigabytes.
class JournalStory {
  public:
    // What the records told in passing.
    JournalHead Head; // path and stamp as of the last save
    std::string DocumentText;
    bool InsteadOfImage = false; // see DocumentRecord
    std::optional<JournalView> View;
    std::vector<JournalDraft> Drafts;
    std::optional<JournalClose> Closed;
    JournalTime LastChange;
    std::uint64_t Changes = 0; // steps, undos and redos since the last save

    // The bytes that the record was decoded from must outlive the story. False, and nothing changes, for a
    // record that cannot follow those before it.
    bool Take(const JournalRecord& record);

    // Oldest first; empty while there is no image.
    std::vector<JournalStep> History() const;
    std::size_t Current() const { return current_; } // its place in the history
    std::optional<std::string> SavedImage() const;

  private:
    struct Node {
        std::optional<std::size_t> Parent; // the node that this is a change of; none, of nothing
        TextDelta Change;
        std::size_t Size = 0; // of the image, bytes
        std::string_view Name;
        JournalTime Time;
    };

    bool Tell(const HeadRecord& record, JournalTime time);
    bool Tell(const DocumentRecord& record, JournalTime time);
    bool Tell(const ImageRecord& record, JournalTime time);
    bool Tell(const CommitRecord& record, JournalTime time);
    bool Tell(const MoveRecord& record, JournalTime time);
    bool Tell(const ViewRecord& record, JournalTime time);
    bool Tell(const DraftRecord& record, JournalTime time);
    bool Tell(const DraftGoneRecord& record, JournalTime time);
    bool Tell(const SavedRecord& record, JournalTime time);
    bool Tell(const ClosedRecord& record, JournalTime time);
    bool Tell(const StandRecord& record, JournalTime time);

    std::optional<std::size_t> PresentNode() const;
    // None when the change does not fit the present image, or gives an empty one.
    std::optional<Node> Following(const TextDelta& change, JournalTime time) const;
    void ForgetDraft(const JournalDraft& editor);
    std::string ImageOf(std::size_t node) const;

    std::vector<Node> nodes_;
    std::deque<std::size_t> chain_; // the nodes that undo and redo can reach
    std::size_t current_ = 0;
    std::optional<std::size_t> saved_;
    bool begun_ = false;
};

} // namespace orvane
