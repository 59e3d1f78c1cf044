// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/LostTimers.h"

#include "codegen/Reachability.h"
#include "codegen/TimerList.h"
#include "core/TimingMode.h"

#include <algorithm>

namespace orvane::find {

std::vector<LostTimer> LostTimers(const FsmDocument& document) {
    const Reachability reachability = ComputeReachability(document);
    TimerList timers;
    std::vector<LostTimer> lost;
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& record = document.State(state);
        if (!reachability.Reached(state) || !StartsTiming(record.TimingMode) || record.TimerId.empty())
            continue;
        timers.Add(record.TimerId);
        const std::vector<std::string> defined = timers.Ids();
        if (std::find(defined.begin(), defined.end(), record.TimerId) != defined.end())
            continue;
        const auto before = std::find_if(defined.begin(), defined.end(),
                                         [&](const std::string& id) { return id.ends_with(record.TimerId); });
        if (before == defined.end())
            continue;
        const LostTimer timer{record.TimerId, *before};
        if (std::find(lost.begin(), lost.end(), timer) == lost.end())
            lost.push_back(timer);
    }
    return lost;
}

} // namespace orvane::find
