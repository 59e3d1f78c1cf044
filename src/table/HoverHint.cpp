// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/HoverHint.h"

#include "core/StateLabel.h"
#include "core/TimingMode.h"
#include "text/AnsiText.h"

#include <utility>

namespace orvane {

namespace {

constexpr const char* kTablePart =
    "This COLUMN contains events that are to be recognised and acted upon."
    " The pink cells define individual events. You can click on a pink"
    " cell and then edit its underlying content, thereby fully defining the event."
    "\r\n\r\n"
    "This ROW contains actions to be taken on entering each state. This will typically be"
    " turning an output on or off. The green cells define actions. You can click on a green"
    " cell and then edit its underlying content.";

Hint Prose(std::string text) { return {std::move(text), true}; }
Hint Code(std::string text) { return {std::move(text), false}; }

std::string TimingHelp(const StateRecord& state) {
    switch (state.TimingMode) {
    case kStartConstant:
        return "Starts timing on entering state. Times out after a constant time of " + state.TimeConst +
               " system ticks.";
    case kStartVariable:
        return "Starts timing on entering state. Times out after a variable time accessed with: \r\n\r\n" +
               state.TimingVar;
    case kContinueConstant:
        return "Continues timing started in a previous state. Times out after a constant time of " +
               state.TimeConst + " system ticks.";
    case kContinueVariable: // "avariable" stays: people know the hint by this text
        return "Continues timing started in a previous state. Times out after avariable time accessed with: "
               "\r\n\r\n" +
               state.TimingVar;
    default:
        return "";
    }
}

std::string TimerLine(const StateRecord& state) {
    return state.TimerId.empty() ? "\r\nUses default timer" : "\r\nUses timer " + state.TimerId;
}

Hint TransitionHint(const FsmDocument& document, Cell cell) {
    const StateRecord& state = document.State(cell.State);
    const StateNumber target = state.Targets[cell.Row];
    const std::string& action = state.Actions[cell.Row];
    if (target == kNoState)
        return Code(action);
    const StateRecord& next = document.State(target);
    const std::string label = StateLabel(target, next.Name) + "\r\n" + next.Tooltip;
    if (Trim(action).empty())
        return Prose("Go to state " + label);
    return Prose(action + "\r\nThen go to state " + label);
}

Hint StateHint(const FsmDocument& document, Cell cell, bool shiftHeld) {
    const StateRecord& state = document.State(cell.State);
    if (cell.Row >= kFirstCellRow)
        return TransitionHint(document, cell);
    if (cell.Row == kHeadRow)
        return Code(state.Tooltip);
    if (shiftHeld)
        return {};
    if (cell.Row == kEntryActionRow)
        return Code(state.EntryCode);
    if (cell.Row == kExitActionRow)
        return Code(state.ExitCode);
    return Prose(TimingHelp(state) + TimerLine(state));
}

Hint EventHint(const EventRecord& event, bool shiftHeld) {
    if (shiftHeld)
        return {};
    return event.Code.empty() ? Prose(event.Tooltip) : Code(event.Code);
}

Hint RowHeadHint(const FsmDocument& document, RowNumber row, bool shiftHeld) {
    switch (row.Number()) {
    case kHeadRow:
        return Prose("This will pre-fix all line labels in the automatically generated code. ");
    case kEntryActionRow:
        return Prose(kTablePart);
    case kExitActionRow:
        return Code("Not implemented! ");
    case kTimingModeRow:
        return Prose("This row determines the timeout modes for each state ");
    case kTimeoutRow:
        return Prose("This row sets the target state if a state times out ");
    case kElseRow:
        return Prose(
            "A transition specified in this row is always executed if no other event/condition is met ");
    default:
        return EventHint(document.Event(row), shiftHeld);
    }
}

} // namespace

std::optional<Hint> HoverHint(const FsmDocument& document, Cell cell, bool shiftHeld) {
    Hint hint = cell.State == kNoState ? RowHeadHint(document, cell.Row, shiftHeld)
                                       : StateHint(document, cell, shiftHeld);
    if (hint.Text.empty())
        return std::nullopt;
    return hint;
}

} // namespace orvane
