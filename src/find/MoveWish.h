// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/MovePlan.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane::find {

enum class MoveKind { ToPlace, Swap, SortByName, SortByWay, CloseGaps };

// What the user wants moved: the state, unless the cell's is kNoState: then the event.
struct MoveWish {
    MoveKind Kind = MoveKind::ToPlace;
    Cell What;
    std::string Place;     // as typed: a number; of ToPlace and Swap
    bool StartToo = false; // SortByName sorts state 1 too
};

// The order that the wish asks for, or why there is none, as a sentence.
struct WishedOrder {
    std::optional<TableOrder> Order;
    std::string Refusal;
};
WishedOrder OrderOf(const FsmDocument& document, const MoveWish& wish);

// What undo tells of it; lives as long as the program.
std::string_view StepName(const MoveWish& wish);

} // namespace orvane::find
