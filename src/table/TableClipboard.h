// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "table/CellBlock.h"

#include <array>
#include <string>

namespace orvane {

enum class ClipKind { Empty, State, Event, EntryAction, Transition, TransitionAction, Block };

// What was last copied or cut in the table: one thing, the kind says which. The rest is left over from
// earlier copies; it is pasted only by a command that EnablePasteItems() has left enabled.
struct TableClipboard {
    ClipKind Kind = ClipKind::Empty;

    StateRecord ClipState; // a state, or the one whose entry action was copied

    EventRecord ClipEvent;
    std::array<StateNumber, kStateCount> ClipEventTargets{}; // of states 1..100, in their order
    std::array<std::string, kStateCount> ClipEventActions;

    std::string ClipAction; // a transition, or its action alone
    StateNumber ClipTarget = kNoState;

    CellBlock ClipBlock; // several transitions

    bool operator==(const TableClipboard&) const = default;
};

void CopyState(const FsmDocument& document, TableClipboard& clipboard, StateNumber state);
void CopyEvent(const FsmDocument& document, TableClipboard& clipboard, RowNumber row);
void CopyEntryAction(const FsmDocument& document, TableClipboard& clipboard, StateNumber state);
void CopyTransition(const FsmDocument& document, TableClipboard& clipboard, Cell cell);
void CopyTransitionAction(const FsmDocument& document, TableClipboard& clipboard, Cell cell);

// One cell is copied as a transition, several as a block; no cell leaves the clipboard as it is.
void CopyCells(const FsmDocument& document, TableClipboard& clipboard, const CellChoice& choice);
void CutCells(FsmDocument& document, TableClipboard& clipboard, const CellChoice& choice);

void CutEntryAction(FsmDocument& document, TableClipboard& clipboard, StateNumber state);
void CutTransition(FsmDocument& document, TableClipboard& clipboard, Cell cell);
void CutTransitionAction(FsmDocument& document, TableClipboard& clipboard, Cell cell);

// Each overwrites what stands there completely. A state comes with its name, its width and the transitions
// that leave it, an event with its cells in all states.
void PasteState(FsmDocument& document, const TableClipboard& clipboard, StateNumber state);
void PasteEvent(FsmDocument& document, const TableClipboard& clipboard, RowNumber row);
void PasteEntryAction(FsmDocument& document, const TableClipboard& clipboard, StateNumber state);
void PasteTransition(FsmDocument& document, const TableClipboard& clipboard, Cell cell);
void PasteTransitionAction(FsmDocument& document, const TableClipboard& clipboard, Cell cell);

// What the clipboard has for transition cells: a block, one cell, an action alone that leaves the target of
// its cell. None for any other content.
std::optional<CellBlock> BlockToPaste(const TableClipboard& clipboard);

void DeleteEntryAction(FsmDocument& document, StateNumber state);

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
