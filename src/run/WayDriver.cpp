// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/WayDriver.h"

namespace orvane::run {

WayDriver::WayDriver(const Machine& machine, const Inputs& given, const StateSpace& space)
    : machine_(machine), given_(given), space_(space) {
    Begin();
}

void WayDriver::Begin() {
    clock_.emplace(machine_);
    clock_->Surroundings() = given_;
    outcome_ = Outcome::Quiet;
    hasPower_ = false;
    steps_.clear();
    for (const StateNumber state : StateNumbers()) {
        const bool asks = machine_.State(state).Limit == LimitKind::Variable;
        if (asks && given_.Limits[state.Number()] != kNotGiven)
            steps_.push_back(LimitOf(state, given_.Limits[state.Number()]));
    }
}

void WayDriver::BeginAt(const std::optional<Config>& at, const Inputs& there) {
    hasPower_ = at.has_value();
    clock_.emplace(machine_);
    if (at)
        clock_.emplace(machine_, *at);
    clock_->Surroundings() = there;
    outcome_ = Outcome::Quiet;
    steps_.clear();
}

bool WayDriver::Go(std::span<const TestableWay* const> way, End end) {
    while (!way.empty()) {
        const TestableWay& next = *way.front();
        std::size_t gone = 1;
        if (next.IsPowerOn)
            PowerOn(next.Events);
        else if (next.Wait > 0)
            Wait(next.Events);
        else
            gone = GoScan(way, end);
        const bool anywhere = gone == way.size() && end == End::Anywhere;
        if (!IsIdle(outcome_) || (!anywhere && Place() != way[gone - 1]->To))
            return false;
        way = way.subspan(gone);
    }
    return true;
}

bool WayDriver::Try(std::uint64_t events) {
    const bool rests = clock_->Surroundings().Events == 0 || RestsWithout();
    Clock tried = *clock_;
    tried.Surroundings().Events = rests ? 0 : events;
    const Outcome outcome = rests ? tried.Pulse(events) : tried.Scan(1);
    if (!IsIdle(outcome) || !space_.Find(tried.Where()))
        return false;
    if (rests && clock_->Surroundings().Events != 0)
        Switch(0);
    if (rests)
        Pulse(events);
    else
        ScanOnce(events);
    return true;
}

std::optional<std::uint32_t> WayDriver::Place() const {
    if (!hasPower_)
        return StateSpace::kPowerOff;
    return IsIdle(outcome_) ? space_.Find(clock_->Where()) : std::nullopt;
}

void WayDriver::PowerOn(std::uint64_t events) {
    if (events != clock_->Surroundings().Events)
        steps_.push_back(SwitchTo(events));
    steps_.push_back({});
    clock_->Surroundings().Events = events;
    outcome_ = clock_->PowerOn();
    hasPower_ = true;
}

void WayDriver::Switch(std::uint64_t events) {
    steps_.push_back(SwitchTo(events));
    clock_->Surroundings().Events = events;
    outcome_ = clock_->Settle();
}

void WayDriver::Pulse(std::uint64_t events) {
    steps_.push_back(PulseOf(events));
    outcome_ = clock_->Pulse(events);
}

void WayDriver::ScanOnce(std::uint64_t events) {
    if (clock_->Surroundings().Events != events) {
        steps_.push_back(SwitchTo(events));
        steps_.back().More = true;
    }
    steps_.push_back({1, RunAct::Scan});
    clock_->Surroundings().Events = events;
    outcome_ = clock_->Scan(1);
}

// The machine rests with these events.
void WayDriver::Wait(std::uint64_t events) {
    if (clock_->Surroundings().Events != events)
        Switch(events);
    const Units units = space_.RestFrom(clock_->Where()).value_or(1);
    steps_.push_back(WaitFor(units));
    outcome_ = clock_->Advance(units);
}

// How many of the ways one step goes.
std::size_t WayDriver::GoScan(std::span<const TestableWay* const> way, End end) {
    const std::uint64_t events = way.front()->Events;
    const bool staysOn = way.size() > 1 && way[1]->Wait > 0 && way[1]->Events == events;
    if (staysOn || events == 0) {
        Clock held = *clock_;
        held.Surroundings().Events = events;
        const Outcome outcome = held.Settle();
        const std::size_t gone = ComesAlong(held, outcome, way, end);
        if (gone > 0 && clock_->Surroundings().Events != events) {
            Switch(events);
            return gone;
        }
    }
    if (events != 0 && clock_->Surroundings().Events != 0 && RestsWithout())
        Switch(0);
    if (events != 0 && clock_->Surroundings().Events == 0) {
        Clock pulsed = *clock_;
        const Outcome outcome = pulsed.Pulse(events);
        if (const std::size_t gone = ComesAlong(pulsed, outcome, way, end); gone > 0) {
            Pulse(events);
            return gone;
        }
    }
    ScanOnce(events);
    return 1;
}

// A machine that settled without events behind the first scan went the ways that need none, too. The last way
// may end anywhere.
std::size_t WayDriver::ComesAlong(const Clock& clock, Outcome outcome,
                                  std::span<const TestableWay* const> way, End end) const {
    if (!IsIdle(outcome))
        return 0;
    const std::optional<std::uint32_t> place = space_.Find(clock.Where());
    for (std::size_t gone = 1; gone <= way.size(); ++gone) {
        if (place == way[gone - 1]->To)
            return gone;
        if (gone < way.size() && way[gone]->Cost() > 0)
            break;
    }
    return way.size() == 1 && end == End::Anywhere ? 1 : 0;
}

bool WayDriver::RestsWithout() const {
    Clock without = *clock_;
    without.Surroundings().Events = 0;
    return IsIdle(without.Settle()) && space_.Find(without.Where()) == space_.Find(clock_->Where());
}

} // namespace orvane::run
