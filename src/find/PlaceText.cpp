// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/PlaceText.h"

#include "core/StateLabel.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::find {

namespace {

std::string EventTitle(const FsmDocument& document, RowNumber row) {
    if (row == kTimeoutRow)
        return "timeout";
    if (row == kElseRow)
        return "ELSE";
    const std::string& name = document.Event(row).Name;
    return "on " + (name.empty() ? "row " + NumberText(row.Number()) : name);
}

} // namespace

std::string CellTitle(const FsmDocument& document, Cell place) {
    if (place == Cell{})
        return "Machine";
    if (place.State == kNoState)
        return "Event row " + NumberText(place.Row.Number()) + ": " + document.Event(place.Row).Name;
    const std::string state = StateLabel(place.State, document.State(place.State).Name);
    if (place.Row < kFirstCellRow)
        return "State " + state;
    return state + ", " + EventTitle(document, place.Row);
}

std::string PlaceTitle(const FsmDocument& document, const TextPlace& place) {
    return CellTitle(document, place.At) + ", " + std::string(KindOf(place).Name);
}

} // namespace orvane::find
