// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "table/TableOrder.h"

namespace orvane {

// The machine starts in state 1, so whether it may be sorted away is a question of its own.
enum class StartState { Stays, IsSorted };

// States in the order of their names, capitals and small letters alike, then of their numbers; those in use
// without a name follow, and what is empty comes last.
StateOrder SortedByName(const FsmDocument& document, StartState start);

// States as they are first met on the ways from state 1, the nearer ones first and those of one state by the
// rows that lead there; what cannot be reached follows in its old order, and what is empty comes last. Throws
// BoundsError when a transition leads to a state that the table does not have.
StateOrder SortedByWay(const FsmDocument& document);

// What is in use moves up to where something is empty. A column that is empty but has transitions that lead
// there is in use. State 1 stays.
StateOrder StateGapsClosed(const FsmDocument& document);
EventOrder EventGapsClosed(const FsmDocument& document);

} // namespace orvane
