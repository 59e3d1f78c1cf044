// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RuledStep.h"

#include "core/TimingMode.h"

namespace orvane::test {

using run::Config;
using run::Inputs;
using run::RunState;
using run::ScanEnd;
using run::Taken;

void RuledStep::Look(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    const int row = RowTaken(config, inputs);
    if (row == kHeadRow)
        return;
    const StateNumber from = config.State;
    const int target = document_.State(from.Number()).Targets[row].Number();
    const bool holds = Stays(from, row);
    log.push_back({from, row, target, holds});
    if (holds)
        return;
    if (!broken_.OnlyOtherStatesStartTimers || from != target)
        Enter(config, target);
}

// Gives up after so many looks that no random machine needs them in one scan.
ScanEnd RuledStep::LookUntilYield(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    for (int looks = 0; !Yields(config.State); ++looks) {
        if (looks > 1000)
            return ScanEnd::Spins;
        Look(config, inputs, log);
    }
    return ScanEnd::Yields;
}

bool RuledStep::Yields(StateNumber state) const {
    return broken_.ElseStatesYield || broken_.ScanIsOneLook || machine_.Yields(state);
}

void RuledStep::Enter(Config& config, StateNumber number) const {
    config.State = number;
    const RunState& state = machine_.State(number);
    const std::int32_t mode = document_.State(number.Number()).TimingMode;
    if (state.StartsTimer || (broken_.ContinuingStarts && mode != kNoTiming))
        config.Started[broken_.OneTimerForAll ? 0 : state.Timer] = config.Now;
}

int RuledStep::RowTaken(const Config& config, const Inputs& inputs) const {
    const RunState& state = machine_.State(config.State);
    const int event = EventTaken(inputs, state);
    const bool timeIsUp = state.Limit != run::LimitKind::None && TimeIsUp(config, inputs);
    const bool hasElse = state.Targets[kElseRow] != kNoState;
    if (broken_.TimeoutBeforeEvents && timeIsUp)
        return kTimeoutRow;
    if (event != kHeadRow)
        return event;
    if (timeIsUp && !(broken_.ElseBeforeTimeout && hasElse))
        return kTimeoutRow;
    return hasElse ? kElseRow : kHeadRow;
}

int RuledStep::EventTaken(const Inputs& inputs, const RunState& state) const {
    int taken = kHeadRow;
    for (const RowNumber row : EventRows()) {
        const bool there = inputs.Has(row) && (state.Events >> static_cast<unsigned>(row.Number()) & 1U) != 0;
        if (there && (taken == kHeadRow || broken_.HighestRowFirst))
            taken = row.Number();
    }
    return taken;
}

bool RuledStep::TimeIsUp(const Config& config, const Inputs& inputs) const {
    const RunState& state = machine_.State(config.State);
    const run::Units started = config.Started[broken_.OneTimerForAll ? 0 : state.Timer];
    if (started == run::kNever && broken_.UnstartedExpired)
        return true;
    const run::Units elapsed = config.Now - (started == run::kNever ? 0 : started);
    if (state.Limit == run::LimitKind::Variable) {
        const run::Units limit = inputs.Limits[static_cast<std::size_t>(config.State.Number())];
        return broken_.VariableDueAtLimit ? elapsed >= limit : elapsed > limit;
    }
    return broken_.ConstantDueAfterLimit ? elapsed > state.LimitUnits : elapsed >= state.LimitUnits;
}

bool RuledStep::Stays(StateNumber from, int row) const {
    const StateRecord& record = document_.State(from.Number());
    if (record.Targets[row] != from.Number())
        return false;
    if (row == kTimeoutRow)
        return broken_.TimeoutToItselfStays;
    if (row == kElseRow)
        return broken_.ElseToItselfStays;
    return broken_.EventToItselfStays || (record.Actions[row].empty() && !broken_.HoldEnters);
}

} // namespace orvane::test
