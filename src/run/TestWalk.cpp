// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestWalk.h"

#include <algorithm>
#include <utility>

namespace orvane::run {

namespace {

// More than inputs that are there: something that a machine without power cannot do.
bool NeedsPower(const PlannedStep& step) {
    return step.Written->Wait || step.Has(Doing::Pulse) || step.Has(Doing::Timeout) || step.Has(Doing::Scan);
}

std::uint64_t Bit(int row) { return std::uint64_t{1} << row; }

} // namespace

TestWalk::TestWalk(const Machine& machine, const TestPlan& plan)
    : plan_(plan), clock_(machine), signals_(plan.Signals.size()) {}

std::optional<StepResult> TestWalk::PowerOnBefore(const PlannedStep& step) {
    if (hasPower_ || !NeedsPower(step))
        return std::nullopt;
    return PowerOn();
}

std::optional<StepResult> TestWalk::Do(const PlannedStep& step) {
    if (!hasPower_) {
        Change(step);
        return step.Written->Expect ? std::optional(PowerOn()) : std::nullopt;
    }
    StepResult result;
    result.From = clock_.Where().State;
    result.End = Move(step, result);
    TakeLog(result);
    return result;
}

StepResult TestWalk::PowerOn() {
    hasPower_ = true;
    clock_.Surroundings().Events = Events();
    StepResult result;
    result.PowerOn = true;
    result.End = clock_.PowerOn();
    if (recorder_ != nullptr)
        recorder_->PowerOn(Events(), signals_);
    TakeLog(result);
    return result;
}

Outcome TestWalk::Move(const PlannedStep& step, StepResult& result) {
    Units wait = step.Wait;
    if (step.Has(Doing::Timeout)) {
        const std::optional<Units> due = clock_.NextTimeout();
        result.NoTimeout = !due;
        wait = due.value_or(clock_.Where().Now) - clock_.Where().Now;
    }
    if (step.Written->Wait || step.Has(Doing::Timeout)) {
        const Outcome waited = clock_.Advance(wait);
        TakeLog(result);
        if (!IsIdle(waited))
            return waited;
    }
    pulsed_ = Change(step);
    if (step.Has(Doing::Pulse))
        return PulseNow(pulsed_, result);
    RecordInputs(Events());
    const auto scan = std::find_if(step.Doings.begin(), step.Doings.end(),
                                   [](const PlannedDoing& doing) { return doing.What == Doing::Scan; });
    return scan != step.Doings.end() ? clock_.Scan(scan->Count) : clock_.Settle();
}

Outcome TestWalk::PulseNow(std::uint64_t events, StepResult& result) {
    if (recorder_ == nullptr)
        return clock_.Pulse(events);
    const std::uint64_t stays = std::exchange(clock_.Surroundings().Events, events);
    const Outcome pulsed = clock_.Scan(1);
    TakeLog(result);
    clock_.Surroundings().Events = stays;
    RecordInputs(stays);
    return IsIdle(pulsed) ? clock_.Settle() : pulsed;
}

void TestWalk::TakeLog(StepResult& result) {
    std::vector<Happening> log = clock_.TakeLog();
    if (recorder_ != nullptr) {
        for (const Happening& happening : log)
            recorder_->Happened(happening);
    }
    if (result.Log.empty())
        result.Log = std::move(log);
    else
        result.Log.insert(result.Log.end(), log.begin(), log.end());
}

void TestWalk::RecordInputs(std::uint64_t events) {
    if (recorder_ != nullptr)
        recorder_->Inputs(clock_.Where().Now, events, signals_);
}

// Afterwards the inputs are as they stay; the events that there are during a pulse are returned.
std::uint64_t TestWalk::Change(const PlannedStep& step) {
    for (const PlannedDoing& doing : step.Doings) {
        if (doing.What == Doing::Limit)
            clock_.Surroundings().Limits[doing.State.Number()] = doing.Limit;
        if (doing.What == Doing::On || doing.What == Doing::Off || doing.What == Doing::Pulse)
            Switch(doing, doing.What != Doing::Off);
    }
    const std::uint64_t pulsed = Events();
    if (step.Has(Doing::Pulse))
        RecordInputs(pulsed);
    for (const PlannedDoing& doing : step.Doings) {
        if (doing.What == Doing::Pulse)
            Switch(doing, false);
    }
    clock_.Surroundings().Events = Events();
    return pulsed;
}

void TestWalk::Switch(const PlannedDoing& doing, bool on) {
    for (const PlannedInput& input : doing.Inputs) {
        if (input.IsSignal)
            signals_[input.Index] = on;
        else
            switched_ = on ? switched_ | Bit(input.Index) : switched_ & ~Bit(input.Index);
    }
}

std::uint64_t TestWalk::Events() const {
    std::uint64_t events = switched_;
    for (const PlannedEvent& event : plan_.Events) {
        std::vector<bool> values;
        for (const PlannedEvent::Term& term : event.Terms) {
            if (term.What == TestOperator::Name) {
                values.push_back(term.Input.IsSignal ? signals_[term.Input.Index]
                                                     : (events & Bit(term.Input.Index)) != 0);
                continue;
            }
            const bool last = values.back();
            if (term.What == TestOperator::Not) {
                values.back() = !last;
                continue;
            }
            values.pop_back();
            values.back() = term.What == TestOperator::And ? values.back() && last : values.back() || last;
        }
        events = values.back() ? events | Bit(event.Row.Number()) : events & ~Bit(event.Row.Number());
    }
    return events;
}

} // namespace orvane::run
