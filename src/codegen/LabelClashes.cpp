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
}

// The places behind actions are numbered, so that no two of them have one label. There are thousands of them;
// they are looked at only where another label could be one of theirs.
bool CouldBeSkipLabel(const FsmDocument& document, std::string_view label) {
    const std::string prefix = document.General.FsmName + "_";
    return label.starts_with(prefix) &&
           label.find_first_not_of("0123456789ABCDEFabcdef_", prefix.size()) == std::string_view::npos;
}

void AddLabelsOfTimers(std::vector<std::string>& labels, const FsmDocument& document,
                       const TimerList& timers) {
    if (timers.DefaultTimerUsed())
        labels.push_back(TimerLabel(document, ""));
    for (const std::string& id : timers.Ids())
        labels.push_back(TimerLabel(document, id));
}

std::vector<std::string> MoreThanOnce(std::vector<std::string> labels) {
    std::sort(labels.begin(), labels.end());
    std::vector<std::string> clashes;
    for (std::size_t i = 1; i < labels.size(); ++i) {
        const bool again = labels[i] == labels[i - 1];
        if (again && (clashes.empty() || clashes.back() != labels[i]))
            clashes.push_back(labels[i]);
    }
    return clashes;
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
    const bool skipsMatter = std::any_of(labels.begin(), labels.end(), [&](const std::string& label) {
        return CouldBeSkipLabel(document, label);
    });
    for (const StateNumber state : StateNumbers()) {
        if (!skipsMatter || !reachability.Reached(state))
            continue;
        for (SkipLabel& skip : SkipLabels(document, state))
            labels.push_back(std::move(skip.Label));
    }
    return MoreThanOnce(std::move(labels));
}

} // namespace orvane
