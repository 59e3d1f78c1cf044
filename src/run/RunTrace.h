// SPDX-License-Identifier: GPL-3.0-or-later
// A run as a list of what happened in it: what is printed, drawn over the time, and written for other
// programs.
#pragma once

#include "core/FsmDocument.h"
#include "run/Clock.h"
#include "run/Machine.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

// Something from outside: an event that some state tests, or a signal that events follow from.
struct TraceInput {
    std::string Name; // UTF-8; "row 6" for an event without a name
    RowNumber Row;    // kNoRow for a signal
};

enum class TraceKind {
    PowerOn,    // the first state was entered
    Inputs,     // they changed, and nothing else
    Transition, // taken, or an event held the state
    End         // nothing happened: time passed to here
};

struct TraceRow {
    TraceKind Kind = TraceKind::End;
    Units When = 0;         // since power-on
    std::size_t Moment = 0; // rows of one moment had no time and no change of inputs between them
    Taken What;             // of a transition; else To is the state that the machine is in
    std::size_t Inputs = 0; // the set of inputs that is there, in RunTrace::InputSets
};

struct RunTrace {
    std::vector<TraceInput> Inputs;
    std::vector<std::vector<bool>> InputSets; // by the places in Inputs
    std::vector<TraceRow> Rows;               // in order; the first is PowerOn
    std::optional<std::int64_t> Unit;         // of the machine's time, in microseconds
};

// When the timers were started, while the rows of a trace are gone through in order.
class TraceTimers {
  public:
    explicit TraceTimers(const Machine& machine);

    void Add(const TraceRow& row);
    // How long ago by then; none when it was never started. By the place in Machine::Timers().
    std::optional<Units> Since(std::size_t timer, Units now) const;

  private:
    const Machine& machine_;
    std::vector<Units> started_;
};

// Takes down a run while it happens.
class TraceRecorder {
  public:
    // Signals by name, as UTF-8. Document and machine must outlive the recorder.
    TraceRecorder(const FsmDocument& document, const Machine& machine,
                  const std::vector<std::string>& signals = {});

    void PowerOn(std::uint64_t events, const std::vector<bool>& signals = {});
    // Only what is different makes a row.
    void Inputs(Units when, std::uint64_t events, const std::vector<bool>& signals = {});
    void Happened(const Happening& happening);
    // A row for the end, when the last thing that happened was before it.
    void End(Units when);

    const RunTrace& Trace() const { return trace_; }
    RunTrace& Trace() { return trace_; }

  private:
    void Add(TraceKind kind, Units when, const Taken& what);
    bool TakeInputs(std::uint64_t events, const std::vector<bool>& signals);

    const Machine& machine_;
    std::size_t signals_;
    RunTrace trace_;
};

// The texts of the code that ran with the row, in order.
std::vector<const std::string*> CodeOf(const TraceRow& row, const FsmDocument& document);

// The id of each timer of the machine as the user wrote it, UTF-8; several may be empty or equal.
std::vector<std::string> TimerIds(const FsmDocument& document, const Machine& machine);

} // namespace orvane::run
