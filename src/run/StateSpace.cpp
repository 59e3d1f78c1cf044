// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/StateSpace.h"

#include <algorithm>
#include <bit>

namespace orvane::run {

namespace {

constexpr std::uint32_t kUnstartedMark = 0x80000000; // in a timer's bytes; no limit reaches it

std::size_t Index(Cell cell) { return cell.State.Number() * kTableRows + cell.Row.Number(); }

void AppendNumber(std::string& key, std::uint32_t number) {
    for (int byte = 0; byte < 4; ++byte)
        key += std::bit_cast<char>(static_cast<unsigned char>(number >> 8 * byte & 0xFF));
}

std::uint32_t NumberAt(const std::string& key, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t byte = 0; byte < 4; ++byte)
        number |= std::uint32_t{std::bit_cast<unsigned char>(key[at + byte])} << 8 * byte;
    return number;
}

} // namespace

StateSpace::StateSpace(const Machine& machine, const Inputs& given, const SpaceLimits& limits)
    : machine_(machine),
      horizon_(machine, given),
      scans_(machine, given, limits.Ways, limits.Stop),
      limits_(limits) {
    keys_.push_back(&places_.emplace("", kPowerOff).first->first);
    states_.emplace_back();
    firstWays_.push_back(0);
    AddWays(scans_.SettledPowerOns(Now()), false);
    AddWays(scans_.PowerOns(Now()), true);
    for (std::uint32_t place = 1; place < states_.size() && complete_; ++place) {
        firstWays_.push_back(ways_.size());
        AddWays(scans_.From(PlaceOf(place)), false);
        AddWaits(place);
    }
    firstWays_.resize(states_.size(), ways_.size());
}

std::span<const SpaceWay> StateSpace::From(std::uint32_t place) const {
    const std::size_t end = place + 1 < firstWays_.size() ? firstWays_[place + 1] : ways_.size();
    return {ways_.data() + firstWays_[place], end - firstWays_[place]};
}

bool StateSpace::Takes(Cell cell) const { return takes_.test(Index(cell)); }

std::string StateSpace::Key(const RunPlace& place) const {
    std::string key(1, std::bit_cast<char>(static_cast<unsigned char>(place.At.State.Number())));
    for (const TimerReach& reach : horizon_.Of(place.At.State)) {
        const Units started = place.At.Started[reach.Timer];
        const Units elapsed = started == kNever ? reach.Limits.back() : place.At.Now - started;
        const Units shown = horizon_.Representative(reach, elapsed);
        AppendNumber(key, static_cast<std::uint32_t>(shown) |
                              (place.Unstarted.test(reach.Timer) ? kUnstartedMark : 0));
    }
    return key;
}

// Timers that do not matter are as if they had just been started.
RunPlace StateSpace::PlaceOf(std::uint32_t number) const {
    RunPlace place;
    const Units now = Now();
    place.At = {states_[number], now, std::vector<Units>(machine_.Timers().size(), now)};
    std::size_t at = 1;
    for (const TimerReach& reach : horizon_.Of(states_[number])) {
        const std::uint32_t bytes = NumberAt(*keys_[number], at);
        at += 4;
        const bool unstarted = (bytes & kUnstartedMark) != 0;
        place.Unstarted.set(reach.Timer, unstarted);
        const bool expired = unstarted && machine_.Read().UnstartedExpired;
        place.At.Started[reach.Timer] = expired ? kNever : now - (bytes & ~kUnstartedMark);
    }
    return place;
}

std::uint32_t StateSpace::Add(const RunPlace& place) {
    const auto [found, isNew] = places_.try_emplace(Key(place), static_cast<std::uint32_t>(states_.size()));
    if (isNew) {
        keys_.push_back(&found->first);
        states_.push_back(place.At.State);
        complete_ = complete_ && states_.size() <= limits_.Places;
    }
    return found->second;
}

void StateSpace::AddWays(const std::vector<FoundScan>& scans, bool raw) {
    for (const FoundScan& scan : scans) {
        if (scan.Spins) {
            AddEndless(scan);
            continue;
        }
        SpaceWay way;
        way.To = Add(scan.To);
        way.Events = scan.Events;
        way.Raw = raw;
        way.FirstTaken = static_cast<std::uint32_t>(taken_.size());
        way.TakenCount = static_cast<std::uint16_t>(scan.Log.size());
        for (const Taken& taken : scan.Log)
            taken_.push_back({taken.Row, taken.From});
        See(scan);
        ways_.push_back(way);
    }
    complete_ = complete_ && ways_.size() <= limits_.Ways && !scans_.LeftOut();
}

