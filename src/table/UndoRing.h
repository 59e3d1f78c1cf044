// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

// The last snapshots of a document, for undo and redo, and the one that was saved.
//
// 101 slots in a ring, a cursor on the slot of the present document. The slot behind the cursor is emptied by
// every push: it marks the end of the ring, so that 99 older snapshots can be reached at most. An image is
// never empty; an empty slot holds none.
class UndoRing {
  public:
    static constexpr std::size_t kSlotCount = 101;

    // Forgets everything and starts with this image, which also counts as saved.
    void Reset(std::string image);

    // Pushes the image when it differs from the present one; redo ends there. Returns whether it was pushed.
    // The name says what was done; it lives as long as the program.
    bool Commit(std::string image, std::string_view name = {});

    // Step to the older or newer snapshot. Returns its image, or null at the end, where nothing changes. The
    // image lives until the ring is next changed.
    const std::string* UndoStep();
    const std::string* RedoStep();
    bool CanUndo() const;
    bool CanRedo() const;
    // What the next step back takes back, and the next one forward does again.
    std::string_view UndoName() const { return names_[cursor_]; }
    std::string_view RedoName() const { return names_[NextSlot(cursor_)]; }

    const std::string& Current() const { return slots_[cursor_]; }

    // The document as it stands has been saved.
    void MarkSaved(std::string image) { savedText_ = std::move(image); }
    bool IsModified() const { return Current() != savedText_; }

  private:
    static std::size_t NextSlot(std::size_t slot) { return slot + 1 == kSlotCount ? 0 : slot + 1; }
    static std::size_t PrevSlot(std::size_t slot) { return slot == 0 ? kSlotCount - 1 : slot - 1; }
    const std::string* StepTo(std::size_t slot);

    std::array<std::string, kSlotCount> slots_;
    std::array<std::string_view, kSlotCount> names_; // of what led to the snapshot from the one before
    std::size_t cursor_ = 0;
    std::string savedText_;
};

} // namespace orvane
