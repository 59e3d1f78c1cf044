// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <vector>

namespace orvane {

// Cells that a command works on: those where one of the rows, 4..54, crosses one of the states, both in
// ascending order. The rows need not be neighbours: what is hidden lies between them and is no part of it.
struct CellChoice {
    std::vector<RowNumber> Rows;
    std::vector<StateNumber> States;

    bool IsEmpty() const { return Rows.empty() || States.empty(); }
    std::size_t Size() const { return Rows.size() * States.size(); }
    bool operator==(const CellChoice&) const = default;
};

// Rows 4..54, states 1..100.
bool HasTransition(Cell place);

// A row of transitions that the document shows.
bool IsShown(const FsmDocument& document, RowNumber row);

// The rows of transitions that are shown, from this one on.
std::vector<RowNumber> ShownRowsFrom(const FsmDocument& document, RowNumber first);

// The rectangle with these two in opposite corners, in whatever order; empty when either has no transitions.
CellChoice ChoiceBetween(const FsmDocument& document, Cell anchor, Cell end);

// All cells that mean something: of the states with a name, in the rows that are shown and, for events, have
// a name.
CellChoice WholeChoice(const FsmDocument& document);

} // namespace orvane
