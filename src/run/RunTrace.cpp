// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RunTrace.h"

#include "codegen/Labels.h"
#include "run/CodeLines.h"
#include "run/StepCheck.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane::run {

TraceTimers::TraceTimers(const Machine& machine)
    : machine_(machine), started_(machine.Timers().size(), kNever) {}

void TraceTimers::Add(const TraceRow& row) {
    const bool enters =
        row.Kind == TraceKind::PowerOn || (row.Kind == TraceKind::Transition && !row.What.Holds);
    const RunState& state = machine_.State(row.What.To);
    if (enters && state.StartsTimer)
        started_[state.Timer] = row.When;
}

std::optional<Units> TraceTimers::Since(std::size_t timer, Units now) const {
    return started_[timer] == kNever ? std::nullopt : std::optional(now - started_[timer]);
}

TraceRecorder::TraceRecorder(const FsmDocument& document, const Machine& machine,
                             const std::vector<std::string>& signals)
    : machine_(machine), signals_(signals.size()) {
    std::uint64_t tested = 0;
    for (const StateNumber state : StateNumbers())
        tested |= machine.State(state).Events;
    for (const std::string& signal : signals)
        trace_.Inputs.push_back({signal, RowNumber(kNoRow)});
    for (const RowNumber row : EventRows()) {
        if ((tested >> row.Number() & 1U) != 0)
            trace_.Inputs.push_back({RowText(document, row), row});
    }
}

void TraceRecorder::PowerOn(std::uint64_t events, const std::vector<bool>& signals) {
    TakeInputs(events, signals);
    Add(TraceKind::PowerOn, 0, {{}, {}, machine_.Start(), false});
}

void TraceRecorder::Inputs(Units when, std::uint64_t events, const std::vector<bool>& signals) {
    if (TakeInputs(events, signals))
        Add(TraceKind::Inputs, when, trace_.Rows.back().What);
}

void TraceRecorder::Happened(const Happening& happening) {
    Add(TraceKind::Transition, happening.When, happening.What);
}

void TraceRecorder::End(Units when) {
    if (!trace_.Rows.empty() && trace_.Rows.back().When < when)
        Add(TraceKind::End, when, trace_.Rows.back().What);
}

void TraceRecorder::Add(TraceKind kind, Units when, const Taken& what) {
    TraceRow row{kind, when, 0, what, trace_.InputSets.size() - 1};
    if (!trace_.Rows.empty()) {
        const TraceRow& before = trace_.Rows.back();
        const bool goesOn = before.When == when && kind != TraceKind::Inputs;
        row.Moment = before.Moment + (goesOn ? 0 : 1);
    }
    trace_.Rows.push_back(row);
}

// False when they are what they were.
bool TraceRecorder::TakeInputs(std::uint64_t events, const std::vector<bool>& signals) {
    std::vector<bool> inputs = signals;
    inputs.resize(signals_);
    for (std::size_t i = signals_; i < trace_.Inputs.size(); ++i)
        inputs.push_back((events >> trace_.Inputs[i].Row.Number() & 1U) != 0);
    if (!trace_.InputSets.empty() && trace_.InputSets.back() == inputs)
        return false;
    trace_.InputSets.push_back(std::move(inputs));
    return true;
}

std::vector<const std::string*> CodeOf(const TraceRow& row, const FsmDocument& document) {
    std::vector<const std::string*> ran;
    if (row.Kind == TraceKind::PowerOn) {
        const std::string& entry = document.State(row.What.To).EntryCode;
        if (!entry.empty())
            ran.push_back(&entry);
    } else if (row.Kind == TraceKind::Transition) {
        AddCodeOf(ran, document, row.What);
    }
    return ran;
}

std::vector<std::string> TimerIds(const FsmDocument& document, const Machine& machine) {
    std::vector<std::string> ids(machine.Timers().size());
    for (const StateNumber number : StateNumbers()) {
        const RunState& state = machine.State(number);
        const bool has = state.StartsTimer || state.Limit != LimitKind::None;
        if (has && ids[state.Timer].empty())
            ids[state.Timer] = ToUtf8(Trim(document.State(number).TimerId));
    }
    return ids;
}

} // namespace orvane::run
