// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a run as a test: what was done, and what must be there each time. A wait that a timeout ends is cut
// in two, one unit before the limit and behind it, because a test that only waits until it happened notices
// no wrong limit.
#pragma once

#include "core/FsmDocument.h"
#include "run/Machine.h"
#include "run/RunStep.h"
#include "run/TestText.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orvane::run {

struct Recording {
    std::span<const RunStep> Steps; // up to the moment where the test ends; power comes on in them
    Constants Given;
    std::string Name;                   // of the test, UTF-8, one line
    std::optional<TestTime> Unit;       // how long a unit is, when that is known
    std::optional<std::string> Machine; // the document's file, when it is not the one beside the test
    Readings Read = {};                 // as the run was
    bool AtLimit = false; // the file says that limits are up at them: no line stands a unit behind one
};

// What the run's reading of the controllers gives stands in it, so that the test passes.
TestFile RecordTest(const FsmDocument& document, const Recording& recording);

// The file with the test at its end and all else as it was. What the file says about itself stays: only heads
// that are not there yet are added.
std::string WithTest(std::string_view bytes, const TestFile& test);

} // namespace orvane::run
