// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Presence.h"

#include <algorithm>
#include <array>

namespace orvane::review {

bool IsEmptyCell(const StateRecord& state, RowNumber row) {
    return state.Targets[row] == kNoState && state.Actions[row].empty();
}

std::vector<StateNumber> PresentStates(const FsmDocument& document) {
    std::array<bool, kTableColumns> isTarget{};
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows())
            isTarget[IndexIn(TableColumns(), document.State(state).Targets[row])] = true;
    }
    std::vector<StateNumber> present;
    for (const StateNumber state : StateNumbers()) {
        if (isTarget[IndexIn(TableColumns(), state)] || !IsEmpty(document.State(state)))
            present.push_back(state);
    }
    return present;
}

std::vector<RowNumber> PresentEvents(const FsmDocument& document) {
    std::vector<RowNumber> present;
    for (const RowNumber row : EventRows()) {
        const auto hasCell = [&](StateNumber state) { return !IsEmptyCell(document.State(state), row); };
        if (!IsEmpty(document.Event(row)) ||
            std::any_of(StateNumbers().begin(), StateNumbers().end(), hasCell))
            present.push_back(row);
    }
    return present;
}

} // namespace orvane::review
