// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/RenumberTargets.h"

namespace orvane {

namespace {

void Renumber(StateNumber& target, TargetChange change) {
    if (target == change.Old)
        target = change.New;
}

void Renumber(StateRecord& state, TargetChange change) {
    for (StateNumber& target : state.Targets)
        Renumber(target, change);
}

} // namespace

void RenumberTargets(FsmDocument& document, TableClipboard& clipboard, StateRange states,
                     TargetChange change) {
    for (const StateNumber state : states)
        Renumber(document.State(state), change);
    Renumber(clipboard.ClipState, change);
    Renumber(clipboard.ClipTarget, change);
    for (BlockCell& cell : clipboard.ClipBlock.Cells) {
        if (cell.Target)
            Renumber(*cell.Target, change);
    }
}

} // namespace orvane
