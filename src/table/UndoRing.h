// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

// The last snapshots of a document, for undo and redo, and the one that was saved.
//
// 101 slots in a ring, a cursor on the slot of the present document. The slot behind the cursor is emptied by
// every push: it marks the end of the ring, so that 99 older snapshots can be reached at most.
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

    // Step to the older or newer snapshot. Returns its image, or null at the end, where nothing changes. The
    // image lives until the ring is next changed.
    const std::string* UndoStep();
    const std::string* RedoStep();
    bool CanUndo() const;
    bool CanRedo() const;
    // What the next step back takes back, and the next one forward does again.
    const std::string& UndoName() const { return slots_[cursor_].Name; }
    const std::string& RedoName() const { return slots_[NextSlot(cursor_)].Name; }

    const std::string& Current() const { return slots_[cursor_].Image; }
    // The image before the present one; empty when there is none.
    const std::string& Previous() const { return slots_[PrevSlot(cursor_)].Image; }

    // The document as it stands has been saved.
    void MarkSaved(std::string image) { savedText_ = std::move(image); }
    bool IsModified() const { return Current() != savedText_; }

  private:
    static std::size_t NextSlot(std::size_t slot) { return slot + 1 == kSlotCount ? 0 : slot + 1; }
    static std::size_t PrevSlot(std::size_t slot) { return slot == 0 ? kSlotCount - 1 : slot - 1; }
    const std::string* StepTo(std::size_t slot);

    std::array<Snapshot, kSlotCount> slots_;
    std::size_t cursor_ = 0;
    std::string savedText_;
};

} // namespace orvane
