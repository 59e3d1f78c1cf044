// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Clock.h"
#include "run/RunStep.h"
#include "run/TestableWays.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvane::run {

// Drives a machine along the ways of its state space, in steps as a person would write them: a pulse where it
// takes one, inputs that stay where the machine has to rest with them, and single scans where nothing else
// leads on.
class WayDriver {
  public:
    // All must outlive the driver.
    WayDriver(const Machine& machine, const Inputs& given, const StateSpace& space);

    // The power is off, and a new run begins.
    void Begin();

    // Begins where a run stands, with what surrounds it; no power is where that is none.
    void BeginAt(const std::optional<Config>& at, const Inputs& there);

    // Where a way is to end: a transition on it is enough, so that the machine may settle behind it, or the
    // place counts.
    enum class End { Anywhere, AtItsEnd };

    // Goes the way, which must begin where the machine is. False when it does not come along: then it is
    // somewhere else.
    bool Go(std::span<const TestableWay* const> way, End end);

    // These events are there for one scan, with whatever comes of it. Refused, with nothing done, when the
    // machine would not come to rest then.
    bool Try(std::uint64_t events);

    // None when the machine never came to rest, or is where the space does not know.
    std::optional<std::uint32_t> Place() const;

    bool HasPower() const { return hasPower_; }
    // Since Begin(), the limits that are set before power comes on among them.
    const std::vector<RunStep>& Steps() const { return steps_; }
    // All that happened since the last call.
    std::vector<Happening> TakeLog() { return clock_->TakeLog(); }

  private:
    void PowerOn(std::uint64_t events);
    void Switch(std::uint64_t events);
    void Pulse(std::uint64_t events);
    void ScanOnce(std::uint64_t events);
    void Wait(std::uint64_t events);
    std::size_t GoScan(std::span<const TestableWay* const> way, End end);
    std::size_t ComesAlong(const Clock& clock, Outcome outcome, std::span<const TestableWay* const> way,
                           End end) const;
    bool RestsWithout() const;

    const Machine& machine_;
    const Inputs& given_;
    const StateSpace& space_;
    std::optional<Clock> clock_; // always there
    Outcome outcome_ = Outcome::Quiet;
    bool hasPower_ = false;
    std::vector<RunStep> steps_;
};

} // namespace orvane::run
