// SPDX-License-Identifier: GPL-3.0-or-later
// What can happen next to a machine, for those who look at it.
#pragma once

#include "core/FsmDocument.h"
#include "run/Clock.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orvane::run {

// The rows of the state that lead somewhere, bit r for row r; none for no state.
std::uint64_t TakeableRows(const Machine& machine, StateNumber state);

// The row that would be taken if the machine looked around now, and the timeout where time would bring it;
// kHeadRow for none. The machine has power.
RowNumber NextRow(const Machine& machine, const Clock& clock);

// Events that some state tests, those first that the state tests; without a state all.
std::vector<RowNumber> InputsInOrder(const Machine& machine, StateNumber state);

// Whether anything happens when the event comes in this state.
bool HasEffect(const Machine& machine, StateNumber state, RowNumber event);

// How long it takes to the timeout of the present state, 0 when it is due; none when no time brings it.
std::optional<Units> TimeLeft(const Clock& clock);

} // namespace orvane::run
