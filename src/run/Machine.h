// SPDX-License-Identifier: GPL-3.0-or-later
// A machine as it runs: what the program of a table does at one look around, in the form that makes it fast.
//
// At one look the lowest event row that is true and has a target is taken, else the timeout when it is due,
// else the ELSE, else nothing. An event that leads back to its own state without an action holds the state:
// nothing is run and no timer started. Everything else runs its action (not a timeout with a variable limit)
// and enters its target, also when that is the same state: the entry code runs, then the timer starts.
//
// The program starts in the lowest state that has a block, which is not always state 1.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

using Units = std::int64_t; // of the machine's time, whole

inline constexpr Units kNever = -1;             // when a timer was started
inline constexpr Units kNotGiven = -1;          // a limit that only the user knows
inline constexpr Units kLongestTime = 0xFFFFFF; // what a timer of the controller can count

// What is not known of the controllers. A machine runs under one reading of each.
struct Readings {
    bool AfterLimit = false; // a constant limit is up one unit after it, not at it
    bool UnstartedExpired =
        false; // a timer that was never started is past every limit, not at power-on's time

    bool operator==(const Readings&) const = default;
};

// Numbers for the limits that are names, by the text that stands in the state.
using Constants = std::map<std::string, Units, std::less<>>;

// Where a machine is. All that happens later follows from this and from the inputs.
struct Config {
    StateNumber State;          // none while the power is off
    Units Now = 0;              // since power-on
    std::vector<Units> Started; // by timer: when it was started last, or kNever

    bool operator==(const Config&) const = default;
};

// What surrounds a machine at one moment.
struct Inputs {
    bool Has(RowNumber row) const { return (Events >> row.Number() & 1U) != 0; }
    void Set(RowNumber row, bool there);

    std::uint64_t Events = 0; // bit r: the event of row r is true
    // The variable limits by state, or kNotGiven.
    std::array<Units, kStateCount + 1> Limits = NoLimits();

  private:
    static std::array<Units, kStateCount + 1> NoLimits();
};

// One transition that was taken.
struct Taken {
    StateNumber From;
    RowNumber Row;
    StateNumber To;
    bool Holds = false; // an event kept the state: nothing was run, nothing entered

    bool operator==(const Taken&) const = default;
};

enum class ScanEnd {
    Yields,      // the moment is over
    Spins,       // it never is: the machine came back to where it was in this scan
    LimitMissing // the state's timeout had to be looked at, and nobody gave its limit
};

enum class LimitKind : unsigned char { None, Constant, Variable };

// One state of a machine, as a look around needs it.
struct RunState {
    std::uint64_t Events = 0; // bit r: row r leads somewhere and its event has test code
    std::uint64_t Holds = 0;  // those of them that keep the state
    std::array<std::uint8_t, kTableRows> Targets{}; // by row
    LimitKind Limit = LimitKind::None;              // none also when there is no timeout
    Units LimitUnits = kNotGiven;                   // of a constant limit
    std::uint8_t Timer = 0;                         // that the state starts or looks at
    bool StartsTimer = false;
    bool LeavesByElse = false; // ELSE leads to another state: with multitasking such a state does not yield
    bool HasBlock = false;     // the program has it at all
};

class Machine {
  public:
    // What the generator finds wrong in the document is left out, as in the program's text. Throws
    // BoundsError when a transition leads to a state that the table does not have.
    explicit Machine(const FsmDocument& document, const Constants& constants = {}, Readings readings = {});

    // State 1..100.
    const RunState& State(StateNumber state) const { return states_[state.Number()]; }

    // The lowest state that has a block; none when no state has one.
    StateNumber Start() const { return start_; }
    bool Polytask() const { return polytask_; }
    const Readings& Read() const { return readings_; }

    // The labels of the timers; ids that have one label are one timer.
    const std::vector<std::string>& Timers() const { return timers_; }

    // The first moment: enters Start(), which must be there. With multitasking the machine goes on to a state
    // that yields. What is taken is appended to the log, here and below.
    ScanEnd PowerOn(Config& config, const Inputs& inputs, std::vector<Taken>& log) const;

    // One moment of a machine that has power: one look without multitasking, with it as many as it takes to
    // come to a state that yields. Nothing but the machine moves: time and inputs stand still.
    ScanEnd Scan(Config& config, const Inputs& inputs, std::vector<Taken>& log) const;

    // One look around, for those who count looks. False when the limit is missing; the machine stays then.
    bool Look(Config& config, const Inputs& inputs, std::vector<Taken>& log) const;

    // The machine lets time pass in this state. Without multitasking every state does, after one look.
    bool Yields(StateNumber state) const { return !polytask_ || !State(state).LeavesByElse; }

    // How long the timer has run that the state looks at, as the program would read it.
    Units Elapsed(const Config& config, StateNumber state) const;

    // The first value of Elapsed at which the state's timeout is due; kNotGiven when that is not known. The
    // state must have a timeout.
    Units DueAfter(const Inputs& inputs, StateNumber state) const;

  private:
    struct Looked {
        bool LimitKnown = true;
        bool TimerChanged = false;
    };

    void AddState(const FsmDocument& document, StateNumber number, const Constants& constants);
    std::uint8_t TimerIndex(const std::string& label);
    // The row that is taken, kHeadRow for none; no value when a missing limit would have to be known.
    std::optional<RowNumber> RowTaken(const Config& config, const Inputs& inputs) const;
    bool Enter(Config& config, StateNumber state) const; // true when a timer changed
    Looked LookOnce(Config& config, const Inputs& inputs, std::vector<Taken>& log) const;
    ScanEnd LookUntilYield(Config& config, const Inputs& inputs, std::vector<Taken>& log) const;

    std::vector<RunState> states_;
    std::vector<std::string> timers_;
    StateNumber start_;
    bool polytask_;
    Readings readings_;
};

} // namespace orvane::run
