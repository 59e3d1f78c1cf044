// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Machine.h"

#include "codegen/Labels.h"
#include "codegen/Reachability.h"
#include "core/TimingMode.h"
#include "run/LimitText.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <limits>
#include <utility>

namespace orvane::run {

namespace {

constexpr std::uint64_t Bit(RowNumber row) { return std::uint64_t{1} << row.Number(); }

LimitKind KindOfLimit(const StateRecord& record) {
    if (record.Targets[kTimeoutRow] == kNoState)
        return LimitKind::None;
    if (HasConstantLimit(record.TimingMode) && !Trim(record.TimeConst).empty())
        return LimitKind::Constant;
    if (HasVariableLimit(record.TimingMode) && !Trim(record.TimingVar).empty())
        return LimitKind::Variable;
    return LimitKind::None;
}

Units ConstantLimit(const std::string& text, const Constants& constants) {
    if (const std::optional<Units> number = LimitNumber(text))
        return *number;
    const auto given = constants.find(Trim(text));
    return given == constants.end() ? kNotGiven : given->second;
}

} // namespace

std::array<Units, kStateCount + 1> Inputs::NoLimits() {
    std::array<Units, kStateCount + 1> limits;
    limits.fill(kNotGiven);
    return limits;
}

void Inputs::Set(RowNumber row, bool there) { Events = there ? Events | Bit(row) : Events & ~Bit(row); }

Machine::Machine(const FsmDocument& document, const Constants& constants, Readings readings)
    : states_(kStateCount + 1), polytask_(document.View.Polytask), readings_(readings) {
    const Reachability reachability = ComputeReachability(document);
    for (const StateNumber number : StateNumbers()) {
        if (reachability.Reached(number))
            AddState(document, number, constants);
    }
}

void Machine::AddState(const FsmDocument& document, StateNumber number, const Constants& constants) {
    if (start_ == StateNumber())
        start_ = number;
    const StateRecord& record = document.State(number);
    RunState& state = states_[number.Number()];
    state.HasBlock = true;
    for (const RowNumber row : CellRows()) {
        const StateNumber target = record.Targets[row];
        state.Targets[IndexIn(TableRows(), row)] = static_cast<std::uint8_t>(target.Number());
        if (row < kFirstEventRow || target == kNoState || document.Event(row).Code.empty())
            continue;
        state.Events |= Bit(row);
        if (target == number && record.Actions[row].empty())
            state.Holds |= Bit(row);
    }
    state.Limit = KindOfLimit(record);
    state.StartsTimer = StartsTiming(record.TimingMode);
    if (state.StartsTimer || state.Limit != LimitKind::None)
        state.Timer = TimerIndex(TimerLabel(document, record.TimerId));
    if (state.Limit == LimitKind::Constant)
        state.LimitUnits = ConstantLimit(record.TimeConst, constants);
    const StateNumber elseTarget = record.Targets[kElseRow];
    state.LeavesByElse = elseTarget != kNoState && elseTarget != number;
}

std::uint8_t Machine::TimerIndex(const std::string& label) {
    const auto found = std::find(timers_.begin(), timers_.end(), label);
    const auto index = found - timers_.begin();
    if (found == timers_.end())
        timers_.push_back(label);
    return static_cast<std::uint8_t>(index); // one a state at most
}

Units Machine::Elapsed(const Config& config, StateNumber state) const {
    const Units started = config.Started[State(state).Timer];
    if (started != kNever)
        return config.Now - started;
    return readings_.UnstartedExpired ? std::numeric_limits<Units>::max() : config.Now;
}

Units Machine::DueAfter(const Inputs& inputs, StateNumber number) const {
    const RunState& state = State(number);
    const bool variable = state.Limit == LimitKind::Variable;
    const Units limit = variable ? inputs.Limits[number.Number()] : state.LimitUnits;
    if (limit == kNotGiven)
        return kNotGiven;
    return limit + (variable || readings_.AfterLimit ? 1 : 0);
}

std::optional<RowNumber> Machine::RowTaken(const Config& config, const Inputs& inputs) const {
    const RunState& state = State(config.State);
    if (const std::uint64_t present = inputs.Events & state.Events)
        return RowNumber(std::countr_zero(present));
    if (state.Limit != LimitKind::None) {
        const Units due = DueAfter(inputs, config.State);
        if (due == kNotGiven)
            return std::nullopt;
        if (Elapsed(config, config.State) >= due)
            return RowNumber(kTimeoutRow);
    }
    return RowNumber(state.Targets[kElseRow] == kNoState ? kHeadRow : kElseRow);
}

bool Machine::Enter(Config& config, StateNumber number) const {
    config.State = number;
    const RunState& state = State(number);
    if (!state.StartsTimer)
        return false;
    return std::exchange(config.Started[state.Timer], config.Now) != config.Now;
}

Machine::Looked Machine::LookOnce(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    const std::optional<RowNumber> row = RowTaken(config, inputs);
    if (!row)
        return {.LimitKnown = false};
    if (*row == kHeadRow)
        return {};
    const StateNumber from = config.State;
    const RunState& state = State(from);
    const bool holds = (state.Holds & Bit(*row)) != 0;
    const StateNumber target = state.Targets[IndexIn(TableRows(), *row)];
    log.push_back({from, *row, target, holds});
    return {.TimerChanged = !holds && Enter(config, target)};
}

bool Machine::Look(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    return LookOnce(config, inputs, log).LimitKnown;
}

// Within one scan a timer only ever changes to the present moment. So the machine is where it was before as
// soon as it meets a state again with no timer changed since.
ScanEnd Machine::LookUntilYield(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    std::bitset<kStateCount + 1> met;
    while (!Yields(config.State)) {
        const int state = config.State.Number();
        if (met.test(state))
            return ScanEnd::Spins;
        met.set(state);
        const Looked looked = LookOnce(config, inputs, log);
        if (!looked.LimitKnown)
            return ScanEnd::LimitMissing;
        if (looked.TimerChanged)
            met.reset();
    }
    return ScanEnd::Yields;
}

ScanEnd Machine::PowerOn(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    config = {start_, 0, std::vector<Units>(timers_.size(), kNever)};
    Enter(config, start_);
    return LookUntilYield(config, inputs, log);
}

ScanEnd Machine::Scan(Config& config, const Inputs& inputs, std::vector<Taken>& log) const {
    if (!LookOnce(config, inputs, log).LimitKnown)
        return ScanEnd::LimitMissing;
    return LookUntilYield(config, inputs, log);
}

} // namespace orvane::run
