// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "print/Letters.h"

#include <vector>

namespace orvane::print {

// A cell of the printed table: lines of UTF-8 that fit its width.
using CellLines = std::vector<std::string>;

// The printed table before it is cut into pages. Row 0 and column 0 are the heads.
struct PrintedTable {
    std::vector<int> Widths;                   // by column, twips
    std::vector<int> Heights;                  // by row
    std::vector<std::vector<CellLines>> Cells; // by row and column
    int CutTexts = 0;                          // that end in dots
};

// No column is wider than a third of the paper, so that beside the heads there is always room for one.
// Columns are narrower where that saves pages and cuts no text.
PrintedTable MeasuredTable(const FsmDocument& document, const Paper& paper, const Letters& letters);

// Between a cell's border and its text.
inline constexpr int kCellGap = 50;

} // namespace orvane::print
