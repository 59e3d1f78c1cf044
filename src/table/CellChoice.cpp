// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellChoice.h"

#include "table/CellEdit.h"

#include <algorithm>

namespace orvane {

bool HasTransition(Cell place) {
    return CellRows().Contains(place.Row) && StateNumbers().Contains(place.State);
}

bool IsShown(const FsmDocument& document, RowNumber row) {
    const RowHeights& heights = document.View.RowVisible;
    if (row == RowNumber(kTimeoutRow))
        return heights.TimeTarget > Twips(0);
    return row != RowNumber(kElseRow) || heights.Else > Twips(0);
}

std::vector<RowNumber> ShownRowsFrom(const FsmDocument& document, RowNumber first) {
    std::vector<RowNumber> rows;
    for (const RowNumber row : RowRange(first, kLastRow)) {
        if (IsShown(document, row))
            rows.push_back(row);
    }
    return rows;
}

CellChoice ChoiceBetween(const FsmDocument& document, Cell anchor, Cell end) {
    CellChoice choice;
    if (!HasTransition(anchor) || !HasTransition(end))
        return choice;
    const auto [top, bottom] = std::minmax(anchor.Row, end.Row);
    const auto [left, right] = std::minmax(anchor.State, end.State);
    for (const RowNumber row : RowRange(top, bottom)) {
        if (IsShown(document, row))
            choice.Rows.push_back(row);
    }
    for (const StateNumber state : StateRange(left, right))
        choice.States.push_back(state);
    return choice;
}

CellChoice WholeChoice(const FsmDocument& document) {
    CellChoice choice;
    for (const RowNumber row : CellRows()) {
        if (IsShown(document, row) && CanEditCell(document, row))
            choice.Rows.push_back(row);
    }
    for (const StateNumber state : StateNumbers()) {
        if (!document.State(state).Name.empty())
            choice.States.push_back(state);
    }
    return choice;
}

} // namespace orvane
