// SPDX-License-Identifier: GPL-3.0-or-later
// Documents to measure with. Every cell has a target and an action of three lines, every event test code,
// every state entry code and a timeout; no design check finds anything to say about them.
#pragma once

#include "core/FsmDocument.h"

namespace orvane {

// The first `states` states and `events` event rows are filled.
FsmDocument SampleDocument(int states, int events);

// 20 states by 15 events, as a machine of some size has them.
FsmDocument MidSizeDocument();

// 100 states by 49 events: nothing more fits in.
FsmDocument DocumentAtTheLimit();

// Another kind: so many transitions between so many states, that lead a little way on or back, as in most
// machines, and a few that lead far.
FsmDocument MachineOfLines(int states, int lines);

} // namespace orvane
