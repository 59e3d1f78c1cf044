// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TableClipboard.h"

namespace orvane {

namespace {

std::size_t ClipIndex(int state) { return static_cast<std::size_t>(state - StateNumbers().First()); }

void ClipCell(const FsmDocument& document, TableClipboard& clipboard, int row, int state) {
    const StateRecord& record = document.State(state);
    clipboard.ClipAction = record.Actions[row];
    clipboard.ClipTarget = record.Targets[row];
}

} // namespace

void CopyState(const FsmDocument& document, TableClipboard& clipboard, int state) {
    clipboard.ClipState = document.State(state);
    clipboard.Kind = ClipKind::State;
}

void CopyEvent(const FsmDocument& document, TableClipboard& clipboard, int row) {
    clipboard.ClipEvent = document.Event(row);
    for (const int state : StateNumbers()) {
        clipboard.ClipEventTargets[ClipIndex(state)] = document.State(state).Targets[row];
        clipboard.ClipEventActions[ClipIndex(state)] = document.State(state).Actions[row];
    }
    clipboard.Kind = ClipKind::Event;
}

void CopyEntryAction(const FsmDocument& document, TableClipboard& clipboard, int state) {
    clipboard.ClipState = document.State(state);
    clipboard.Kind = ClipKind::EntryAction;
}

void CopyTransition(const FsmDocument& document, TableClipboard& clipboard, int row, int state) {
    ClipCell(document, clipboard, row, state);
    clipboard.Kind = ClipKind::Transition;
}

void CopyTransitionAction(const FsmDocument& document, TableClipboard& clipboard, int row, int state) {
    ClipCell(document, clipboard, row, state);
    clipboard.Kind = ClipKind::TransitionAction;
}

void CutEntryAction(FsmDocument& document, TableClipboard& clipboard, int state) {
    CopyEntryAction(document, clipboard, state);
    DeleteEntryAction(document, state);
}

void CutTransition(FsmDocument& document, TableClipboard& clipboard, int row, int state) {
    CopyTransition(document, clipboard, row, state);
    document.State(state).Targets[row] = kNoState;
    document.State(state).Actions[row].clear();
}

void CutTransitionAction(FsmDocument& document, TableClipboard& clipboard, int row, int state) {
    CopyTransitionAction(document, clipboard, row, state);
    document.State(state).Actions[row].clear();
}

void PasteState(FsmDocument& document, const TableClipboard& clipboard, int state) {
    document.State(state) = clipboard.ClipState;
}

void PasteEvent(FsmDocument& document, const TableClipboard& clipboard, int row) {
    document.Event(row) = clipboard.ClipEvent;
    for (const int state : StateNumbers()) {
        document.State(state).Targets[row] = clipboard.ClipEventTargets[ClipIndex(state)];
        document.State(state).Actions[row] = clipboard.ClipEventActions[ClipIndex(state)];
    }
}

void PasteEntryAction(FsmDocument& document, const TableClipboard& clipboard, int state) {
    document.State(state).EntryCode = clipboard.ClipState.EntryCode;
}

void PasteTransition(FsmDocument& document, const TableClipboard& clipboard, int row, int state) {
    document.State(state).Actions[row] = clipboard.ClipAction;
    document.State(state).Targets[row] = clipboard.ClipTarget;
}

void PasteTransitionAction(FsmDocument& document, const TableClipboard& clipboard, int row, int state) {
    document.State(state).Actions[row] = clipboard.ClipAction;
}

void DeleteEntryAction(FsmDocument& document, int state) { document.State(state).EntryCode.clear(); }

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
    case ClipKind::TransitionAction:
        break;
    }
    return {.TransitionAction = true};
}

} // namespace orvane
