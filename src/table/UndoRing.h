// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/TextDelta.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A document as it was, and what was done to make it so.
struct Snapshot {
    std::string Image; // never empty, but in an empty slot
    std::string Name;  // of the edit: "insert state"; empty for the document that the history began with

    bool operator==(const Snapshot&) const = default;
};

// The snapshots that can be reached from the present one.
struct UndoHistory {
    std::vector<Snapshot> Snapshots; // oldest first
    std::size_t Current = 0;         // the place of the present one
    std::string SavedText;           // the image that was saved; empty when nobody knows
};

// The same as differences, which are small where the snapshots are not. The texts of the steps live in the
// ring until it is next changed.
struct UndoStory {
    struct Step {
        std::string_view Name;
        TextDelta Change; // of the snapshot before
    };

    std::string Oldest;
    std::vector<Step> Steps;
    std::size_t Current = 0; // so many steps lead to the present one
    std::string_view SavedText;
};

// The last snapshots of a document, for undo and redo, and the one that was saved.
//
// 101 slots in a ring, a cursor on the slot of the present document. The slot behind the cursor is emptied by
// every push: it marks the end of the ring, so that 99 older snapshots can be reached at most.
//
// Only the present image is whole. A slot holds what its snapshot has otherwise than the one before, so that
// a letter in a document with a text of many megabytes costs a letter and not the document once more.
class UndoRing {
  public:
    static constexpr std::size_t kSlotCount = 101;

    // Forgets everything and starts with this image, which also counts as saved.
    void Reset(std::string image);

    // Pushes the image when it differs from the present one; redo ends there. Returns whether it was pushed.
    // The name says what was done.
    bool Commit(std::string image, std::string_view name = {});

    // All that can be reached, and the ring again with that in it. Of more than 100 snapshots the oldest are
    // left out.
    UndoHistory History() const;
    void Restore(UndoHistory history);
    UndoStory Story() const;

    // Step to the older or newer snapshot. Returns its image, or null at the end, where nothing changes. The
    // image lives until the ring is next changed.
    const std::string* UndoStep();
    const std::string* RedoStep();
    bool CanUndo() const;
    bool CanRedo() const;
    // What the next step back takes back, and the next one forward does again.
    const std::string& UndoName() const { return slots_[cursor_].Name; }
    const std::string& RedoName() const { return slots_[NextSlot(cursor_)].Name; }

    const std::string& Current() const { return current_; }
    // What a Commit that has just pushed an image has put it in the place of; empty at any other time.
    const std::string& Previous() const { return previous_; }

    // The document as it stands has been saved.
    void MarkSaved(std::string image) { savedText_ = std::move(image); }
    bool IsModified() const { return Current() != savedText_; }

  private:
    struct Slot {
        bool IsUsed = false;
        std::string Name;
        std::size_t Prefix = 0;  // what the snapshot and the one before begin with alike, bytes
        std::string OlderMiddle; // what stands behind that in the one before, up to what they end with alike
        std::string NewerMiddle; // the same of the snapshot itself
    };

    static std::size_t NextSlot(std::size_t slot) { return slot + 1 == kSlotCount ? 0 : slot + 1; }
    static std::size_t PrevSlot(std::size_t slot) { return slot == 0 ? kSlotCount - 1 : slot - 1; }
    void Push(std::string image, std::string name);
    // The oldest slot that can be reached, and the image of it.
    std::size_t OldestSlot() const;
    std::string OldestImage() const;

    std::array<Slot, kSlotCount> slots_;
    std::size_t cursor_ = 0;
    std::string current_;
    std::string previous_;
    std::string savedText_;
};

} // namespace orvane
