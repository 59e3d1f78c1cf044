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

int ShownWidth(std::int32_t twips) { return std::clamp(twips, 0, kWidestColumn); }

std::string RowHead(const FsmDocument& document, int row, const TextMeasurer& measure) {
    switch (row) {
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

// A star stands for an action.
std::string TransitionText(const FsmDocument& document, const StateRecord& state, int row) {
    const std::string target = TargetText(document, state.Targets[row]);
    return state.Actions[row].empty() ? target : target + "*";
}

std::string StateCell(const FsmDocument& document, int row, int column) {
    const StateRecord& state = document.State(column);
    switch (row) {
    case kHeadRow:
        return StateLabel(column, state.Name);
    case kEntryActionRow:
        return Replace(state.EntryCode, '\t', ' ');
    case kExitActionRow:
        return Replace(state.ExitCode, '\t', ' ');
    case kTimingModeRow:
        return TimingText(state);
    default:
        return TransitionText(document, state, row);
    }
}

} // namespace

std::string CellText(const FsmDocument& document, int row, int column, const TextMeasurer& measure) {
    RequireInRange(row, {kHeadRow, kLastRow}, "row");
    if (column != 0)
        return FitTextToColumn(StateCell(document, row, column), ShownWidth(document.State(column).ColWidth),
                               measure);
    if (row > kElseRow)
        return EventHead(document.Event(row));
    return FitTextToColumn(RowHead(document, row, measure), ShownWidth(document.View.Col0Width), measure);
}

std::string ForceLREventAction(int column0Width, const TextMeasurer& measure) {
    const int words = measure(kEventHead) + measure(kActionHead);
    const int spare =
        std::max(std::max(column0Width, 0) - kColumnMargin - words, 1); // widths may be negative
    const int blank = std::max(measure(" "), 1);
    // lrint rounds to the nearest number and halves to the even one.
    const long blanks = std::lrint(static_cast<double>(spare) / blank);
    if (blanks < 4)
        return std::string(kEventHead) + " | " + std::string(kActionHead);
    const std::string gap(static_cast<std::size_t>(std::lrint(static_cast<double>(blanks) / 2 - 1)), ' ');
    return std::string(kEventHead) + gap + "|" + gap + std::string(kActionHead);
}

std::string TargetText(const FsmDocument& document, int state) {
    return state == kNoState ? "" : NumberText(state) + ":" + document.State(state).Name;
}

std::string TimingText(const StateRecord& state) {
    if (state.TimingMode == kNoTiming || !IsKnownTimingMode(state.TimingMode))
        return "";
    return (StartsTiming(state.TimingMode) ? "Start " : "Cont ") + state.TimerId + "/" +
           (HasConstantLimit(state.TimingMode) ? state.TimeConst : "Var");
}

} // namespace orvane
