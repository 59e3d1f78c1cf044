// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Timeline.h"

#include <algorithm>
#include <bit>

namespace orvane::run {

namespace {

class TimelineMaker {
  public:
    TimelineMaker(const Machine& machine, const History& history, Units finest)
        : machine_(machine),
          history_(history),
          finest_(finest),
          inputs_(kTableRows),
          timers_(machine.Timers().size()),
          started_(machine.Timers().size(), kNever) {
        timeline_.End = history.EndTime();
    }

    Timeline Run() {
        for (const LogEntry& entry : history_.WholeLog()) {
            if (!entry.Holds)
                Enter(entry);
        }
        CloseStates();
        for (const RunStep& step : history_.Steps())
            Follow(step);
        SetInputs(0, now_);
        Collect();
        return std::move(timeline_);
    }

  private:
    // Of several states that stand within the finest stretch the last one is kept.
    void Enter(const LogEntry& entry) {
        std::vector<StateStretch>& states = timeline_.States;
        if (!states.empty()) {
            states.back().To = entry.When;
            if (states.back().To - states.back().From < finest_ && states.size() > 1)
                states.pop_back();
        }
        if (states.empty() || states.back().State != StateNumber(entry.To))
            states.push_back({entry.When, entry.When, StateNumber(entry.To)});
        const RunState& entered = machine_.State(StateNumber(entry.To));
        if (entered.StartsTimer)
            StartTimer(entered.Timer, entry.When);
    }

    void CloseStates() {
        if (!timeline_.States.empty())
            timeline_.States.back().To = timeline_.End;
        for (std::size_t timer = 0; timer < started_.size(); ++timer) {
            if (started_[timer] != kNever)
                timers_[timer].Runs.push_back({started_[timer], timeline_.End});
        }
    }

    void StartTimer(std::size_t timer, Units when) {
        const Units before = started_[timer];
        if (before != kNever && when - before < finest_)
            return;
        if (before != kNever && when > before)
            timers_[timer].Runs.push_back({before, when});
        started_[timer] = when;
    }

    void Follow(const RunStep& step) {
        switch (step.What) {
        case RunAct::Wait:
            now_ = std::min(now_ + step.Time(), timeline_.End);
            break;
        case RunAct::Inputs:
            SetInputs(step.Amount, now_);
            break;
        case RunAct::Pulse:
            for (std::uint64_t rows = step.Amount & ~true_; rows != 0; rows &= rows - 1)
                Add(std::size_t(std::countr_zero(rows)), {now_, now_});
            break;
        case RunAct::PowerOn:
        case RunAct::Limit:
        case RunAct::Scan:
            break;
        }
    }

    void SetInputs(std::uint64_t events, Units when) {
        for (std::uint64_t gone = true_ & ~events; gone != 0; gone &= gone - 1) {
            const auto row = std::size_t(std::countr_zero(gone));
            Add(row, {since_[row], when});
        }
        for (std::uint64_t come = events & ~true_; come != 0; come &= come - 1)
            since_[std::size_t(std::countr_zero(come))] = when;
        true_ = events;
    }

    void Add(std::size_t row, TimeStretch stretch) {
        std::vector<TimeStretch>& lane = inputs_[row].True;
        if (!lane.empty() && stretch.To - lane.back().To < finest_)
            lane.back().To = stretch.To;
        else
            lane.push_back(stretch);
    }

    void Collect() {
        for (const RowNumber row : EventRows()) {
            InputLane& lane = inputs_[IndexIn(TableRows(), row)];
            lane.Event = row;
            if (!lane.True.empty())
                timeline_.Inputs.push_back(std::move(lane));
        }
        for (std::size_t timer = 0; timer < timers_.size(); ++timer) {
            timers_[timer].Timer = timer;
            timers_[timer].Limit = LongestLimit(timer);
            if (!timers_[timer].Runs.empty())
                timeline_.Timers.push_back(std::move(timers_[timer]));
        }
    }

    std::optional<Units> LongestLimit(std::size_t timer) const {
        std::optional<Units> longest;
        for (const StateNumber number : StateNumbers()) {
            const RunState& state = machine_.State(number);
            if (state.Limit == LimitKind::None || state.Timer != timer)
                continue;
            const Units limit = state.Limit == LimitKind::Constant
                                    ? state.LimitUnits
                                    : history_.Now().Surroundings().Limits[IndexIn(TableColumns(), number)];
            if (limit != kNotGiven)
                longest = std::max(longest.value_or(limit), limit);
        }
        return longest;
    }

    const Machine& machine_;
    const History& history_;
    Units finest_;
    Timeline timeline_;
    std::vector<InputLane> inputs_; // by row
    std::vector<TimerLane> timers_;
    std::vector<Units> started_;
    Units now_ = 0;
    std::uint64_t true_ = 0;
    std::array<Units, kTableRows> since_{};
};

} // namespace

Timeline TimelineOf(const Machine& machine, const History& history, Units finest) {
    return TimelineMaker(machine, history, finest).Run();
}

} // namespace orvane::run
