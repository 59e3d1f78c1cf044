// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/Labels.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane {

namespace {

bool HasLabelName(const StateRecord& state) {
    return !state.Name.empty() && state.Name.find(' ') == std::string::npos;
}

} // namespace

std::string SpacesToUnderscores(std::string_view text) { return Replace(text, ' ', '_'); }

std::string StateEntryLabel(const FsmDocument& document, StateNumber state) {
    const StateRecord& record = document.State(state);
    const std::string named = HasLabelName(record) ? "_" + record.Name : "";
    return SpacesToUnderscores(document.General.FsmName + named + "_Set" + NumberText(state.Number()));
}

std::string StateLoopLabel(const FsmDocument& document, StateNumber state) {
    const StateRecord& record = document.State(state);
    const std::string named = HasLabelName(record) ? "_" + record.Name + "_" : "";
    return SpacesToUnderscores(document.General.FsmName + named + NumberText(state.Number()));
}

std::string TimerLabel(const FsmDocument& document, std::string_view timerId) {
    const std::string named = timerId.empty() ? "" : "_" + std::string(Trim(timerId));
    return SpacesToUnderscores(document.General.FsmName + "_Timer" + named);
}

std::string LaunchLabel(const FsmDocument& document) { return document.General.FsmName + "_Launch"; }

std::string ActionSkipLabel(const FsmDocument& document, StateNumber state, unsigned counter) {
    std::string label = document.General.FsmName; // one text that grows: a full table has thousands of these
    label += '_';
    label += NumberText(state.Number());
    label += '_';
    label += HexText(counter);
    return label;
}

std::string InstanceSuffix(const FsmDocument& document) {
    const std::string_view instances = Trim(document.General.Instances);
    return instances.empty() ? "" : "\t" + std::string(instances);
}

} // namespace orvane
