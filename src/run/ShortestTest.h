// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/TestText.h"

#include <optional>

namespace orvane::run {

// A test of the fewest steps that leads from one state to another, behind the fewest that lead to the first;
// without a first state from where power comes on. None when no way leads there, limits that only the user
// knows taken as kAssumedLimit. The document must have no obstacles.
struct WayWanted {
    std::optional<StateNumber> From;
    StateNumber To;
};
struct ShortestTestResult {
    std::optional<TestFile> Test;
    bool Complete = true; // the whole machine could be looked at
};
ShortestTestResult ShortestTest(const FsmDocument& document, const WayWanted& wanted);

} // namespace orvane::run
