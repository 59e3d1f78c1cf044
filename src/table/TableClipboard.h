// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <array>
#include <cstdint>
#include <string>

namespace orvane {

enum class ClipKind { Empty, State, Event, EntryAction, Transition, TransitionAction };

// What was last copied or cut in the table: one thing, the kind says which. The rest is left over from
// earlier copies; it is pasted only by a command that EnablePasteItems() has left enabled.
struct TableClipboard {
    ClipKind Kind = ClipKind::Empty;

    StateRecord ClipState; // a state, or the one whose entry action was copied

    EventRecord ClipEvent;
    std::array<std::int16_t, kStateCount> ClipEventTargets{}; // of states 1..100, in their order
    std::array<std::string, kStateCount> ClipEventActions;

    std::string ClipAction; // a transition, or its action alone
    std::int16_t ClipTarget = kNoState;

    bool operator==(const TableClipboard&) const = default;
};

void CopyState(const FsmDocument& document, TableClipboard& clipboard, int state);
void CopyEvent(const FsmDocument& document, TableClipboard& clipboard, int row);
void CopyEntryAction(const FsmDocument& document, TableClipboard& clipboard, int state);
void CopyTransition(const FsmDocument& document, TableClipboard& clipboard, int row, int state);
void CopyTransitionAction(const FsmDocument& document, TableClipboard& clipboard, int row, int state);

void CutEntryAction(FsmDocument& document, TableClipboard& clipboard, int state);
void CutTransition(FsmDocument& document, TableClipboard& clipboard, int row, int state);
void CutTransitionAction(FsmDocument& document, TableClipboard& clipboard, int row, int state);

// Each overwrites what stands there completely. A state comes with its name, its width and the transitions
// that leave it, an event with its cells in all states.
void PasteState(FsmDocument& document, const TableClipboard& clipboard, int state);
void PasteEvent(FsmDocument& document, const TableClipboard& clipboard, int row);
void PasteEntryAction(FsmDocument& document, const TableClipboard& clipboard, int state);
void PasteTransition(FsmDocument& document, const TableClipboard& clipboard, int row, int state);
void PasteTransitionAction(FsmDocument& document, const TableClipboard& clipboard, int row, int state);

void DeleteEntryAction(FsmDocument& document, int state);

// Which of the commands that paste can be chosen.
struct PasteItems {
    bool State = false;
    bool Event = false;
    bool EntryAction = false;
    bool Transition = false;
    bool TransitionAction = false;

    bool operator==(const PasteItems&) const = default;
};

// What can be chosen once the clipboard holds this kind. Some kinds leave some of the commands as they are.
PasteItems EnablePasteItems(ClipKind kind, PasteItems present);

} // namespace orvane
