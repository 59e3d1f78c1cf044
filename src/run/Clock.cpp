// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Clock.h"

#include <algorithm>
#include <bitset>
#include <utility>

namespace orvane::run {

namespace {

bool Moved(const std::vector<Taken>& scan) {
    return std::any_of(scan.begin(), scan.end(), [](const Taken& taken) { return !taken.Holds; });
}

} // namespace

Clock::Clock(const Machine& machine) : machine_(machine) {}

Clock::Clock(const Machine& machine, Config at) : machine_(machine), config_(std::move(at)) {}

Outcome Clock::PowerOn() {
    scan_.clear();
    last_.clear();
    before_ = {};
    const ScanEnd end = machine_.PowerOn(config_, inputs_, scan_);
    Record(true);
    if (end != ScanEnd::Yields)
        return end == ScanEnd::Spins ? Outcome::Spins : Outcome::LimitMissing;
    return Settle();
}

Outcome Clock::Settle() {
    last_.clear();
    return SettleOn();
}

Outcome Clock::Pulse(std::uint64_t events) {
    last_.clear();
    std::swap(inputs_.Events, events);
    const std::optional<Outcome> broken = ScanOnce();
    std::swap(inputs_.Events, events);
    if (broken)
        return *broken;
    Record(true);
    return Settle();
}

Outcome Clock::Scan(int count) {
    for (int i = 0; i < count; ++i) {
        if (const std::optional<Outcome> broken = ScanOnce())
            return *broken;
        Record(true);
        if (log_.size() > kMostHappenings)
            return Outcome::Endless;
    }
    return config_ == before_ && Moved(scan_) ? Outcome::Again : Outcome::Quiet;
}

// The machine is idle when a scan ends where it began. At one moment timers only ever change to that moment,
// so when it meets a state again with no timer changed since, it will go round for ever.
Outcome Clock::SettleOn() {
    std::bitset<kStateCount + 1> met;
    while (log_.size() <= kMostHappenings) {
        met.set(config_.State.Number());
        if (const std::optional<Outcome> broken = ScanOnce())
            return *broken;
        Record(false);
        if (config_ == before_)
            return Moved(scan_) ? Outcome::Again : Outcome::Quiet;
        if (config_.Started != before_.Started)
            met.reset();
        else if (met.test(config_.State.Number()))
            return Outcome::Oscillates;
    }
    return Outcome::Endless;
}

std::optional<Outcome> Clock::ScanOnce() {
    before_ = config_;
    std::swap(scan_, last_);
    scan_.clear();
    const ScanEnd end = machine_.Scan(config_, inputs_, scan_);
    WatchForOverrun();
    AddLooks();
    if (end == ScanEnd::Yields)
        return std::nullopt;
    Record(true);
    return end == ScanEnd::Spins ? Outcome::Spins : Outcome::LimitMissing;
}

void Clock::Record(bool repetitionsToo) {
    if (!repetitionsToo && scan_ == last_)
        return;
    for (const Taken& taken : scan_)
        log_.push_back({config_.Now, taken});
}

// A scan looks around in the state in which it begins, and in each that it leaves.
void Clock::AddLooks() {
    if (seen_ == nullptr)
        return;
    seen_->Add(machine_.State(before_.State), before_.State, inputs_.Events);
    for (const Taken& taken : scan_)
        seen_->Add(machine_.State(taken.From), taken.From, inputs_.Events);
}

void Clock::WatchForOverrun() {
    if (config_.Now <= kLongestTime)
        return;
    const auto overran = [&](StateNumber state) {
        const RunState& looking = machine_.State(state);
        const bool looks = looking.Limit != LimitKind::None && (looking.Events & inputs_.Events) == 0;
        return looks && config_.Now - std::max<Units>(before_.Started[looking.Timer], 0) > kLongestTime;
    };
    timerOverran_ = timerOverran_ || overran(before_.State);
    for (const Taken& taken : scan_)
        timerOverran_ = timerOverran_ || overran(taken.From);
}

Outcome Clock::Advance(Units units) {
    const Units end = config_.Now + units;
    Outcome outcome = SettleOn();
    while (IsIdle(outcome) && config_.Now < end) {
        if (outcome == Outcome::Again) {
            outcome = GoOnAgain(end);
        } else {
            config_.Now = std::min(NextTimeout().value_or(end), end);
            outcome = SettleOn();
        }
    }
    return outcome;
}

// What enters itself at every scan may start timers again and again, and they never come far. A unit of time
// in which each scan did that and nothing else has nothing to tell, and the next one does the same with the
// same timers one unit later, until another timer comes due.
Outcome Clock::GoOnAgain(Units end) {
    const std::size_t told = log_.size();
    ++config_.Now;
    const Outcome outcome = SettleOn();
    if (outcome != Outcome::Again || log_.size() != told)
        return outcome;
    const Units next = std::min(NextChange().value_or(end), end);
    if (next - 1 > config_.Now)
        SkipTo(next - 1);
    return outcome;
}

void Clock::SkipTo(Units now) {
    for (Units& started : config_.Started)
        started = started == config_.Now ? now : started;
    config_.Now = now;
}

// The earliest timeout of any state, by the timers that are not started again and again.
std::optional<Units> Clock::NextChange() const {
    std::optional<Units> next;
    for (const StateNumber state : StateNumbers()) {
        const RunState& looking = machine_.State(state);
        if (looking.Limit == LimitKind::None || config_.Started[looking.Timer] == config_.Now)
            continue;
        const std::optional<Units> due = DueTime(state);
        if (due && *due > config_.Now)
            next = std::min(next.value_or(*due), *due);
    }
    return next;
}

std::optional<Units> Clock::DueTime(StateNumber state) const {
    const Units due = machine_.DueAfter(inputs_, state);
    if (due == kNotGiven)
        return std::nullopt;
    const Units left = due - std::min(machine_.Elapsed(config_, state), due);
    return config_.Now + left;
}

std::optional<Units> Clock::NextTimeout() const {
    const RunState& state = machine_.State(config_.State);
    const bool taken = (inputs_.Events & state.Events) != 0;
    if (taken || state.Limit == LimitKind::None)
        return std::nullopt;
    return DueTime(config_.State);
}

std::vector<Happening> Clock::TakeLog() { return std::exchange(log_, {}); }

} // namespace orvane::run
