// SPDX-License-Identifier: GPL-3.0-or-later
// State machines of other people, made for other purposes, as documents of ours. They come as JSON:
//
//   {"name", "states": [names], "events": [names], "initial": state,
//    "transitions": [[state, event, target, "action or empty"]],
//    "entry": {"state": "code"}, "timeouts": {"state": {"delay": "3s", "event": n}}}
//
// with all numbers from 1. The initial state becomes state 1 by changing places with the first one; event k
// becomes row 5 + k; foreign code becomes comments; a timeout starts timing, with the delay as its constant
// and the target of its event as its target.
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::test {

struct NamedDocument {
    std::string Name; // the file's name
    FsmDocument Document;
};

// Throws JsonError when the text is no such machine.
FsmDocument MachineFromJson(std::string_view json);

// All machines in the folder that ORVANE_MACHINES names, in the environment or at build time, by name. Empty
// when there is no such folder.
std::vector<NamedDocument> RealMachines();

// All documents in the examples folder, by name.
std::vector<NamedDocument> ExampleDocuments();

} // namespace orvane::test
