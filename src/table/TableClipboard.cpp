// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TableClipboard.h"

namespace orvane {

namespace {

std::size_t ClipIndex(StateNumber state) { return IndexIn(StateNumbers(), state); }

void ClipCell(const FsmDocument& document, TableClipboard& clipboard, Cell cell) {
    const StateRecord& record = document.State(cell.State);
    clipboard.ClipAction = record.Actions[cell.Row];
    clipboard.ClipTarget = record.Targets[cell.Row];
}

} // namespace

void CopyState(const FsmDocument& document, TableClipboard& clipboard, StateNumber state) {
    clipboard.ClipState = document.State(state);
    clipboard.Kind = ClipKind::State;
}

void CopyEvent(const FsmDocument& document, TableClipboard& clipboard, RowNumber row) {
    clipboard.ClipEvent = document.Event(row);
    for (const StateNumber state : StateNumbers()) {
        clipboard.ClipEventTargets[ClipIndex(state)] = document.State(state).Targets[row];
        clipboard.ClipEventActions[ClipIndex(state)] = document.State(state).Actions[row];
    }
    clipboard.Kind = ClipKind::Event;
}

void CopyEntryAction(const FsmDocument& document, TableClipboard& clipboard, StateNumber state) {
    clipboard.ClipState = document.State(state);
    clipboard.Kind = ClipKind::EntryAction;
}

void CopyTransition(const FsmDocument& document, TableClipboard& clipboard, Cell cell) {
    ClipCell(document, clipboard, cell);
    clipboard.Kind = ClipKind::Transition;
}

void CopyTransitionAction(const FsmDocument& document, TableClipboard& clipboard, Cell cell) {
    ClipCell(document, clipboard, cell);
    clipboard.Kind = ClipKind::TransitionAction;
}

void CopyCells(const FsmDocument& document, TableClipboard& clipboard, const CellChoice& choice) {
    if (choice.Size() == 1)
        return CopyTransition(document, clipboard, {choice.Rows.front(), choice.States.front()});
    if (choice.IsEmpty())
        return;
    clipboard.ClipBlock = BlockOf(document, choice);
    clipboard.Kind = ClipKind::Block;
}

void CutCells(FsmDocument& document, TableClipboard& clipboard, const CellChoice& choice) {
    CopyCells(document, clipboard, choice);
    ClearCells(document, choice);
}

std::optional<CellBlock> BlockToPaste(const TableClipboard& clipboard) {
    switch (clipboard.Kind) {
    case ClipKind::Block:
        return clipboard.ClipBlock;
    case ClipKind::Transition:
        return CellBlock{1, {{clipboard.ClipTarget, clipboard.ClipAction}}};
    case ClipKind::TransitionAction:
        return CellBlock{1, {{std::nullopt, clipboard.ClipAction}}};
    default:
        return std::nullopt;
    }
}

void CutEntryAction(FsmDocument& document, TableClipboard& clipboard, StateNumber state) {
    CopyEntryAction(document, clipboard, state);
    DeleteEntryAction(document, state);
}

void CutTransition(FsmDocument& document, TableClipboard& clipboard, Cell cell) {
    CopyTransition(document, clipboard, cell);
    document.State(cell.State).Targets[cell.Row] = kNoState;
    document.State(cell.State).Actions[cell.Row].clear();
}

void CutTransitionAction(FsmDocument& document, TableClipboard& clipboard, Cell cell) {
    CopyTransitionAction(document, clipboard, cell);
    document.State(cell.State).Actions[cell.Row].clear();
}

void PasteState(FsmDocument& document, const TableClipboard& clipboard, StateNumber state) {
    document.State(state) = clipboard.ClipState;
}

void PasteEvent(FsmDocument& document, const TableClipboard& clipboard, RowNumber row) {
    document.Event(row) = clipboard.ClipEvent;
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Targets[row] = clipboard.ClipEventTargets[ClipIndex(state)];
        document.State(state).Actions[row] = clipboard.ClipEventActions[ClipIndex(state)];
    }
}

void PasteEntryAction(FsmDocument& document, const TableClipboard& clipboard, StateNumber state) {
    document.State(state).EntryCode = clipboard.ClipState.EntryCode;
}

void PasteTransition(FsmDocument& document, const TableClipboard& clipboard, Cell cell) {
    document.State(cell.State).Actions[cell.Row] = clipboard.ClipAction;
    document.State(cell.State).Targets[cell.Row] = clipboard.ClipTarget;
}

void PasteTransitionAction(FsmDocument& document, const TableClipboard& clipboard, Cell cell) {
    document.State(cell.State).Actions[cell.Row] = clipboard.ClipAction;
}

void DeleteEntryAction(FsmDocument& document, StateNumber state) { document.State(state).EntryCode.clear(); }

PasteItems EnablePasteItems(ClipKind kind, PasteItems present) {
    switch (kind) {
    case ClipKind::Empty:
        return {};
    case ClipKind::State:
        return {
            .State = true, .Transition = present.Transition, .TransitionAction = present.TransitionAction};
    case ClipKind::Event:
        return {.Event = true, .TransitionAction = present.TransitionAction};
    case ClipKind::EntryAction:
        return {.EntryAction = true};
    case ClipKind::Transition:
        return {.Transition = true, .TransitionAction = true};
    case ClipKind::Block:
        return {.Transition = true};
    case ClipKind::TransitionAction:
        break;
    }
    return {.TransitionAction = true};
}

} // namespace orvane
