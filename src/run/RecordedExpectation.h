// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/Clock.h"
#include "run/NameBook.h"
#include "run/TestText.h"
#include "run/TestWalk.h"

namespace orvane::run {

// What a test says that was just seen: every state on the way, by which row it came there last, how many
// pieces of code ran, and a line of each of the last of them.
TestExpectation RecordedExpectation(const FsmDocument& document, const NameBook& names,
                                    const Machine& machine, const Clock& clock, const StepResult& result);

} // namespace orvane::run
