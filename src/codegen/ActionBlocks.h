// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <string>
#include <vector>

namespace orvane {

// Whether the program has a block for the action of the cell, 4..54, with a label behind it. An ELSE has an
// action but no label, and a timeout with a variable limit has no place for one.
bool HasActionBlock(const FsmDocument& document, Cell cell);

// The label behind each action of the state, with the row of the action, in the order of the program.
struct SkipLabel {
    RowNumber Row;
    std::string Label;
};
std::vector<SkipLabel> SkipLabels(const FsmDocument& document, StateNumber state);

} // namespace orvane
