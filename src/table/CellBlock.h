// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/CellChoice.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane {

// What is put into a cell. Where there is none, what the cell has of it stays.
struct BlockCell {
    std::optional<StateNumber> Target;
    std::optional<std::string> Action;

    bool operator==(const BlockCell&) const = default;
};

// A rectangle of transitions away from the table, row by row.
struct CellBlock {
    std::size_t Columns = 0;
    std::vector<BlockCell> Cells; // a multiple of Columns

    std::size_t Rows() const { return Columns == 0 ? 0 : Cells.size() / Columns; }
    bool operator==(const CellBlock&) const = default;
};

CellBlock BlockOf(const FsmDocument& document, const CellChoice& choice);

// Puts the block into the table and returns how many cells were left out. A block of one cell fills the whole
// choice; a larger one is laid down from the choice's corner on, over the rows that are shown. Left out is
// what falls on an event without a name, or off the table; the others keep their places.
std::size_t LayDown(FsmDocument& document, const CellBlock& block, const CellChoice& choice);

// Takes targets and actions out of the cells.
void ClearCells(FsmDocument& document, const CellChoice& choice);

} // namespace orvane
