// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "find/TextUses.h"
#include "table/TableOrder.h"

#include <string>
#include <variant>
#include <vector>

namespace orvane::find {

using TableOrder = std::variant<StateOrder, EventOrder>;

// What another order of the table would do beside what Rearrange does.
struct MovePlan {
    TableOrder Order;
    std::vector<std::string> Notes; // that the machine starts elsewhere, that another event comes first
    std::vector<TextUse> Labels;    // with numbers, in the user's own code; the sure ones are no comments
};

MovePlan PlanMove(const FsmDocument& document, const TableOrder& order);

// Changes the chosen labels, then the order. `chosen` has a mark for each label of the plan.
void Apply(FsmDocument& document, TableClipboard& clipboard, const MovePlan& plan,
           const std::vector<bool>& chosen);

// The other way round.
TableOrder InverseOf(const TableOrder& order);
// See RearrangeUnkept in table/TableOrder.h.
void ApplyUnkept(FsmDocument& document, TableClipboard& clipboard, const TableOrder& order);

// The state's number afterwards; kNoState stays.
StateNumber NewNumber(const TableOrder& order, StateNumber state);
// The cell's place afterwards.
Cell NewPlace(const TableOrder& order, Cell place);

} // namespace orvane::find
