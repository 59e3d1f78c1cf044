// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/UndoRing.h"

#include <utility>

namespace orvane {

void UndoRing::Reset(std::string image) {
    slots_.fill({});
    names_.fill({});
    cursor_ = 0;
    slots_[cursor_] = image;
    savedText_ = std::move(image);
}

bool UndoRing::Commit(std::string image, std::string_view name) {
    if (image == Current())
        return false;
    cursor_ = NextSlot(cursor_);
    slots_[cursor_] = std::move(image);
    names_[cursor_] = name;
    slots_[NextSlot(cursor_)].clear();
    names_[NextSlot(cursor_)] = {};
    return true;
}

const std::string* UndoRing::UndoStep() { return StepTo(PrevSlot(cursor_)); }

const std::string* UndoRing::RedoStep() { return StepTo(NextSlot(cursor_)); }

bool UndoRing::CanUndo() const { return !slots_[PrevSlot(cursor_)].empty(); }

bool UndoRing::CanRedo() const { return !slots_[NextSlot(cursor_)].empty(); }

const std::string* UndoRing::StepTo(std::size_t slot) {
    if (slots_[slot].empty())
        return nullptr;
    cursor_ = slot;
    return &slots_[slot];
}

} // namespace orvane
