// SPDX-License-Identifier: GPL-3.0-or-later
// What the cells of the table say. Every text is computed from the document; nothing is read back from the
// table.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "table/TextFitting.h"

#include <string>

namespace orvane {

// The text of a cell, heads included. All texts but the names of events are
// fitted to the width that the document gives the column. Any other cell throws BoundsError.
std::string CellText(const FsmDocument& document, Cell cell, const TextMeasurer& measure);

// The head that the rows of events and the row of entry actions share, "Event" at its left and "Action" at
// its right end as far as the column's width allows. Not fitted yet.
std::string ForceLREventAction(Twips column0Width, const TextMeasurer& measure);

// How a cell names the state it leads to: number, ":" and name (12:Wait), nothing for kNoState.
std::string TargetText(const FsmDocument& document, StateNumber state);

// What the cell of a transition says when there is room: the target, and a star for an action.
std::string TransitionText(const FsmDocument& document, Cell cell);

// How a state times out, in brief; nothing for a mode that nobody knows.
std::string TimingText(const StateRecord& state);

} // namespace orvane
