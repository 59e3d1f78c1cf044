// SPDX-License-Identifier: GPL-3.0-or-later
// All that a machine can come to, whatever its inputs are: the places where it can be, and the scans and the
// passing of time that lead from one to the next. Of times that nothing tells apart there is one, so that the
// places are few; see TimerHorizon.h.
//
// Time passes only where the machine rests, because a controller scans far more often than once a unit.
#pragma once

#include "core/Cell.h"
#include "run/Machine.h"
#include "run/Scans.h"
#include "run/TimerHorizon.h"

#include <bitset>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::run {

// A machine with more than that is too large to be known whole.
struct SpaceLimits {
    std::size_t Places = 100'000;
    std::size_t Ways = 2'000'000;
    std::stop_token Stop = {}; // somebody in another thread does not want to know any more: not complete then
};

// A scan, power that comes on, or time that passes.
struct SpaceWay {
    std::uint32_t To = 0;
    std::uint32_t FirstTaken = 0; // of the transitions in it
    std::uint16_t TakenCount = 0;
    bool Raw = false;         // power came on and nothing more, so that the inputs need not stay as they are
    Units Wait = 0;           // so long the machine rests at most; 0 for scans
    std::uint64_t Events = 0; // that are there, as few as it takes
};

// A scan that never ends.
struct EndlessScan {
    std::vector<StateNumber> Ring; // the states that it goes round through
    RowNumber Row;                 // an event that holds one of them, or ELSE
};

class StateSpace {
  public:
    static constexpr std::uint32_t kPowerOff = 0; // the place before all others

    // Explores the machine, which must have a state to start in and outlive this. A variable limit that is
    // not given may be any number at each look; constant limits must be known.
    StateSpace(const Machine& machine, const Inputs& given, const SpaceLimits& limits = {});

    // All was found. Else what is there is true, but not all that is true.
    bool Complete() const { return complete_; }

    // Places have the numbers from 0 to this, in the order in which they are reached first.
    std::size_t Places() const { return states_.size(); }
    StateNumber StateAt(std::uint32_t place) const { return states_[place]; } // none while power is off
    std::span<const SpaceWay> From(std::uint32_t place) const;
    std::span<const Cell> TakenOn(const SpaceWay& way) const {
        return {taken_.data() + way.FirstTaken, way.TakenCount};
    }

    // Also one that is only passed within a scan.
    bool Reaches(StateNumber state) const { return reached_.test(state.Number()); }
    // The transition is taken on some way; events that hold a state among them.
    bool Takes(Cell cell) const;
    bool LooksAtUnstarted(StateNumber state) const { return scans_.LooksAtUnstarted(state); }
    // Each ring once.
    const std::vector<EndlessScan>& EndlessScans() const { return endless_; }

    // Where a running machine is; none when it is nowhere that was found.
    std::optional<std::uint32_t> Find(const Config& config) const;
    std::optional<std::uint32_t> Find(const RunPlace& place) const;

    // How long a machine that is there has to rest until it is at another place; a way of the space only says
    // how long at most. None when it never is.
    std::optional<Units> RestFrom(const Config& config) const;

    // A machine that is there, at a time that stands for all others. Not for the place without power.
    RunPlace PlaceOf(std::uint32_t place) const;

  private:
    // A place is computed as if it were this time: a wait from any limit never comes to 0.
    Units Now() const { return 2 * horizon_.Longest() + 2; }
    std::string Key(const RunPlace& place) const;
    std::uint32_t Add(const RunPlace& place);
    void AddWays(const std::vector<FoundScan>& scans, bool raw);
    void See(const FoundScan& scan);
    void AddWaits(std::uint32_t place);
    void AddWait(const RunPlace& rests, Units wait, std::uint64_t events);
    void AddEndless(const FoundScan& scan);
    std::optional<Units> LongestRest(const RunPlace& place, const SpaceWay& stays) const;

    const Machine& machine_;
    TimerHorizon horizon_;
    Scans scans_;
    SpaceLimits limits_;
    bool complete_ = true;

    // A place is its state and what can be known of the timers that matter in it, as bytes.
    std::unordered_map<std::string, std::uint32_t> places_;
    std::vector<const std::string*> keys_;
    std::vector<StateNumber> states_;
    std::vector<std::size_t> firstWays_; // by place; the ways of the last one end at the end
    std::vector<SpaceWay> ways_;
    std::vector<Cell> taken_;
    std::bitset<kStateCount + 1> reached_;
    std::bitset<(kStateCount + 1) * kTableRows> takes_;
    std::vector<EndlessScan> endless_;
};

} // namespace orvane::run
