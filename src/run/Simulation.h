// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/RunTrace.h"
#include "run/TestPlan.h"
#include "run/TestRunner.h"

#include <string>
#include <vector>

namespace orvane::run {

// One test, run to its end whatever fails: to be looked at, not to be judged.
struct Simulation {
    RunTrace Trace;
    struct Failure {
        std::size_t Row = 0; // of the trace: it showed behind that many rows
        Verdict Is = Verdict::Failed;
        Place At;
        std::string Text; // UTF-8
    };
    std::vector<Failure>
        Failures; // in order; behind one where the machine never comes to rest nothing stands
};

// Runs it under the machine's reading alone. The document must have no obstacles and the plan no slips.
Simulation Simulate(const FsmDocument& document, const Machine& machine, const TestPlan& plan,
                    const PlannedTest& test);

// Power comes on with no input there, and that is all. The limit that is missing, or a scan without end, is
// a failure at no place.
Simulation SimulatePowerOn(const FsmDocument& document, const Machine& machine);

} // namespace orvane::run
