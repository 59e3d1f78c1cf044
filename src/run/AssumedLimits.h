// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/Machine.h"

namespace orvane::run {

// What a limit that only the user knows is taken for where a test has to name one.
inline constexpr Units kAssumedLimit = 10;

// That number for all limits that are names, and for all that code computes; more than any constant limit for
// code in states that do not start their timer.
struct AssumedLimits {
    explicit AssumedLimits(const FsmDocument& document);

    Constants Given;
    Inputs Surroundings; // with no event there
};

} // namespace orvane::run
