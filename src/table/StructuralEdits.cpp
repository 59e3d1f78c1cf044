// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/StructuralEdits.h"

#include "core/RecordFields.h"
#include "table/RenumberTargets.h"
#include "text/NumberText.h"

#include <algorithm>
#include <string>
#include <type_traits>
#include <utility>

namespace orvane {

namespace {

// The first state with a transition in the row, kNoState when there is none.
StateNumber StateWithTransition(const FsmDocument& document, RowNumber row) {
    for (const StateNumber state : StateNumbers())
        if (document.State(state).Targets[row] != kNoState)
            return state;
    return kNoState;
}

void ShiftCellsDown(StateRecord& state, RowNumber row) {
    for (RowNumber r = kLastRow; r > row; --r) {
        state.Targets[r] = state.Targets[r - 1];
        state.Actions[r] = state.Actions[r - 1];
    }
    state.Targets[row] = kNoState;
    state.Actions[row].clear();
}

// The action of the bottom row stays.
void ShiftCellsUp(StateRecord& state, RowNumber row) {
    for (RowNumber r = row; r < kLastRow; ++r) {
        state.Targets[r] = state.Targets[r + 1];
        state.Actions[r] = state.Actions[r + 1];
    }
    state.Targets[kLastRow] = kNoState;
}

// Whether an insertion may use the column up. Timing modes and actions are not looked at.
bool IsFree(const StateRecord& state) {
    bool hasText = false;
    ForEachField(kStateFields, [&]<typename Value>(const Field<StateRecord, Value>& field) {
        if constexpr (std::is_same_v<Value, std::string>)
            hasText = hasText || !(state.*field.Member).empty();
    });
    const auto withoutTarget = [&state](RowNumber row) { return state.Targets[row] == kNoState; };
    return !hasText && std::all_of(CellRows().begin(), CellRows().end(), withoutTarget);
}

// The last free column behind this one, kNoState when there is none.
StateNumber LastFreeColumnBehind(const FsmDocument& document, StateNumber state) {
    for (StateNumber column = kStateCount; column > state; --column)
        if (IsFree(document.State(column)))
            return column;
    return kNoState;
}

// Whether a copied transition leads to the state.
bool LeadsTo(const TableClipboard& clipboard, StateNumber state) {
    if (clipboard.Kind == ClipKind::Transition)
        return clipboard.ClipTarget == state;
    const std::vector<BlockCell>& cells = clipboard.ClipBlock.Cells;
    return clipboard.Kind == ClipKind::Block &&
           std::any_of(cells.begin(), cells.end(),
                       [state](const BlockCell& cell) { return cell.Target == state; });
}

void Forget(TableClipboard& clipboard) { clipboard.Kind = ClipKind::Empty; }

UserMessage BottomRowInUse(StateNumber state) {
    return {"Sorry, you can't insert an event row because at least\r\none state (" +
            NumberText(state.Number()) +
            ") has a transition in the very bottom cell.\r\n"
            "and inserting a row involves moving everything down a row."};
}

UserMessage EventHasTransitions() {
    return {.Text = "The event row contains one or more state transitions.\r\n"
                    "Are you quite sure you want to delete it?",
            .Title = "Careful!",
            .Icon = MessageIcon::Warning,
            .Buttons = MessageButtons::YesNo};
}

UserMessage NoRoomForAState() {
    return {.Text = "Sorry, there is no room left to insert a new column",
            .Title = "We have a problem here, Housten",
            .Icon = MessageIcon::Critical};
}

} // namespace

std::optional<UserMessage> InsertEvent(FsmDocument& document, TableClipboard& clipboard, RowNumber row) {
    RequireInRange(row, EventRows(), "event row");
    if (const StateNumber state = StateWithTransition(document, kLastRow); state != kNoState)
        return BottomRowInUse(state);
    for (const StateNumber state : StateNumbers())
        ShiftCellsDown(document.State(state), row);
    ShiftCellsDown(clipboard.ClipState, row);
    for (RowNumber r = kLastRow; r > row; --r)
        document.Event(r) = document.Event(r - 1);
    document.Event(row) = FsmDocument::EventTemplate();
    return std::nullopt;
}

std::optional<UserMessage> QuestionBeforeDeleteEvent(const FsmDocument& document, RowNumber row) {
    if (StateWithTransition(document, row) == kNoState)
        return std::nullopt;
    return EventHasTransitions();
}

void DeleteEvent(FsmDocument& document, TableClipboard& clipboard, RowNumber row) {
    RequireInRange(row, EventRows(), "event row");
    for (const StateNumber state : StateNumbers())
        ShiftCellsUp(document.State(state), row);
    ShiftCellsUp(clipboard.ClipState, row);
    clipboard.ClipState.Actions[kLastRow].clear();
    for (RowNumber r = row; r < kLastRow; ++r)
        document.Event(r) = document.Event(r + 1);
    document.Event(kLastRow) = FsmDocument::EventTemplate();
}

std::optional<UserMessage> InsertState(FsmDocument& document, TableClipboard& clipboard, StateNumber state) {
    RequireInRange(state, StateNumbers(), "state");
    const StateNumber free = LastFreeColumnBehind(document, state);
    if (free == kNoState)
        return NoRoomForAState();
    for (StateNumber k = free - 1; k >= state; --k) {
        document.State(k + 1) = std::move(document.State(k)); // which is given another record next
        RenumberTargets(document, clipboard, StateNumbers(), {k, k + 1});
    }
    document.State(state) = document.StateTemplate();
    if (clipboard.Kind == ClipKind::Event)
        Forget(clipboard);
    return std::nullopt;
}

void DeleteState(FsmDocument& document, TableClipboard& clipboard, StateNumber state) {
    RequireInRange(state, StateNumbers(), "state");
    if (LeadsTo(clipboard, state) || clipboard.Kind == ClipKind::Event)
        Forget(clipboard);
    StateRecord last = document.State(kStateCount); // stays as it is
    for (StateNumber k = state; k < kStateCount; ++k) {
        RenumberTargets(document, clipboard, {1, kStateCount - 1}, {k + 1, k});
        document.State(k) = std::move(document.State(k + 1));
    }
    document.State(kStateCount) = std::move(last);
}

} // namespace orvane
