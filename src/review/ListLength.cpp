// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ListLength.h"

#include <algorithm>

namespace orvane::review {

namespace {

template <typename Number>
std::size_t Moves(const Pairing<Number>& pairing) {
    std::vector<int> newNumbers;
    for (const Number number : Pairing<Number>::Numbers()) {
        if (pairing.HasNew(number))
            newNumbers.push_back(pairing.NewOf(number).Number());
    }
    const std::vector<bool> stays = LongestIncreasingRun(newNumbers);
    return std::size_t(std::count(stays.begin(), stays.end(), false));
}

template <typename Number>
std::size_t ComeAndGone(const std::vector<Number>& oldOnes, const std::vector<Number>& newOnes,
                        const Pairing<Number>& pairing) {
    const auto gone = [&](Number number) { return !pairing.HasNew(number); };
    const auto come = [&](Number number) { return !pairing.HasOld(number); };
    return std::size_t(std::count_if(oldOnes.begin(), oldOnes.end(), gone) +
                       std::count_if(newOnes.begin(), newOnes.end(), come));
}

std::size_t DifferentFields(const std::vector<int>& oldOnes, const std::vector<int>& newOnes) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < oldOnes.size(); ++i)
        count += oldOnes[i] != newOnes[i] ? 1 : 0;
    return count;
}

std::size_t DifferentCells(const StateDigest& here, const StateDigest& there, const Matching& matching) {
    std::size_t count = 0;
    for (const RowNumber row : CellRows()) {
        const RowNumber newRow = matching.Rows.NewOf(row);
        if (newRow == kNoRow)
            continue;
        const StateNumber newTarget = there.Targets[newRow];
        const StateNumber oldTarget = here.Targets[row];
        const bool sameTarget = oldTarget == kNoState
                                    ? newTarget == kNoState
                                    : newTarget != kNoState && matching.States.NewOf(oldTarget) == newTarget;
        count += sameTarget ? 0 : 1;
        count += here.Actions[row] != there.Actions[newRow] ? 1 : 0;
    }
    return count;
}

} // namespace

std::size_t ListLength(const MachineDigest& oldOne, const MachineDigest& newOne, const Matching& matching) {
    std::size_t length = ComeAndGone(oldOne.States(), newOne.States(), matching.States) +
                         ComeAndGone(oldOne.Events(), newOne.Events(), matching.Rows) +
                         Moves(matching.States) + Moves(matching.Rows);
    for (const StateNumber state : oldOne.States()) {
        if (!matching.States.HasNew(state))
            continue;
        const StateDigest& here = oldOne.State(state);
        const StateDigest& there = newOne.State(matching.States.NewOf(state));
        length += DifferentFields(here.Fields, there.Fields) + (here.Widths != there.Widths ? 1 : 0) +
                  DifferentCells(here, there, matching);
    }
    for (const RowNumber row : oldOne.Events()) {
        if (matching.Rows.HasNew(row))
            length +=
                DifferentFields(oldOne.Event(row).Fields, newOne.Event(matching.Rows.NewOf(row)).Fields);
    }
    return length;
}

} // namespace orvane::review
