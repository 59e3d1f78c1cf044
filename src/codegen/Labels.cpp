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
    return document.General.FsmName + "_" + NumberText(state.Number()) + "_" + HexText(counter);
}

std::string InstanceSuffix(const FsmDocument& document) {
    const std::string_view instances = Trim(document.General.Instances);
    return instances.empty() ? "" : "\t" + std::string(instances);
}

} // namespace orvane
