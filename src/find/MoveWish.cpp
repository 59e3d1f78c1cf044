// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/MoveWish.h"

#include "table/StateSorting.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::find {

namespace {

bool IsNumber(std::string_view text) {
    return !text.empty() && text.size() < 6 && std::all_of(text.begin(), text.end(), IsAsciiDigit);
}

template <typename Order, typename Number>
WishedOrder ToPlace(const MoveWish& wish, Number from) {
    const auto range = Order::All();
    const std::string_view typed = Trim(wish.Place);
    const std::optional<Number> place = IsNumber(typed) ? NumberIn(range, ParseNumber(typed)) : std::nullopt;
    if (!place)
        return {std::nullopt, "Type a number from " + NumberText(range.First().Number()) + " to " +
                                  NumberText(range.Last().Number())};
    if (*place == from)
        return {std::nullopt, "That is where it stands"};
    return {wish.Kind == MoveKind::Swap ? Order::Swapping(from, *place) : Order::Moving(from, *place), {}};
}

bool KeepsAll(const TableOrder& order) {
    return std::visit([](const auto& places) { return places.KeepsAll(); }, order);
}

TableOrder Sorted(const FsmDocument& document, const MoveWish& wish) {
    if (wish.Kind == MoveKind::SortByName)
        return SortedByName(document, wish.StartToo ? StartState::IsSorted : StartState::Stays);
    if (wish.Kind == MoveKind::SortByWay)
        return SortedByWay(document);
    if (wish.What.State == kNoState)
        return EventGapsClosed(document);
    return StateGapsClosed(document);
}

} // namespace

WishedOrder OrderOf(const FsmDocument& document, const MoveWish& wish) {
    if (wish.Kind == MoveKind::ToPlace || wish.Kind == MoveKind::Swap) {
        if (wish.What.State == kNoState)
            return ToPlace<EventOrder>(wish, wish.What.Row);
        return ToPlace<StateOrder>(wish, wish.What.State);
    }
    const TableOrder order = Sorted(document, wish);
    if (KeepsAll(order))
        return {std::nullopt, "They stand so already"};
    return {order, {}};
}

std::string_view StepName(const MoveWish& wish) {
    const bool ofEvent = wish.What.State == kNoState;
    switch (wish.Kind) {
    case MoveKind::ToPlace:
        break;
    case MoveKind::Swap:
        return ofEvent ? "swap events" : "swap states";
    case MoveKind::SortByName:
    case MoveKind::SortByWay:
        return "sort states";
    case MoveKind::CloseGaps:
        return "close gaps";
    }
    return ofEvent ? "move event" : "move state";
}

} // namespace orvane::find
