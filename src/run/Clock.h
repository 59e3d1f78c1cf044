// SPDX-License-Identifier: GPL-3.0-or-later
// A machine in time. A controller scans far more often than once a unit of time, so a moment here is as many
// scans as it takes until nothing new happens, and time passes between such moments, from due timeout to due
// timeout. All of it is sequences of scans: nothing happens here that a controller scanned often would not
// do.
#pragma once

#include "run/Coverage.h"
#include "run/Machine.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orvane::run {

enum class Outcome {
    Quiet,        // nothing more happens until time passes or an input changes
    Again,        // every scan does the same once more and ends where it began: a state that enters itself
    Oscillates,   // it goes round through several states, so that where it is depends on the number of scans
    Spins,        // a scan does not end
    LimitMissing, // it stands in a state whose limit nobody gave
    Endless       // more than kMostHappenings since the log was last taken
};

// The machine has come to rest, as far as it ever does.
constexpr bool IsIdle(Outcome outcome) { return outcome == Outcome::Quiet || outcome == Outcome::Again; }

inline constexpr std::size_t kMostHappenings = 1'000'000;

struct Happening {
    Units When = 0;
    Taken What;

    bool operator==(const Happening&) const = default;
};

class Clock {
  public:
    // The machine must have a state to start in, and must outlive the clock.
    explicit Clock(const Machine& machine);
    // A machine that has power and is there.
    Clock(const Machine& machine, Config at);

    // What surrounds the machine. A change shows at the next scan.
    Inputs& Surroundings() { return inputs_; }
    const Inputs& Surroundings() const { return inputs_; }
    const Config& Where() const { return config_; }

    // From now on each look is added to `seen`, which must outlive the clock.
    void Watch(EventsSeen& seen) { seen_ = &seen; }

    // Power comes on at time 0 with the inputs as they are, all timers unstarted, and the machine settles.
    Outcome PowerOn();

    // Scans until the machine is idle, or never will be.
    Outcome Settle();

    // One scan with these events (bit r: row r) in place of those that are there, then Settle() with those.
    Outcome Pulse(std::uint64_t events);

    // As many scans as are said, whatever they do; at least one. Quiet means no more than that they ended.
    Outcome Scan(int count);

    // Lets time pass with the inputs as they are; what is due up to and at the end happens. 0 settles.
    Outcome Advance(Units units);

    // When the timeout of the present state is due if the inputs stay as they are: not before now. None when
    // no time brings it.
    std::optional<Units> NextTimeout() const;

    // All that happened since the last call, in order. What every scan does again stands there once.
    std::vector<Happening> TakeLog();

    // A timer was looked at that had run for longer than a timer can count.
    bool TimerOverran() const { return timerOverran_; }

  private:
    Outcome SettleOn();
    Outcome GoOnAgain(Units end);
    std::optional<Outcome> ScanOnce();
    void Record(bool repetitionsToo);
    void WatchForOverrun();
    void AddLooks();
    void SkipTo(Units now);
    std::optional<Units> NextChange() const;
    std::optional<Units> DueTime(StateNumber state) const;

    const Machine& machine_;
    Inputs inputs_;
    Config config_;
    Config before_;           // the last scan
    std::vector<Taken> scan_; // what it did
    std::vector<Taken> last_; // what the scan before did; empty where a repetition is worth telling
    std::vector<Happening> log_;
    bool timerOverran_ = false;
    EventsSeen* seen_ = nullptr;
};

} // namespace orvane::run
