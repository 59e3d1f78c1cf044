// SPDX-License-Identifier: GPL-3.0-or-later
// The checks of a design: each looks at one thing and returns a finding, or none when there is nothing to
// say. States are 1..100. Which states are checked, and in which order, is the generator's business.
#pragma once

#include "codegen/Reachability.h"
#include "codegen/Report.h"
#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane {

// A state as messages name it: the number, ":" and the name.
std::string StateTitle(const FsmDocument& document, StateNumber state);

// The machine has no name, so that there is no prefix for its labels.
std::optional<Finding> CheckPrefix(const FsmDocument& document);

// A transition in this event row, 6..54, whose event has no test code.
std::optional<Finding> CheckEventCode(const FsmDocument& document, Cell cell);

// A timing mode without a timeout transition (a note), or a timeout transition without what its mode needs.
std::optional<Finding> CheckTimeout(const FsmDocument& document, StateNumber state);

// No transition leads to another state.
std::optional<Finding> CheckDeadEnd(const FsmDocument& document, StateNumber state);

std::optional<Finding> CheckTimeoutAndElse(const FsmDocument& document, StateNumber state);

// In use, by its name or by a target, but not reached. State 1 is never called unreachable.
std::optional<Finding> CheckUnreachable(const FsmDocument& document, const Reachability& reachability,
                                        StateNumber state);

// Texts in which a merge of two versions has left something for people to decide: each in the machine as a
// whole, in an event, in a state or in a cell is a finding.
std::vector<Finding> CheckMergeConflicts(const FsmDocument& document);

} // namespace orvane
