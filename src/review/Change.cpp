// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Change.h"

#include <algorithm>
#include <utility>

namespace orvane::review {

namespace {

ChangeKind MirroredKind(ChangeKind kind) {
    switch (kind) {
    case ChangeKind::EventAdded:
        return ChangeKind::EventRemoved;
    case ChangeKind::EventRemoved:
        return ChangeKind::EventAdded;
    case ChangeKind::StateAdded:
        return ChangeKind::StateRemoved;
    case ChangeKind::StateRemoved:
        return ChangeKind::StateAdded;
    default:
        return kind;
    }
}

// With the same number on both sides, gaps counted.
template <typename Number>
bool KeepsNumbers(const Pairing<Number>& pairing) {
    const auto keeps = [&](Number number) {
        return !pairing.HasNew(number) || pairing.NewOf(number) == number;
    };
    return std::all_of(pairing.Numbers().begin(), pairing.Numbers().end(), keeps);
}

} // namespace

const char* ChangeKindName(ChangeKind kind) {
    switch (kind) {
    case ChangeKind::MachineField:
        return "machine-field";
    case ChangeKind::EventAdded:
        return "event-added";
    case ChangeKind::EventRemoved:
        return "event-removed";
    case ChangeKind::EventMoved:
        return "event-moved";
    case ChangeKind::EventField:
        return "event-field";
    case ChangeKind::StateAdded:
        return "state-added";
    case ChangeKind::StateRemoved:
        return "state-removed";
    case ChangeKind::StateMoved:
        return "state-moved";
    case ChangeKind::StateField:
        return "state-field";
    case ChangeKind::Target:
        return "target";
    case ChangeKind::Action:
        return "action";
    case ChangeKind::BlankWidth:
        break;
    }
    return "blank-width";
}

bool ChangeList::IsEmpty() const {
    return Changes.empty() && KeepsNumbers(Same.States) && KeepsNumbers(Same.Rows);
}

// Only the order is another one.
ChangeList ChangeList::Mirrored() const {
    ChangeList mirrored{Same.Mirrored(), Changes};
    for (Change& change : mirrored.Changes) {
        change.Kind = MirroredKind(change.Kind);
        std::swap(change.Old, change.New);
        std::swap(change.Before, change.After);
    }
    return mirrored;
}

ChangeList ChangeList::WithoutView() const {
    ChangeList design = *this;
    std::erase_if(design.Changes, [](const Change& change) { return change.IsOfTheView; });
    return design;
}

} // namespace orvane::review
