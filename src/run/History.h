// SPDX-License-Identifier: GPL-3.0-or-later
// A run with its past. To go back is not to undo what happened, but to compute the moment again from a copy
// of the machine that was kept a little earlier; so timers, inputs, counts and log can never disagree. Copies
// are kept by the work that lies between them, so that one step back costs the same however long the run is.
#pragma once

#include "run/Clock.h"
#include "run/RunStep.h"

#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace orvane::run {

// A transition that was taken, or power that came on: then there is neither From nor Row.
struct LogEntry {
    Units When = 0;
    std::uint32_t Step = 0; // which step of the run brought it
    std::uint8_t From = 0;
    std::uint8_t Row = 0;
    std::uint8_t To = 0;
    bool Holds = false;

    bool IsPowerOn() const { return From == 0; }
    bool operator==(const LogEntry&) const = default;
};
static_assert(sizeof(LogEntry) == 16);

// A place in a run: behind that many steps, and so far into the next one, which is a wait then.
struct Moment {
    std::size_t Steps = 0;
    Units Into = 0;

    bool operator==(const Moment&) const = default;
};

// Steps and what they bring, each; beyond it a run takes nothing more.
inline constexpr std::size_t kLongestRun = 1'000'000;

class History {
  public:
    // The power is off and nothing was done. The machine must have a state to start in, and outlive this.
    explicit History(const Machine& machine);

    // The machine at the moment shown.
    const Clock& Now() const { return *clock_; }
    bool HasPower() const { return now_.HasPower; }
    // What came of the last step. When it is not idle, nothing more can be done but going back.
    Outcome End() const { return now_.End; }
    Moment At() const { return at_; }

    // Cuts off what lies behind the moment shown, and does the step. Refused, with nothing cut, when the
    // machine never came to rest, when the run is full, and when power would come on twice or is needed and
    // off.
    bool Do(const RunStep& step);
    bool CanDo(const RunStep& step) const;
    // The last step, a wait whose end is the moment shown, lasts longer.
    void Lengthen(Units units);

    // All steps, also those behind the moment shown.
    std::span<const RunStep> Steps() const { return steps_; }
    // Of a run that goes: only its log may be asked for then.
    std::vector<RunStep> TakeSteps() { return std::move(steps_); }
    // What happened up to the moment shown, in order, and what did in the whole run.
    std::span<const LogEntry> Log() const { return {log_.data(), shown_}; }
    std::span<const LogEntry> WholeLog() const { return log_; }

    // Nothing happens when there is no such moment.
    void GoTo(Moment moment);
    void Back();
    void Forward();
    // To the last moment of this time, whose steps are all done, or into the wait that passes it.
    void GoToTime(Units time);
    Units EndTime() const { return endTime_; }

    // How often the cell's transition was taken; of (0, state) how often the state was entered.
    std::uint32_t Count(Cell cell) const;

  private:
    struct Present {
        bool HasPower = false;
        Outcome End = Outcome::Quiet;
    };
    struct Copy {
        std::size_t Steps = 0;
        Present Now;
        Clock Machine;
    };

    void CutBehind();
    void Apply(const RunStep& step);
    Outcome Move(const RunStep& step);
    void AddToLog(const RunStep& step);
    void KeepCopy();
    void StartFrom(Moment moment);
    void Show(std::size_t entries);
    void Tally(const LogEntry& entry, bool add);
    std::size_t EntriesUpTo(Moment moment) const;

    const Machine& machine_;
    std::vector<RunStep> steps_;
    std::vector<LogEntry> log_;
    std::vector<Copy> copies_;   // the first is the beginning
    Units endTime_ = 0;          // of the whole run
    std::optional<Clock> clock_; // always there; this and the rest is the moment shown
    Present now_;
    Moment at_;
    std::size_t shown_ = 0;
    std::vector<std::uint32_t> counts_;
};

} // namespace orvane::run
