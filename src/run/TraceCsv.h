// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/RunTrace.h"

#include <string>

namespace orvane::run {

// The run as comma-separated values, UTF-8 with LF, one line a row of the trace: time, moment, state,
// state_name, via, ran, then 0 or 1 for each input and how long ago each timer was started. What there is
// none of is empty. Equal trace and machine give equal bytes.
std::string TraceCsv(const RunTrace& trace, const FsmDocument& document, const Machine& machine);

} // namespace orvane::run
