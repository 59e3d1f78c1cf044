// SPDX-License-Identifier: GPL-3.0-or-later
// Transition targets typed into the cells of the table, rows 4..54, states 1..100.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "core/UserMessage.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// A row of events takes transitions once the event has a name; the rows above always do.
bool CanEditCell(const FsmDocument& document, RowNumber row);

// What the editor of a cell starts with: the number of the target, nothing without one.
std::string CellEditText(const FsmDocument& document, Cell cell);

// What the user is told of a typed number that no column has; none for 0..100, and for nothing, which is 0.
std::optional<UserMessage> RefusalOfTarget(std::string_view text);

// Stores the typed number as the cell's target. Nothing, or 0, deletes the cell's action as well. Any number
// up to 100 will do, whether or not that state has a name. One that is refused leaves the document as it is.
std::optional<UserMessage> StoreTypedTarget(FsmDocument& document, Cell cell, std::string_view text);

// Where the event of the row leads from the current state, which is the cell's; kNoState when there is no
// current state, when the row has no transitions or this one has none.
StateNumber StepTarget(const FsmDocument& document, Cell cell);

} // namespace orvane
