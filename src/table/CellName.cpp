// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellName.h"

#include "core/StateLabel.h"
#include "table/CellText.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <string_view>

namespace orvane {

namespace {

constexpr std::string_view kNothing = "empty";

std::string FirstCodeLine(std::string_view code) {
    const std::string line(code.substr(0, code.find_first_of("\r\n")));
    return line.empty() && code.empty() ? std::string(kNothing) : line;
}

std::string StateName(const FsmDocument& document, StateNumber state) {
    const std::string& name = document.State(state).Name;
    return name.empty() ? "state " + NumberText(state.Number()) : name;
}

std::string RowName(const FsmDocument& document, RowNumber row) {
    switch (row.Number()) {
    case kHeadRow:
        return document.General.FsmName.empty() ? "Machine without a name"
                                                : "Machine " + document.General.FsmName;
    case kEntryActionRow:
        return "Entry action";
    case kExitActionRow:
        return "Exit action";
    case kTimingModeRow:
        return "Timeout mode";
    case kTimeoutRow:
        return "Timeout target";
    case kElseRow:
        return "Else";
    default:
        break;
    }
    const std::string& name = document.Event(row).Name;
    return name.empty() ? "event row " + NumberText(row.Number()) : name;
}

std::string HeadName(const FsmDocument& document, RowNumber row) {
    if (row < RowNumber(kFirstEventRow))
        return RowName(document, row);
    const EventRecord& event = document.Event(row);
    if (event.Name.empty())
        return "Event row " + NumberText(row.Number()) + ": " + std::string(kNothing);
    return "Event " + event.Name + (event.Code.empty() ? ", without a test" : "");
}

std::string Content(const FsmDocument& document, Cell cell) {
    const StateRecord& state = document.State(cell.State);
    if (cell.Row == RowNumber(kEntryActionRow))
        return FirstCodeLine(state.EntryCode);
    if (cell.Row == RowNumber(kExitActionRow))
        return FirstCodeLine(state.ExitCode);
    if (cell.Row == RowNumber(kTimingModeRow))
        return FirstCodeLine(TimingText(state));
    const std::string target = TargetText(document, state.Targets[cell.Row]);
    if (state.Actions[cell.Row].empty())
        return target.empty() ? std::string(kNothing) : target;
    return target.empty() ? "action alone" : target + ", with action";
}

} // namespace

std::string CellName(const FsmDocument& document, Cell cell) {
    if (cell.State == kNoState)
        return HeadName(document, cell.Row);
    if (cell.Row == RowNumber(kHeadRow)) {
        const std::string_view name = Trim(document.State(cell.State).Name);
        return "State " + NumberText(cell.State.Number()) + ": " +
               std::string(name.empty() ? kNothing : name);
    }
    return RowName(document, cell.Row) + " in " + StateName(document, cell.State) + ": " +
           Content(document, cell);
}

} // namespace orvane
