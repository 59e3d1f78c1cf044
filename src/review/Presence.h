// SPDX-License-Identifier: GPL-3.0-or-later
// Which states and events there are to be recognised in another version of the document.
#pragma once

#include "core/FsmDocument.h"

#include <vector>

namespace orvane::review {

// The states that hold something or that some transition leads to, in their order. A column that is only of
// another width is none.
std::vector<StateNumber> PresentStates(const FsmDocument& document);

// The event rows, 6..54, that hold an event or a cell with something in it, in their order.
std::vector<RowNumber> PresentEvents(const FsmDocument& document);

bool IsEmptyCell(const StateRecord& state, RowNumber row);

} // namespace orvane::review
