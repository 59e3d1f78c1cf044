// SPDX-License-Identifier: GPL-3.0-or-later
//
// State 1 must be re-entered. The walk starts at state 1, because that is where the machine starts, but a
// state counts as reached when a transition leads into it, and that holds for state 1 too: when no reached
// state (state 1 itself included) has a transition back to it, it is not reached, no block is generated for
// it, and no message is raised. Every target is an edge, whatever the event's code, the timing mode or the
// action say.
#include "codegen/Reachability.h"

namespace orvane {

namespace {
constexpr StateNumber kStartState = 1;
}

// Depth first, once for each state: at most 100 calls are open at a time.
void Reachability::Visit(const FsmDocument& document, StateNumber state) {
    reached_.set(Bit(state));
    const StateRecord& record = document.State(state);
    for (const RowNumber row : CellRows()) {
        const StateNumber target = record.Targets[row];
        if (target == kNoState)
            continue;
        returnsToStart_ = returnsToStart_ || target == kStartState;
        if (!Reached(target))
            Visit(document, target);
    }
}

Reachability::Reachability(const FsmDocument& document) {
    Visit(document, kStartState);
    reached_.set(Bit(kStartState), returnsToStart_);
}

Reachability ComputeReachability(const FsmDocument& document) { return Reachability(document); }

} // namespace orvane
