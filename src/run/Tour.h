// SPDX-License-Identifier: GPL-3.0-or-later
// Tests that go everywhere: every transition that a test can take is taken once, and what came of it stands
// there as it is now. They show what a change of the table changes, not whether the table is right.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "run/Coverage.h"
#include "run/TestText.h"

#include <atomic>
#include <cstddef>
#include <stop_token>
#include <string>
#include <vector>

namespace orvane::run {

struct TourOptions {
    bool EmptyCells = false;        // events are tried in the states that have nothing for them, too
    bool Together = false;          // neighbouring events are tried at the same time, too
    std::size_t MostSteps = 10'000; // after power-on
};

// For those who wait for a tour in another thread.
struct TourWatch {
    std::stop_token Stop = {};           // what comes back then is of no use
    std::atomic<int>* Percent = nullptr; // of what is to be seen
};

struct Tour {
    TourOptions Asked;
    TestFile Tests; // without a machine line
    std::size_t Steps = 0;
    CoverageCount Transitions; // of those that a test can take
    CoverageCount EmptyCells;  // 0 of 0 when not asked for, like the next one
    CoverageCount Pairs;
    std::vector<Cell> NeverTaken; // transitions that no test can take, whatever it does
    bool StepsRanOut = false;     // what is missing would take more steps
    bool Complete = true;         // the whole machine could be looked at
};

// The document must have no obstacles. Limits that only the user knows are taken as kAssumedLimit, and the
// first reading of what is not known of the controllers counts. Same document, same tests.
Tour MakeTour(const FsmDocument& document, const TourOptions& options, const TourWatch& watch = {});

} // namespace orvane::run
