// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "support/World.h"

#include <rapidcheck.h>

#include <vector>

namespace orvane::test {

// A machine without design errors whose user texts are markers: with every timing mode, shared timers, ELSE
// chains and rings, self-transitions, states without exits and states that nothing enters.
rc::Gen<FsmDocument> AnyMachine();

rc::Gen<std::vector<Tick>> AnyTicks();

} // namespace orvane::test
