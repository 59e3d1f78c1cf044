// SPDX-License-Identifier: GPL-3.0-or-later
// Walks a document whose user texts are markers by what its table means. It knows nothing of the program that
// is generated from it.
//
// Entering a state runs its entry code and starts its timer anew when its mode says so. Then the state is
// polled: the first event row that is present and has a target is taken, else the timeout when time is up,
// else the ELSE; when there is none the state is polled again. Taking a transition runs its action and enters
// the target. Two exceptions: an event that leads back to its own state without an action stays there without
// entering, and a timeout with a variable limit runs no action. A constant limit is up when it is reached, a
// variable one when it is passed.
//
// Time passes at each poll. With multitasking it does not in states whose ELSE leads to another state.
#pragma once

#include "core/FsmDocument.h"
#include "support/World.h"

#include <set>

namespace orvane::test {

// The states that a walk from state 1 enters by a transition: state 1 is one of them only when something
// leads back to it.
std::set<int> EnteredStates(const FsmDocument& document);

// Walks from the lowest entered state until the world has no more moments.
Trace RunTable(const FsmDocument& document, World world);

} // namespace orvane::test
