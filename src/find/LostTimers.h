// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <vector>

namespace orvane::find {

// A timer that the program starts and does not define, because its id is the tail of one that a state before
// starts (codegen/TimerList.h).
struct LostTimer {
    std::string Id;
    std::string Before;

    bool operator==(const LostTimer&) const = default;
};

// In the order of the states, each id once.
std::vector<LostTimer> LostTimers(const FsmDocument& document);

} // namespace orvane::find
