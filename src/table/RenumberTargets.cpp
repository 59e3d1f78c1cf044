// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/RenumberTargets.h"

namespace orvane {

namespace {

void Renumber(std::int16_t& target, TargetChange change) {
    if (target == change.Old)
        target = static_cast<std::int16_t>(change.New);
}

void Renumber(StateRecord& state, TargetChange change) {
    for (std::int16_t& target : state.Targets)
        Renumber(target, change);
}

} // namespace

void RenumberTargets(FsmDocument& document, TableClipboard& clipboard, NumberRange states,
                     TargetChange change) {
    for (const int state : states)
        Renumber(document.State(state), change);
    Renumber(clipboard.ClipState, change);
    Renumber(clipboard.ClipTarget, change);
}

} // namespace orvane
