// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/MachineDigest.h"
#include "review/Pairing.h"

#include <vector>

namespace orvane::review {

// How much a state, or an event, of an old document is like one of a new document, seen through what has been
// recognised so far: from 0 to 1, the part of the content of both that is the same. Content are the texts,
// the timing, the cells with the states they lead to, and the cells that lead here; where both are equal the
// nearer one in the order is a little more alike.
class Likeness {
  public:
    struct Machines {
        const MachineDigest& Old;
        const MachineDigest& New;
    };

    // All must outlive it.
    Likeness(const Machines& machines, const Matching& known, TextIds& ids);

    double OfStates(StateNumber oldState, StateNumber newState) const;
    double OfEvents(RowNumber oldRow, RowNumber newRow) const;

  private:
    class Sum;
    template <typename Number>
    struct Pair {
        Number Old;
        Number New;
    };

    void AddFields(Sum& sum, const std::vector<int>& oldFields, const std::vector<int>& newFields) const;
    void AddCells(Sum& sum, Pair<StateNumber> states) const;
    void AddLedFrom(Sum& sum, Pair<StateNumber> states) const;
    void AddTargets(Sum& sum, StateNumber oldTarget, StateNumber newTarget) const;
    template <typename Digest, typename Number>
    void AddNearness(Sum& sum, const Digest& oldDigest, const Digest& newDigest,
                     const Pairing<Number>& pairing) const;

    const MachineDigest& old_;
    const MachineDigest& new_;
    const Matching& known_;
    TextIds& ids_;
    std::vector<Pair<RowNumber>> rows_;
    std::vector<Pair<StateNumber>> states_;
};

} // namespace orvane::review
