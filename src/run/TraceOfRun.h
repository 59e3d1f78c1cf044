// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/History.h"
#include "run/RunTrace.h"

namespace orvane::run {

// The run up to the moment shown, for the writers of traces. Power must have come on in it.
RunTrace TraceOfRun(const FsmDocument& document, const Machine& machine, const History& history);

} // namespace orvane::run
