// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/UndoRing.h"

#include <algorithm>
#include <utility>

namespace orvane {

void UndoRing::Reset(std::string image) {
    slots_.fill({});
    cursor_ = 0;
    slots_[cursor_].IsUsed = true;
    previous_.clear();
    current_ = image;
    savedText_ = std::move(image);
}

bool UndoRing::Commit(std::string image, std::string_view name) {
    if (image == Current())
        return false;
    Push(std::move(image), std::string(name));
    slots_[NextSlot(cursor_)] = {};
    return true;
}

void UndoRing::Push(std::string image, std::string name) {
    const TextDelta newer = Difference(current_, image);
    const std::size_t olderSize = current_.size() - newer.Prefix - newer.Suffix;
    cursor_ = NextSlot(cursor_);
    slots_[cursor_] = {.IsUsed = true,
                       .Name = std::move(name),
                       .Prefix = newer.Prefix,
                       .OlderMiddle = current_.substr(newer.Prefix, olderSize),
                       .NewerMiddle = std::string(newer.Middle)};
    previous_ = std::exchange(current_, std::move(image));
}

const std::string* UndoRing::UndoStep() {
    if (!CanUndo())
        return nullptr;
    const Slot& step = slots_[cursor_];
    current_.replace(step.Prefix, step.NewerMiddle.size(), step.OlderMiddle);
    previous_.clear();
    cursor_ = PrevSlot(cursor_);
    return &current_;
}

const std::string* UndoRing::RedoStep() {
    if (!CanRedo())
        return nullptr;
    cursor_ = NextSlot(cursor_);
    const Slot& step = slots_[cursor_];
    current_.replace(step.Prefix, step.OlderMiddle.size(), step.NewerMiddle);
    previous_.clear();
    return &current_;
}

bool UndoRing::CanUndo() const { return slots_[PrevSlot(cursor_)].IsUsed; }

bool UndoRing::CanRedo() const { return slots_[NextSlot(cursor_)].IsUsed; }

// On a ring of its own: back to the oldest, and from there forward, image by image.
UndoHistory UndoRing::History() const {
    UndoRing walked = *this;
    UndoHistory history;
    while (walked.UndoStep() != nullptr)
        ++history.Current;
    do
        history.Snapshots.push_back({walked.Current(), walked.UndoName()});
    while (walked.RedoStep() != nullptr);
    history.SavedText = savedText_;
    return history;
}

std::size_t UndoRing::OldestSlot() const {
    std::size_t slot = cursor_;
    while (slots_[PrevSlot(slot)].IsUsed)
        slot = PrevSlot(slot);
    return slot;
}

std::string UndoRing::OldestImage() const {
    std::string image = current_;
    for (std::size_t slot = cursor_; slot != OldestSlot(); slot = PrevSlot(slot))
        image.replace(slots_[slot].Prefix, slots_[slot].NewerMiddle.size(), slots_[slot].OlderMiddle);
    return image;
}

UndoStory UndoRing::Story() const {
    UndoStory story{.Oldest = OldestImage(), .Steps = {}, .SavedText = savedText_};
    std::size_t size = story.Oldest.size();
    for (std::size_t slot = OldestSlot(); slots_[slot].IsUsed; slot = NextSlot(slot)) {
        if (slot != OldestSlot()) {
            const Slot& step = slots_[slot];
            const std::size_t suffix = size - step.Prefix - step.OlderMiddle.size();
            story.Steps.push_back({step.Name, {step.Prefix, suffix, step.NewerMiddle}});
            size = story.Steps.back().Change.NewSize();
        }
        if (slot == cursor_)
            story.Current = story.Steps.size();
    }
    return story;
}

void UndoRing::Restore(UndoHistory history) {
    const std::size_t room = kSlotCount - 1; // one slot is the marker
    const std::size_t count = history.Snapshots.size();
    const std::size_t leftOut = count > room ? count - room : 0;
    Reset(std::move(history.Snapshots[leftOut].Image));
    slots_[cursor_].Name = std::move(history.Snapshots[leftOut].Name);
    for (std::size_t i = leftOut + 1; i < count; ++i)
        Push(std::move(history.Snapshots[i].Image), std::move(history.Snapshots[i].Name));
    for (std::size_t at = count - 1; at > std::max(history.Current, leftOut); --at)
        UndoStep();
    previous_.clear();
    savedText_ = std::move(history.SavedText);
}

} // namespace orvane
