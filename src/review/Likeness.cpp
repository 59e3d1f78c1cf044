// SPDX-License-Identifier: GPL-3.0-or-later
// Each thing that either side has weighs one; what nobody has yet been recognised in says nothing and is left
// out.
#include "review/Likeness.h"

#include <algorithm>
#include <cstdlib>

namespace orvane::review {

namespace {

constexpr double kNeighbour = 0.25;      // of a pair that stands behind, or before, the same one
constexpr double kBothUnknown = 0.5;     // two targets that have not been recognised: they may be the same
constexpr double kNearer = 1e-4;         // decides between equals only
constexpr std::size_t kMostLedFrom = 20; // a state that everything leads to is not known by that alone

} // namespace

class Likeness::Sum {
  public:
    void Add(double weight, double same) {
        all_ += weight;
        same_ += weight * same;
    }
    double Share() const { return all_ == 0 ? 0 : same_ / all_; }

  private:
    double all_ = 0;
    double same_ = 0;
};

Likeness::Likeness(const Machines& machines, const Matching& known, TextIds& ids)
    : old_(machines.Old), new_(machines.New), known_(known), ids_(ids) {
    for (const RowNumber row : CellRows()) {
        if (known.Rows.HasNew(row))
            rows_.push_back({row, known.Rows.NewOf(row)});
    }
    for (const StateNumber state : StateNumbers()) {
        if (known.States.HasNew(state))
            states_.push_back({state, known.States.NewOf(state)});
    }
}

double Likeness::OfStates(StateNumber oldState, StateNumber newState) const {
    Sum sum;
    const StateDigest& oldDigest = old_.State(oldState);
    const StateDigest& newDigest = new_.State(newState);
    AddFields(sum, oldDigest.Fields, newDigest.Fields);
    AddCells(sum, {oldState, newState});
    AddLedFrom(sum, {oldState, newState});
    AddNearness(sum, oldDigest, newDigest, known_.States);
    return sum.Share() - kNearer * std::abs(oldDigest.Place - newDigest.Place) / kStateCount;
}

double Likeness::OfEvents(RowNumber oldRow, RowNumber newRow) const {
    Sum sum;
    const EventDigest& oldDigest = old_.Event(oldRow);
    const EventDigest& newDigest = new_.Event(newRow);
    AddFields(sum, oldDigest.Fields, newDigest.Fields);
    for (const auto& [oldState, newState] : states_) {
        const StateDigest& here = old_.State(oldState);
        const StateDigest& there = new_.State(newState);
        AddTargets(sum, here.Targets[oldRow], there.Targets[newRow]);
        if (here.Actions[oldRow] != TextIds::kNoText || there.Actions[newRow] != TextIds::kNoText)
            sum.Add(1, here.Actions[oldRow] == there.Actions[newRow]);
    }
    AddNearness(sum, oldDigest, newDigest, known_.Rows);
    return sum.Share() - kNearer * std::abs(oldDigest.Place - newDigest.Place) / kStateCount;
}

void Likeness::AddFields(Sum& sum, const std::vector<int>& oldFields,
                         const std::vector<int>& newFields) const {
    for (std::size_t i = 0; i < oldFields.size(); ++i) {
        if (oldFields[i] != TextIds::kNoText || newFields[i] != TextIds::kNoText)
            sum.Add(1, ids_.Likeness(oldFields[i], newFields[i]));
    }
}

void Likeness::AddCells(Sum& sum, Pair<StateNumber> states) const {
    const StateDigest& here = old_.State(states.Old);
    const StateDigest& there = new_.State(states.New);
    for (const auto& [oldRow, newRow] : rows_) {
        const StateNumber oldTarget = here.Targets[oldRow];
        const StateNumber newTarget = there.Targets[newRow];
        if (oldTarget == states.Old || newTarget == states.New)
            sum.Add(1, oldTarget == states.Old && newTarget == states.New);
        else
            AddTargets(sum, oldTarget, newTarget);
        if (here.Actions[oldRow] != TextIds::kNoText || there.Actions[newRow] != TextIds::kNoText)
            sum.Add(1, here.Actions[oldRow] == there.Actions[newRow]);
    }
}

void Likeness::AddTargets(Sum& sum, StateNumber oldTarget, StateNumber newTarget) const {
    if (oldTarget == kNoState && newTarget == kNoState)
        return;
    if (oldTarget == kNoState || newTarget == kNoState)
        return sum.Add(1, 0);
    const StateNumber expected = known_.States.NewOf(oldTarget);
    if (expected == kNoState && !known_.States.HasOld(newTarget))
        return sum.Add(1, kBothUnknown);
    sum.Add(1, expected == newTarget);
}

void Likeness::AddLedFrom(Sum& sum, Pair<StateNumber> states) const {
    const std::vector<Cell>& oldCells = old_.State(states.Old).LedFrom;
    const std::vector<Cell>& newCells = new_.State(states.New).LedFrom;
    for (std::size_t i = 0; i < std::min(oldCells.size(), kMostLedFrom); ++i) {
        const Cell cell = {known_.Rows.NewOf(oldCells[i].Row), known_.States.NewOf(oldCells[i].State)};
        if (cell.Row != kNoRow && cell.State != kNoState)
            sum.Add(1, new_.State(cell.State).Targets[cell.Row] == states.New);
    }
    for (std::size_t i = 0; i < std::min(newCells.size(), kMostLedFrom); ++i) {
        const Cell cell = {known_.Rows.OldOf(newCells[i].Row), known_.States.OldOf(newCells[i].State)};
        if (cell.Row != kNoRow && cell.State != kNoState &&
            old_.State(cell.State).Targets[cell.Row] != states.Old)
            sum.Add(1, 0);
    }
}

template <typename Digest, typename Number>
void Likeness::AddNearness(Sum& sum, const Digest& oldDigest, const Digest& newDigest,
                           const Pairing<Number>& pairing) const {
    const auto sameNeighbour = [&](Number oldOne, Number newOne) {
        if (oldOne == Number() || newOne == Number())
            return oldOne == newOne;
        return pairing.NewOf(oldOne) == newOne;
    };
    sum.Add(kNeighbour, sameNeighbour(oldDigest.Before, newDigest.Before));
    sum.Add(kNeighbour, sameNeighbour(oldDigest.After, newDigest.After));
}

} // namespace orvane::review
