// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Present.h"

#include "run/RunStep.h"

#include <algorithm>
#include <bit>

namespace orvane::run {

std::uint64_t TakeableRows(const Machine& machine, StateNumber number) {
    if (number == kNoState)
        return 0;
    const RunState& state = machine.State(number);
    std::uint64_t rows = state.Events;
    if (state.Limit != LimitKind::None)
        rows |= BitOf(kTimeoutRow);
    if (state.Targets[kElseRow] != kNoState)
        rows |= BitOf(kElseRow);
    return rows;
}

RowNumber NextRow(const Machine& machine, const Clock& clock) {
    const RunState& state = machine.State(clock.Where().State);
    if (const std::uint64_t present = clock.Surroundings().Events & state.Events)
        return RowNumber(std::countr_zero(present));
    if (state.Targets[kElseRow] != kNoState && TimeLeft(clock) != Units{0})
        return kElseRow;
    return state.Limit != LimitKind::None ? kTimeoutRow : kHeadRow;
}

std::vector<RowNumber> InputsInOrder(const Machine& machine, StateNumber state) {
    std::uint64_t tested = 0;
    for (const StateNumber any : StateNumbers())
        tested |= machine.State(any).Events;
    std::vector<RowNumber> rows;
    for (const RowNumber row : EventRows()) {
        if ((tested & BitOf(row)) != 0)
            rows.push_back(row);
    }
    std::stable_partition(rows.begin(), rows.end(),
                          [&](RowNumber row) { return HasEffect(machine, state, row); });
    return rows;
}

bool HasEffect(const Machine& machine, StateNumber state, RowNumber event) {
    return state != kNoState && (machine.State(state).Events & BitOf(event)) != 0;
}

std::optional<Units> TimeLeft(const Clock& clock) {
    const std::optional<Units> due = clock.NextTimeout();
    if (!due)
        return std::nullopt;
    return *due - clock.Where().Now;
}

} // namespace orvane::run
