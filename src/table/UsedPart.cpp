// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/UsedPart.h"

#include "table/CellChoice.h"
#include "table/CellEdit.h"

#include <algorithm>

namespace orvane {

namespace {

bool IsUsed(const FsmDocument& document, RowNumber row) {
    if (!document.Event(row).Name.empty())
        return true;
    return std::any_of(StateNumbers().begin(), StateNumbers().end(), [&](StateNumber state) {
        const StateRecord& record = document.State(state);
        return record.Targets[row] != kNoState || !record.Actions[row].empty();
    });
}

bool DiffersInTiming(const StateRecord& a, const StateRecord& b) {
    return a.TimingMode != b.TimingMode || a.TimeConst != b.TimeConst || a.TimingVar != b.TimingVar ||
           a.TimerId != b.TimerId;
}

bool Differ(const EventRecord& a, const EventRecord& b) {
    return a.Name != b.Name || a.Code != b.Code || a.Tooltip != b.Tooltip;
}

// In a state: row by row from its head down.
std::optional<RowNumber> FirstDifference(const StateRecord& a, const StateRecord& b) {
    if (a.Name != b.Name || a.Tooltip != b.Tooltip)
        return kHeadRow;
    if (a.EntryCode != b.EntryCode)
        return kEntryActionRow;
    if (a.ExitCode != b.ExitCode)
        return kExitActionRow;
    if (DiffersInTiming(a, b))
        return kTimingModeRow;
    for (const RowNumber row : CellRows()) {
        if (a.Targets[row] != b.Targets[row] || a.Actions[row] != b.Actions[row])
            return row;
    }
    return std::nullopt;
}

// In the row heads and the corner.
bool DifferBesideTheStates(const FsmDocument& a, const FsmDocument& b) {
    return a.General != b.General || std::any_of(EventRows().begin(), EventRows().end(), [&](RowNumber row) {
               return Differ(a.Event(row), b.Event(row));
           });
}

} // namespace

StateNumber FirstUsedState(const FsmDocument& document) {
    for (const StateNumber state : StateNumbers()) {
        if (!IsEmpty(document.State(state)))
            return state;
    }
    return StateNumbers().First();
}

StateNumber LastUsedState(const FsmDocument& document) {
    for (StateNumber state = StateNumbers().Last(); state > StateNumbers().First(); --state) {
        if (!IsEmpty(document.State(state)))
            return state;
    }
    return StateNumbers().First();
}

Cell FirstCell(const FsmDocument& document) {
    return {ShownRowsFrom(document, kFirstCellRow).front(), StateNumbers().First()};
}

Cell LastUsedCell(const FsmDocument& document) {
    Cell last = FirstCell(document);
    for (const RowNumber row : ShownRowsFrom(document, last.Row)) {
        if (IsUsed(document, row))
            last.Row = row;
    }
    last.State = LastUsedState(document);
    return last;
}

Cell CellBelow(const FsmDocument& document, Cell cell) {
    if (cell.Row >= RowNumber(kLastRow))
        return cell;
    for (const RowNumber row : ShownRowsFrom(document, cell.Row + 1)) {
        if (CanEditCell(document, row))
            return {row, cell.State};
    }
    return cell;
}

std::optional<Cell> FirstDifference(const FsmDocument& before, const FsmDocument& after) {
    for (const StateNumber state : StateNumbers()) {
        if (const auto row = FirstDifference(before.State(state), after.State(state)))
            return Cell{*row, state};
    }
    for (const RowNumber row : EventRows()) {
        if (Differ(before.Event(row), after.Event(row)))
            return Cell{row, kNoState};
    }
    if (before.General != after.General)
        return Cell{};
    return std::nullopt;
}

std::optional<StateNumber> OnlyColumnThatDiffers(const FsmDocument& before, const FsmDocument& after) {
    std::optional<StateNumber> only;
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& older = before.State(state);
        const StateRecord& newer = after.State(state);
        if (!FirstDifference(older, newer))
            continue;
        if (only || older.Name != newer.Name)
            return std::nullopt;
        only = state;
    }
    return DifferBesideTheStates(before, after) ? std::nullopt : only;
}

} // namespace orvane