void StateSpace::See(const FoundScan& scan) {
    reached_.set(scan.To.At.State.Number());
    for (const Taken& taken : scan.Log) {
        reached_.set(taken.From.Number());
        takes_.set(Index({taken.Row, taken.From}));
    }
}

// Of the inputs with which the machine rests those that let the most time pass, then the fewest.
void StateSpace::AddWaits(std::uint32_t place) {
    const RunPlace rests = PlaceOf(place);
    const SpaceWay* best = nullptr;
    Units longest = 0;
    for (const SpaceWay& way : std::span(ways_).subspan(firstWays_[place])) {
        if (way.To != place)
            continue;
        const Units wait = LongestRest(rests, way).value_or(0);
        const bool fewer = best != nullptr && std::popcount(way.Events) < std::popcount(best->Events);
        if (wait > longest || (wait == longest && wait > 0 && fewer)) {
            best = &way;
            longest = wait;
        }
    }
    if (best != nullptr)
        AddWait(rests, longest, best->Events);
}

// Until something that can be asked about is different. What each scan starts anew never comes further than
// one unit, and none when that makes no difference.
std::optional<Units> StateSpace::LongestRest(const RunPlace& place, const SpaceWay& stays) const {
    std::optional<Units> longest;
    for (const TimerReach& reach : horizon_.Of(place.At.State)) {
        const Units started = place.At.Started[reach.Timer];
        if (started == kNever)
            continue;
        const std::optional<Units> next = horizon_.Next(reach, place.At.Now - started);
        if (!next)
            continue;
        const Units wait = *next - (place.At.Now - started);
        const std::span<const Cell> taken = TakenOn(stays);
        const bool anew = std::any_of(taken.begin(), taken.end(), [&](Cell cell) {
            const RunState& from = machine_.State(cell.State);
            const StateNumber to = from.Targets[IndexIn(TableRows(), cell.Row)];
            const bool holds = (from.Holds >> cell.Row.Number() & 1U) != 0;
            const RunState& entered = machine_.State(to);
            return !holds && entered.StartsTimer && entered.Timer == reach.Timer;
        });
        if (!anew || wait == 1)
            longest = std::min(longest.value_or(wait), wait);
    }
    return longest;
}

void StateSpace::AddWait(const RunPlace& rests, Units wait, std::uint64_t events) {
    RunPlace later = rests;
    for (const TimerReach& reach : horizon_.Of(rests.At.State)) {
        if (later.At.Started[reach.Timer] != kNever)
            later.At.Started[reach.Timer] -= wait;
    }
    SpaceWay way;
    way.To = Add(later);
    way.Wait = wait;
    way.Events = events;
    ways_.push_back(way);
}

// The log ends with a round: from where the machine came to a state again.
void StateSpace::AddEndless(const FoundScan& scan) {
    EndlessScan endless;
    const StateNumber back = scan.To.At.State;
    for (auto taken = scan.Log.rbegin(); taken != scan.Log.rend(); ++taken) {
        endless.Ring.insert(endless.Ring.begin(), taken->From);
        endless.Row = taken->Row;
        if (taken->From == back)
            break;
    }
    // One that the same states make with other rows is the same.
    std::vector<StateNumber> states = endless.Ring;
    std::sort(states.begin(), states.end());
    const bool known = std::any_of(endless_.begin(), endless_.end(), [&](const EndlessScan& other) {
        std::vector<StateNumber> others = other.Ring;
        std::sort(others.begin(), others.end());
        return others == states && (states.size() > 1 || other.Row == endless.Row);
    });
    See(scan);
    if (!known)
        endless_.push_back(std::move(endless));
}

std::optional<Units> StateSpace::RestFrom(const Config& config) const {
    std::optional<Units> rest;
    for (const TimerReach& reach : horizon_.Of(config.State)) {
        const Units started = config.Started[reach.Timer];
        if (started == kNever && machine_.Read().UnstartedExpired)
            continue;
        const Units elapsed = config.Now - std::max<Units>(started, 0);
        if (const std::optional<Units> next = horizon_.Next(reach, elapsed))
            rest = std::min(rest.value_or(*next - elapsed), *next - elapsed);
    }
    return rest;
}

std::optional<std::uint32_t> StateSpace::Find(const Config& config) const {
    RunPlace place{config, {}};
    for (std::size_t timer = 0; timer < config.Started.size(); ++timer) {
        if (config.Started[timer] != kNever)
            continue;
        place.Unstarted.set(timer);
        if (!machine_.Read().UnstartedExpired)
            place.At.Started[timer] = 0;
    }
    return Find(place);
}

std::optional<std::uint32_t> StateSpace::Find(const RunPlace& place) const {
    const auto found = places_.find(Key(place));
    return found == places_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace orvane::run
