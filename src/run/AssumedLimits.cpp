// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/AssumedLimits.h"

#include "run/LimitText.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane::run {

// A timer that goes on from another state has run for some time already; a limit of that would mostly be
// past.
AssumedLimits::AssumedLimits(const FsmDocument& document) {
    const Machine machine(document);
    Units longest = 0;
    for (const StateNumber state : StateNumbers())
        longest = std::max(longest, machine.State(state).LimitUnits);
    for (const StateNumber state : StateNumbers()) {
        const RunState& looking = machine.State(state);
        const Units limit = looking.StartsTimer ? kAssumedLimit : longest + kAssumedLimit;
        const std::string& text = document.State(state).TimeConst;
        if (looking.Limit == LimitKind::Variable)
            Surroundings.Limits[state.Number()] = std::min(limit, kLongestTime);
        else if (looking.Limit == LimitKind::Constant && !LimitNumber(text))
            Given.emplace(Trim(text), kAssumedLimit);
    }
}

} // namespace orvane::run
