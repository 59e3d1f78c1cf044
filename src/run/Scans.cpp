// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Scans.h"

#include "run/RunStep.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace orvane::run {

namespace {

constexpr Units kBeyondAllTimes = Units{1} << 60;

} // namespace

std::vector<FoundScan> Scans::From(const RunPlace& place) {
    Partial partial;
    partial.Done.To = place;
    Go(std::move(partial), false);
    return std::exchange(found_, {});
}

std::vector<FoundScan> Scans::PowerOns(Units now) {
    Go(PoweredOn(now), false);
    return std::exchange(found_, {});
}

std::vector<FoundScan> Scans::SettledPowerOns(Units now) {
    Go(PoweredOn(now), true);
    return std::exchange(found_, {});
}

Scans::Partial Scans::PoweredOn(Units now) const {
    Partial partial;
    RunPlace& place = partial.Done.To;
    const Units unstarted = machine_.Read().UnstartedExpired ? kNever : now;
    place.At = {machine_.Start(), now, std::vector<Units>(machine_.Timers().size(), unstarted)};
    for (std::size_t timer = 0; timer < machine_.Timers().size(); ++timer)
        place.Unstarted.set(timer);
    const RunState& start = machine_.State(machine_.Start());
    if (start.StartsTimer) {
        place.Unstarted.reset(start.Timer);
        place.At.Started[start.Timer] = now;
    }
    partial.Looked = true; // power-on scans until the machine yields, and need not look at all
    return partial;
}

void Scans::Go(Partial first, bool settles) {
    open_.push_back(std::move(first));
    while (!open_.empty()) {
        if (found_.size() + open_.size() > most_ || stop_.stop_requested()) {
            leftOut_ = true;
            return open_.clear();
        }
        Partial partial = std::move(open_.back());
        open_.pop_back();
        switch (GoOn(partial, settles)) {
        case Then::Looks:
            Look(std::move(partial));
            break;
        case Then::Ends:
            found_.push_back(std::move(partial.Done));
            break;
        case Then::GoesRound:
            break;
        }
    }
}

Scans::Then Scans::GoOn(Partial& partial, bool settles) {
    const StateNumber state = partial.Done.To.At.State;
    if (partial.Looked && machine_.Yields(state))
        return settles ? BeginAnotherScan(partial) : Then::Ends;
    if (partial.Looked && partial.Met.test(state.Number())) {
        partial.Done.Spins = true;
        return Then::Ends;
    }
    partial.Met.set(state.Number());
    return Then::Looks;
}

// The machine has come to rest when a scan ends where it began.
Scans::Then Scans::BeginAnotherScan(Partial& partial) {
    const Config& now = partial.Done.To.At;
    if (!partial.Passed.empty() && partial.Passed.back() == now)
        return Then::Ends;
    if (std::find(partial.Passed.begin(), partial.Passed.end(), now) != partial.Passed.end())
        return Then::GoesRound;
    partial.Passed.push_back(now);
    partial.Met.reset();
    partial.Met.set(now.State.Number());
    return Then::Looks;
}

void Scans::Look(Partial&& partial) {
    const std::uint64_t tested = machine_.State(partial.Done.To.At.State).Events;
    for (std::uint64_t left = tested & ~partial.Absent; left != 0; left &= left - 1) {
        const std::uint64_t event = LowestBit(left);
        if ((partial.Done.Events & event) != 0)
            return Step(std::move(partial), false);
        Partial with = partial;
        with.Done.Events |= event;
        Step(std::move(with), false);
        partial.Absent |= event;
    }
    LookWithoutEvents(std::move(partial));
}

void Scans::LookWithoutEvents(Partial&& partial) {
    const StateNumber state = partial.Done.To.At.State;
    const RunState& looking = machine_.State(state);
    if (looking.Limit != LimitKind::None && partial.Done.To.Unstarted.test(looking.Timer))
        looksAtUnstarted_.set(state.Number());
    const bool open = looking.Limit == LimitKind::Variable && given_.Limits[state.Number()] == kNotGiven;
    const bool canBeDue = open && machine_.Elapsed(partial.Done.To.At, state) > 0;
    if (canBeDue && !partial.NotDue.test(state.Number())) {
        Partial due = partial;
        due.Due.set(state.Number());
        Step(std::move(due), true);
    }
    if (canBeDue && partial.Due.test(state.Number()))
        return;
    if (canBeDue)
        partial.NotDue.set(state.Number());
    Step(std::move(partial), false);
}

// The machine itself looks around, with what was decided.
void Scans::Step(Partial&& partial, bool due) {
    RunPlace& place = partial.Done.To;
    const std::size_t state = place.At.State.Number();
    inputs_.Events = partial.Done.Events;
    const Units given = given_.Limits[state];
    inputs_.Limits[state] = given != kNotGiven ? given : due ? 0 : kBeyondAllTimes;
    const std::size_t taken = partial.Done.Log.size();
    const std::vector<Units> before = place.At.Started;
    machine_.Look(place.At, inputs_, partial.Done.Log);
    if (place.At.Started != before)
        partial.Met.reset();
    for (std::size_t i = taken; i < partial.Done.Log.size(); ++i) {
        const RunState& entered = machine_.State(partial.Done.Log[i].To);
        if (!partial.Done.Log[i].Holds && entered.StartsTimer)
            place.Unstarted.reset(entered.Timer);
    }
    partial.Looked = true;
    open_.push_back(std::move(partial));
}

} // namespace orvane::run
