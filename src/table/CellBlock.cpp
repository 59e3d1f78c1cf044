// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellBlock.h"

#include "table/CellEdit.h"

namespace orvane {

namespace {

bool Store(FsmDocument& document, const BlockCell& cell, Cell place) {
    if (!HasTransition(place) || !CanEditCell(document, place.Row))
        return false;
    StateRecord& state = document.State(place.State);
    if (cell.Target)
        state.Targets[place.Row] = *cell.Target;
    if (cell.Action)
        state.Actions[place.Row] = *cell.Action;
    return true;
}

std::size_t Fill(FsmDocument& document, const BlockCell& cell, const CellChoice& choice) {
    std::size_t leftOut = 0;
    for (const RowNumber row : choice.Rows) {
        for (const StateNumber state : choice.States)
            leftOut += Store(document, cell, {row, state}) ? 0 : 1;
    }
    return leftOut;
}

} // namespace

CellBlock BlockOf(const FsmDocument& document, const CellChoice& choice) {
    CellBlock block{choice.States.size(), {}};
    for (const RowNumber row : choice.Rows) {
        for (const StateNumber state : choice.States)
            block.Cells.push_back({document.State(state).Targets[row], document.State(state).Actions[row]});
    }
    return block;
}

std::size_t LayDown(FsmDocument& document, const CellBlock& block, const CellChoice& choice) {
    if (choice.IsEmpty())
        return block.Cells.size();
    if (block.Cells.size() == 1)
        return Fill(document, block.Cells.front(), choice);
    const std::vector<RowNumber> rows = ShownRowsFrom(document, choice.Rows.front());
    std::size_t leftOut = 0;
    for (std::size_t at = 0; at < block.Cells.size(); ++at) {
        const std::size_t row = at / block.Columns;
        const StateNumber state = choice.States.front() + int(at % block.Columns);
        if (row >= rows.size() || !Store(document, block.Cells[at], {rows[row], state}))
            ++leftOut;
    }
    return leftOut;
}

void ClearCells(FsmDocument& document, const CellChoice& choice) {
    for (const RowNumber row : choice.Rows) {
        for (const StateNumber state : choice.States) {
            document.State(state).Targets[row] = kNoState;
            document.State(state).Actions[row].clear();
        }
    }
}

} // namespace orvane
