// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <bitset>

namespace orvane {

// Which states a walk from state 1 enters. Derived from the document whenever it is asked for, never stored.
class Reachability {
  public:
    // Throws BoundsError when a transition leads to a state that the table does not have.
    explicit Reachability(const FsmDocument& document);

    // State 1..100; anything else throws BoundsError.
    bool Reached(StateNumber state) const {
        RequireInRange(state, StateNumbers(), "state");
        return reached_.test(Bit(state));
    }

    // Some transition of a reached state leads to state 1.
    bool ReturnsToStart() const { return returnsToStart_; }

  private:
    void Visit(const FsmDocument& document, StateNumber state);
    static std::size_t Bit(StateNumber state) { return IndexIn(StateNumbers(), state); }

    std::bitset<kStateCount> reached_;
    bool returnsToStart_ = false;
};

Reachability ComputeReachability(const FsmDocument& document);

} // namespace orvane
