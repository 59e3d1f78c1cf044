// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that a machine can do at one moment, whatever the inputs are. An input is only decided on when
// the machine looks at it, so that a scan is found once and not for each of the inputs that make no
// difference.
#pragma once

#include "run/Machine.h"

#include <bitset>
#include <cstdint>
#include <stop_token>
#include <utility>
#include <vector>

namespace orvane::run {

inline constexpr std::size_t kMostTimers = kStateCount; // a state has one at most

// Where a machine is, and which of its timers were never started. Those hold the time since power-on here.
struct RunPlace {
    Config At;
    std::bitset<kMostTimers> Unstarted;
};

struct FoundScan {
    RunPlace To;
    std::uint64_t Events = 0; // that are there, as few as it takes
    std::vector<Taken> Log;
    bool Spins = false; // it never ends
};

class Scans {
  public:
    // A variable limit that is not given is decided on at each look: from 0 on it may be any number. Constant
    // limits must be known.
    // Of one place no more than `most` scans are found: many tests in a row of states that let no time pass
    // have too many. None any more are found once somebody says stop.
    Scans(const Machine& machine, const Inputs& given, std::size_t most, std::stop_token stop = {})
        : machine_(machine), given_(given), most_(most), stop_(std::move(stop)) {}

    // All scans from there.
    std::vector<FoundScan> From(const RunPlace& place);
    // All scans with which power comes on, at that time.
    std::vector<FoundScan> PowerOns(Units now);
    // All ways to come to rest after that, with inputs that stay as they were when power came on.
    std::vector<FoundScan> SettledPowerOns(Units now);

    // Not all were found once.
    bool LeftOut() const { return leftOut_; }

    // A timer that was never started may be looked at in the state.
    bool LooksAtUnstarted(StateNumber state) const { return looksAtUnstarted_.test(state.Number()); }

  private:
    using States = std::bitset<kStateCount + 1>;

    // A scan on its way: what was decided, and what was done.
    struct Partial {
        FoundScan Done;
        std::uint64_t Absent = 0; // events that are known not to be there
        States Due;               // whose limits that were decided on are passed, or not
        States NotDue;
        States Met;
        bool Looked = false;
        std::vector<Config> Passed; // between the scans of one settling
    };

    enum class Then { Looks, Ends, GoesRound };

    Partial PoweredOn(Units now) const;
    void Go(Partial first, bool settles);
    Then GoOn(Partial& partial, bool settles);
    static Then BeginAnotherScan(Partial& partial);
    void Look(Partial&& partial);
    void LookWithoutEvents(Partial&& partial);
    void Step(Partial&& partial, bool due);

    const Machine& machine_;
    const Inputs given_;
    const std::size_t most_;
    const std::stop_token stop_;
    bool leftOut_ = false;
    Inputs inputs_;
    States looksAtUnstarted_;
    std::vector<Partial> open_;
    std::vector<FoundScan> found_;
};

} // namespace orvane::run
