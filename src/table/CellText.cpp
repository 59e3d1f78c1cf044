// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellText.h"

#include "core/StateLabel.h"
#include "core/TimingMode.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr std::string_view kEventHead = "Event";
constexpr std::string_view kActionHead = "Action";

// A blank behind the name marks an event that has no code yet.
std::string EventHead(const EventRecord& event) { return event.Code.empty() ? event.Name + " " : event.Name; }

Twips ShownWidth(Twips width) { return std::clamp(width, Twips(0), kWidestColumn); }

std::string RowHead(const FsmDocument& document, RowNumber row, const TextMeasurer& measure) {
    switch (row.Number()) {
    case kHeadRow:
        return document.General.FsmName;
    case kEntryActionRow:
        return ForceLREventAction(ShownWidth(document.View.Col0Width), measure);
    case kExitActionRow:
        return "Exit Action";
    case kTimingModeRow:
        return "Timeout mode";
    case kTimeoutRow:
        return "Timeout target";
    default:
        return "ELSE";
    }
}

std::string StateCell(const FsmDocument& document, Cell cell) {
    const StateRecord& state = document.State(cell.State);
    switch (cell.Row.Number()) {
    case kHeadRow:
        return StateLabel(cell.State, state.Name);
    case kEntryActionRow:
        return Replace(state.EntryCode, '\t', ' ');
    case kExitActionRow:
        return Replace(state.ExitCode, '\t', ' ');
    case kTimingModeRow:
        return TimingText(state);
    default:
        return TransitionText(document, cell);
    }
}

} // namespace

std::string CellText(const FsmDocument& document, Cell cell, const TextMeasurer& measure) {
    RequireInRange(cell.Row, TableRows(), "row");
    if (cell.State != kNoState)
        return FitTextToColumn(StateCell(document, cell), ShownWidth(document.State(cell.State).ColWidth),
                               measure);
    if (cell.Row > kElseRow)
        return EventHead(document.Event(cell.Row));
    return FitTextToColumn(RowHead(document, cell.Row, measure), ShownWidth(document.View.Col0Width),
                           measure);
}

std::string ForceLREventAction(Twips column0Width, const TextMeasurer& measure) {
    const Twips words = measure(kEventHead) + measure(kActionHead);
    const Twips width = std::max(column0Width, Twips(0)); // a document may hold a negative one
    const Twips spare = std::max(width - kColumnMargin - words, Twips(1));
    const Twips blank = std::max(measure(" "), Twips(1));
    // lrint rounds to the nearest number and halves to the even one.
    const long blanks = std::lrint(1.0 * spare.Count() / blank.Count());
    if (blanks < 4)
        return std::string(kEventHead) + " | " + std::string(kActionHead);
    const std::string gap(std::lrint(static_cast<double>(blanks) / 2 - 1), ' ');
    return std::string(kEventHead) + gap + "|" + gap + std::string(kActionHead);
}

std::string TargetText(const FsmDocument& document, StateNumber state) {
    return state == kNoState ? "" : NumberText(state.Number()) + ":" + document.State(state).Name;
}

std::string TransitionText(const FsmDocument& document, Cell cell) {
    const StateRecord& state = document.State(cell.State);
    const std::string target = TargetText(document, state.Targets[cell.Row]);
    return state.Actions[cell.Row].empty() ? target : target + "*";
}

std::string TimingText(const StateRecord& state) {
    if (state.TimingMode == kNoTiming || !IsKnownTimingMode(state.TimingMode))
        return "";
    return (StartsTiming(state.TimingMode) ? "Start " : "Cont ") + state.TimerId + "/" +
           (HasConstantLimit(state.TimingMode) ? state.TimeConst : "Var");
}

} // namespace orvane
