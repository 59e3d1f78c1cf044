// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/RunTrace.h"

#include <string>

namespace orvane::run {

// The run as a value change dump, as viewers of logic signals read it: the state as a number and as text, the
// row that was taken, a wire for each input, and a number for each timer, which is x until it is started and
// then how long ago that was. A viewer that draws it between its values shows a ramp.
//
// The rows of one time stand one tick apart, so that a pulse is seen, and what came of it; a unit of the
// machine's time is at least 1,000 ticks where the whole run fits. Where no unit is known, a second stands
// for it.
std::string TraceVcd(const RunTrace& trace, const FsmDocument& document, const Machine& machine);

} // namespace orvane::run
