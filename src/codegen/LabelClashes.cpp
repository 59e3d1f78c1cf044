// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/LabelClashes.h"

#include "codegen/ActionBlocks.h"
#include "codegen/Labels.h"
#include "codegen/Reachability.h"
#include "codegen/TimerList.h"
#include "core/TimingMode.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

void AddLabelsOfState(std::vector<std::string>& labels, const FsmDocument& document, StateNumber state) {
    labels.push_back(StateEntryLabel(document, state));
    labels.push_back(StateLoopLabel(document, state));
    for (SkipLabel& skip : SkipLabels(document, state))
        labels.push_back(std::move(skip.Label));
}

void AddLabelsOfTimers(std::vector<std::string>& labels, const FsmDocument& document,
                       const TimerList& timers) {
    if (timers.DefaultTimerUsed())
        labels.push_back(TimerLabel(document, ""));
    for (const std::string& id : timers.Ids())
        labels.push_back(TimerLabel(document, id));
}

} // namespace

std::vector<std::string> LabelClashes(const FsmDocument& document) {
    const Reachability reachability = ComputeReachability(document);
    std::vector<std::string> labels;
    TimerList timers;
    if (document.View.Polytask)
        labels.push_back(LaunchLabel(document));
    for (const StateNumber state : StateNumbers()) {
        if (!reachability.Reached(state))
            continue;
        AddLabelsOfState(labels, document, state);
        if (StartsTiming(document.State(state).TimingMode))
            timers.Add(document.State(state).TimerId);
    }
    AddLabelsOfTimers(labels, document, timers);

    std::sort(labels.begin(), labels.end());
    std::vector<std::string> clashes;
    for (std::size_t i = 1; i < labels.size(); ++i) {
        const bool again = labels[i] == labels[i - 1];
        if (again && (clashes.empty() || clashes.back() != labels[i]))
            clashes.push_back(labels[i]);
    }
    return clashes;
}

} // namespace orvane
