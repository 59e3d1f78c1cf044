// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of the labels of the program when something in the document has another name or number.
#pragma once

#include "core/FsmDocument.h"
#include "find/TextUses.h"
#include "table/TableOrder.h"

#include <string>

namespace orvane::find {

// The machine's name as it stands at the front of labels; empty without a name, when there is no program.
std::string LabelPrefix(const FsmDocument& document);

// Entry and loop of the state, when it has the new name.
LabelChanges LabelsOfRenamedState(const FsmDocument& document, StateNumber state, const std::string& newName);

LabelChanges LabelsOfRenamedTimer(const FsmDocument& document, const std::string& id,
                                  const std::string& newId);

// Entries and loops of states without a name, whose labels do not begin with the prefix and "_".
LabelChanges LabelsOfRenamedMachine(const FsmDocument& document, const std::string& newName);

// All labels with a number that is another one once states and events stand in the new order. Those that stay
// are left out.
LabelChanges LabelsOfRearranged(const FsmDocument& document, const StateOrder& order);
LabelChanges LabelsOfRearranged(const FsmDocument& document, const EventOrder& order);

} // namespace orvane::find
