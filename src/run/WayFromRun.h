// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/Machine.h"
#include "run/RunStep.h"

#include <optional>
#include <stop_token>
#include <vector>

namespace orvane::run {

// Where a run stands, and the state that it is to come to.
struct WayAsked {
    StateNumber To;
    std::optional<Config> At; // none while the power is off
    Inputs There;             // the limits that were given among them
    Constants Given;
    Readings Read;
};

struct WayFromRun {
    // The fewest steps from there, the last of which enters the state, be it only for a moment; none when
    // nothing leads there.
    std::optional<std::vector<RunStep>> Steps;
    Constants Assumed;      // limits that nobody gave; the steps are true with these
    bool PlaceKnown = true; // false when no run with these limits from the start on comes to where it stands
    bool Complete = true;   // the whole machine could be looked at
};

// The document must have no obstacles. Limits that nobody gave are taken as kAssumedLimit, those of the
// states on the way in steps of their own.
WayFromRun FindWayFromRun(const FsmDocument& document, const WayAsked& asked,
                          const std::stop_token& stop = {});

} // namespace orvane::run
