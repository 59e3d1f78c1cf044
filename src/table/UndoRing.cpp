// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/UndoRing.h"

#include <utility>

namespace orvane {

void UndoRing::Reset(std::string image) {
    slots_.fill({});
    cursor_ = 0;
    slots_[cursor_].Image = image;
    savedText_ = std::move(image);
}

bool UndoRing::Commit(std::string image, std::string_view name) {
    if (image == Current())
        return false;
    cursor_ = NextSlot(cursor_);
    slots_[cursor_] = {std::move(image), std::string(name)};
    slots_[NextSlot(cursor_)] = {};
    return true;
}

const std::string* UndoRing::UndoStep() { return StepTo(PrevSlot(cursor_)); }

const std::string* UndoRing::RedoStep() { return StepTo(NextSlot(cursor_)); }

bool UndoRing::CanUndo() const { return !slots_[PrevSlot(cursor_)].Image.empty(); }

bool UndoRing::CanRedo() const { return !slots_[NextSlot(cursor_)].Image.empty(); }

const std::string* UndoRing::StepTo(std::size_t slot) {
    if (slots_[slot].Image.empty())
        return nullptr;
    cursor_ = slot;
    return &slots_[slot].Image;
}

// The marker is an empty slot, so that both walks end.
UndoHistory UndoRing::History() const {
    std::size_t oldest = cursor_;
    while (!slots_[PrevSlot(oldest)].Image.empty())
        oldest = PrevSlot(oldest);
    UndoHistory history;
    for (std::size_t slot = oldest; !slots_[slot].Image.empty(); slot = NextSlot(slot)) {
        if (slot == cursor_)
            history.Current = history.Snapshots.size();
        history.Snapshots.push_back(slots_[slot]);
    }
    history.SavedText = savedText_;
    return history;
}

void UndoRing::Restore(UndoHistory history) {
    const std::size_t room = kSlotCount - 1; // one slot is the marker
    const std::size_t count = history.Snapshots.size();
    const std::size_t leftOut = count > room ? count - room : 0;
    slots_.fill({});
    for (std::size_t i = leftOut; i < count; ++i)
        slots_[i - leftOut] = std::move(history.Snapshots[i]);
    cursor_ = history.Current > leftOut ? history.Current - leftOut : 0;
    savedText_ = std::move(history.SavedText);
}

} // namespace orvane
