// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TraceOfRun.h"

#include <utility>

namespace orvane::run {

namespace {

class TraceMaker {
  public:
    TraceMaker(const FsmDocument& document, const Machine& machine, const History& history)
        : history_(history), recorder_(document, machine) {}

    RunTrace Run() {
        const std::span<const RunStep> steps = history_.Steps();
        const Moment at = history_.At();
        for (std::size_t i = 0; i < at.Steps + (at.Into > 0 ? 1 : 0); ++i)
            Add(steps[i], i);
        recorder_.End(history_.Now().Where().Now);
        return std::move(recorder_.Trace());
    }

  private:
    void Add(const RunStep& step, std::size_t number) {
        if (step.What == RunAct::PowerOn) {
            recorder_.PowerOn(held_);
            hasPower_ = true;
        }
        if (step.What == RunAct::Inputs)
            held_ = step.Amount;
        if (hasPower_ && step.What == RunAct::Inputs)
            recorder_.Inputs(now_, held_);
        if (step.What == RunAct::Pulse)
            recorder_.Inputs(now_, step.Amount);
        AddHappenings(number);
        if (step.What == RunAct::Pulse)
            recorder_.Inputs(now_, held_);
        if (step.What == RunAct::Wait)
            now_ += step.Time();
    }

    void AddHappenings(std::size_t step) {
        const std::span<const LogEntry> log = history_.Log();
        for (; next_ < log.size() && log[next_].Step <= step; ++next_) {
            const LogEntry& entry = log[next_];
            if (!entry.IsPowerOn())
                recorder_.Happened(
                    {entry.When,
                     {StateNumber(entry.From), RowNumber(entry.Row), StateNumber(entry.To), entry.Holds}});
        }
    }

    const History& history_;
    TraceRecorder recorder_;
    bool hasPower_ = false;
    std::uint64_t held_ = 0;
    Units now_ = 0;
    std::size_t next_ = 0; // in the log
};

} // namespace

RunTrace TraceOfRun(const FsmDocument& document, const Machine& machine, const History& history) {
    return TraceMaker(document, machine, history).Run();
}

} // namespace orvane::run
