// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/History.h"

#include <algorithm>

namespace orvane::run {

namespace {

// Work between two copies. A step of a machine takes some 100 ns, so that one step back stays far below a
// tenth of a millisecond; and the copies of a long run take no more room than its steps.
constexpr std::size_t kWorkBetweenCopies = 256;

std::size_t IndexOf(int row, int state) { return std::size_t(state) * kTableRows + row; }

} // namespace

History::History(const Machine& machine)
    : machine_(machine), clock_(machine), counts_((kStateCount + 1) * kTableRows) {
    copies_.push_back({0, now_, *clock_});
}

bool History::CanDo(const RunStep& step) const {
    if (!IsIdle(now_.End) || at_.Steps >= kLongestRun || shown_ >= kLongestRun)
        return false;
    const bool withoutPower = step.What == RunAct::Inputs || step.What == RunAct::Limit;
    return withoutPower || now_.HasPower != (step.What == RunAct::PowerOn);
}

bool History::Do(const RunStep& step) {
    if (!CanDo(step))
        return false;
    CutBehind();
    steps_.push_back(step);
    Apply(step);
    AddToLog(step);
    at_ = {steps_.size(), 0};
    endTime_ = clock_->Where().Now;
    KeepCopy();
    return true;
}

void History::Lengthen(Units units) {
    RunStep& wait = steps_.back();
    wait.Amount += std::uint64_t(units);
    while (copies_.back().Steps == steps_.size())
        copies_.pop_back();
    Apply(WaitFor(units));
    AddToLog(wait);
    endTime_ = clock_->Where().Now;
    KeepCopy();
}

void History::CutBehind() {
    while (copies_.back().Steps > at_.Steps)
        copies_.pop_back();
    log_.resize(shown_);
    steps_.resize(at_.Steps + (at_.Into > 0 ? 1 : 0));
    if (at_.Into > 0)
        steps_.back().Amount = std::uint64_t(at_.Into);
}

void History::Apply(const RunStep& step) {
    now_.End = Move(step);
    now_.HasPower = now_.HasPower || step.What == RunAct::PowerOn;
}

// Without power, or when more follows in the same moment, an input changes and nothing happens.
Outcome History::Move(const RunStep& step) {
    const bool settles = now_.HasPower && !step.More;
    switch (step.What) {
    case RunAct::PowerOn:
        return clock_->PowerOn();
    case RunAct::Inputs:
        clock_->Surroundings().Events = step.Amount;
        return settles ? clock_->Settle() : Outcome::Quiet;
    case RunAct::Pulse:
        return clock_->Pulse(step.Amount);
    case RunAct::Limit:
        clock_->Surroundings().Limits[step.State] = step.Time();
        return settles ? clock_->Settle() : Outcome::Quiet;
    case RunAct::Wait:
        return clock_->Advance(step.Time());
    case RunAct::Scan:
        break;
    }
    return clock_->Scan(int(step.Amount));
}

void History::AddToLog(const RunStep& step) {
    const std::uint32_t number = std::uint32_t(steps_.size() - 1);
    if (step.What == RunAct::PowerOn)
        log_.push_back({.Step = number, .To = std::uint8_t(machine_.Start().Number())});
    for (const Happening& happening : clock_->TakeLog()) {
        const Taken& taken = happening.What;
        log_.push_back({happening.When, number, std::uint8_t(taken.From.Number()),
                        std::uint8_t(taken.Row.Number()), std::uint8_t(taken.To.Number()), taken.Holds});
    }
    Show(log_.size());
}

void History::KeepCopy() {
    const Copy& last = copies_.back();
    const std::size_t logged = log_.size() - EntriesUpTo({last.Steps, 0});
    if (steps_.size() - last.Steps + logged >= kWorkBetweenCopies)
        copies_.push_back({steps_.size(), now_, *clock_});
}

void History::GoTo(Moment moment) {
    const bool isThere = moment.Into == 0
                             ? moment.Steps <= steps_.size()
                             : moment.Steps < steps_.size() && steps_[moment.Steps].What == RunAct::Wait &&
                                   moment.Into <= steps_[moment.Steps].Time();
    if (!isThere)
        return;
    StartFrom(moment);
    for (; at_.Steps < moment.Steps; ++at_.Steps) {
        Apply(steps_[at_.Steps]);
        clock_->TakeLog();
    }
    if (moment.Into > 0) {
        Apply(WaitFor(moment.Into));
        clock_->TakeLog();
    }
    at_ = moment;
    Show(EntriesUpTo(moment));
}

// The machine as it was at or before the moment, between two steps.
void History::StartFrom(Moment moment) {
    const auto behind =
        std::upper_bound(copies_.begin(), copies_.end(), moment.Steps,
                         [](std::size_t steps, const Copy& copy) { return steps < copy.Steps; });
    const Copy& copy = *std::prev(behind);
    if (at_.Into == 0 && at_.Steps <= moment.Steps && at_.Steps >= copy.Steps)
        return;
    clock_.emplace(copy.Machine);
    now_ = copy.Now;
    at_ = {copy.Steps, 0};
}

void History::Back() {
    if (at_.Into > 0)
        GoTo({at_.Steps, 0});
    else if (at_.Steps > 0)
        GoTo({at_.Steps - 1, 0});
}

void History::Forward() { GoTo({at_.Steps + 1, 0}); }

void History::GoToTime(Units time) {
    const auto later =
        std::upper_bound(copies_.begin(), copies_.end(), time,
                         [](Units when, const Copy& copy) { return when < copy.Machine.Where().Now; });
    const Copy& copy = later == copies_.begin() ? copies_.front() : *std::prev(later);
    Moment moment{copy.Steps, 0};
    Units now = copy.Machine.Where().Now;
    for (; moment.Steps < steps_.size(); ++moment.Steps) {
        const RunStep& step = steps_[moment.Steps];
        if (step.What != RunAct::Wait)
            continue;
        if (now + step.Time() > time) {
            moment.Into = std::max<Units>(time - now, 0);
            break;
        }
        now += step.Time();
    }
    GoTo(moment);
}

std::uint32_t History::Count(Cell cell) const {
    return counts_[IndexOf(cell.Row.Number(), cell.State.Number())];
}

void History::Show(std::size_t entries) {
    while (shown_ < entries)
        Tally(log_[shown_++], true);
    while (shown_ > entries)
        Tally(log_[--shown_], false);
}

void History::Tally(const LogEntry& entry, bool add) {
    const auto change = [&](std::size_t index) { counts_[index] += add ? 1U : ~0U; };
    if (!entry.IsPowerOn())
        change(IndexOf(entry.Row, entry.From));
    if (!entry.Holds)
        change(IndexOf(kHeadRow, entry.To));
}

std::size_t History::EntriesUpTo(Moment moment) const {
    const Units now = clock_->Where().Now;
    const auto end = std::partition_point(log_.begin(), log_.end(), [&](const LogEntry& entry) {
        return entry.Step < moment.Steps ||
               (moment.Into > 0 && entry.Step == moment.Steps && entry.When <= now);
    });
    return std::size_t(end - log_.begin());
}

} // namespace orvane::run
