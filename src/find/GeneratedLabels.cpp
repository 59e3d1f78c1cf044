// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/GeneratedLabels.h"

#include "codegen/ActionBlocks.h"
#include "codegen/Labels.h"

#include <algorithm>
#include <utility>

namespace orvane::find {

namespace {

// A document with nothing in it but what a label is made of.
FsmDocument Named(const std::string& machine) {
    FsmDocument document;
    document.General.FsmName = machine;
    return document;
}

void Add(LabelChanges& changes, std::string before, std::string after) {
    if (before != after)
        changes.emplace_back(std::move(before), std::move(after));
}

void AddState(LabelChanges& changes, const FsmDocument& before, StateNumber old, const FsmDocument& after,
              StateNumber now) {
    Add(changes, StateEntryLabel(before, old), StateEntryLabel(after, now));
    Add(changes, StateLoopLabel(before, old), StateLoopLabel(after, now));
}

} // namespace

std::string LabelPrefix(const FsmDocument& document) { return SpacesToUnderscores(document.General.FsmName); }

LabelChanges LabelsOfRenamedState(const FsmDocument& document, StateNumber state,
                                  const std::string& newName) {
    FsmDocument after = Named(document.General.FsmName);
    after.State(state).Name = newName;
    LabelChanges changes;
    changes.emplace_back(StateEntryLabel(document, state), StateEntryLabel(after, state));
    changes.emplace_back(StateLoopLabel(document, state), StateLoopLabel(after, state));
    return changes;
}

LabelChanges LabelsOfRenamedTimer(const FsmDocument& document, const std::string& id,
                                  const std::string& newId) {
    return {{TimerLabel(document, id), TimerLabel(document, newId)}};
}

LabelChanges LabelsOfRenamedMachine(const FsmDocument& document, const std::string& newName) {
    FsmDocument after = Named(newName);
    LabelChanges changes;
    for (const StateNumber state : StateNumbers()) {
        after.State(state).Name = document.State(state).Name;
        changes.emplace_back(StateLoopLabel(document, state), StateLoopLabel(after, state));
    }
    return changes;
}

LabelChanges LabelsOfRearranged(const FsmDocument& document, const StateOrder& order) {
    FsmDocument after = Named(document.General.FsmName);
    for (const StateNumber state : StateNumbers())
        after.State(order.NewOf(state)).Name = document.State(state).Name;
    LabelChanges changes;
    for (const StateNumber state : StateNumbers()) {
        const StateNumber now = order.NewOf(state);
        if (now == state)
            continue;
        AddState(changes, document, state, after, now);
        unsigned counter = 0;
        for (const SkipLabel& skip : SkipLabels(document, state))
            Add(changes, skip.Label, ActionSkipLabel(document, now, counter++));
    }
    return changes;
}

LabelChanges LabelsOfRearranged(const FsmDocument& document, const EventOrder& order) {
    LabelChanges changes;
    // The same labels in their order, each behind the action that has the place now.
    for (const StateNumber state : StateNumbers()) {
        const std::vector<SkipLabel> before = SkipLabels(document, state);
        std::vector<SkipLabel> after = before;
        std::sort(after.begin(), after.end(), [&](const SkipLabel& a, const SkipLabel& b) {
            const bool bothEvents = a.Row != kTimeoutRow && b.Row != kTimeoutRow;
            return bothEvents ? order.NewOf(a.Row) < order.NewOf(b.Row)
                              : b.Row == kTimeoutRow && a.Row != b.Row;
        });
        for (std::size_t i = 0; i < after.size(); ++i)
            Add(changes, after[i].Label, before[i].Label);
    }
    return changes;
}

} // namespace orvane::find
