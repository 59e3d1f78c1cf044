// SPDX-License-Identifier: GPL-3.0-or-later
// Takes a machine through a world and writes down what it did in the words of the two interpreters, so that
// all three can be compared moment by moment.
#pragma once

#include "core/TimingMode.h"
#include "run/Machine.h"
#include "support/Markers.h"
#include "support/World.h"

namespace orvane::test {

inline run::Inputs InputsOf(const World& world) {
    run::Inputs inputs;
    for (const RowNumber row : EventRows())
        inputs.Set(row, world.HasEvent(row.Number()));
    for (const StateNumber state : StateNumbers())
        inputs.Limits[IndexIn(TableColumns(), state)] = world.LimitOf(state.Number());
    return inputs;
}

// The step function is a type with the functions PowerOn, Scan and Look of run::Machine.
template <typename Step>
class MachineWalk {
  public:
    MachineWalk(const FsmDocument& document, const Step& step, World world)
        : document_(document), step_(step), world_(std::move(world)) {}

    Trace Run() {
        const run::ScanEnd on = step_.PowerOn(config_, InputsOf(world_), log_);
        Do(document_.State(step_.Start().Number()).EntryCode);
        bool going = Tell(on, kMostPollsAtOneMoment);
        while (going && world_.Advance()) {
            trace_.push_back(StoodIn(config_.State.Number()));
            config_.Now = world_.Now();
            going = Tell(step_.Scan(config_, InputsOf(world_), log_), kMostPollsAtOneMoment + 1);
        }
        return std::move(trace_);
    }

  private:
    // False when the moment does not end: then the machine goes round until the interpreters give up, too.
    bool Tell(run::ScanEnd end, std::size_t mostLooks) {
        if (end == run::ScanEnd::Spins) {
            while (log_.size() < mostLooks)
                step_.Look(config_, InputsOf(world_), log_);
            log_.resize(mostLooks);
        }
        for (const run::Taken& taken : log_)
            Tell(taken);
        log_.clear();
        if (end == run::ScanEnd::Yields)
            return true;
        trace_.push_back(end == run::ScanEnd::Spins ? kGoesRound : "has no limit");
        return false;
    }

    void Tell(const run::Taken& taken) {
        if (taken.Holds)
            return;
        const StateRecord& from = document_.State(taken.From.Number());
        if (taken.Row != kTimeoutRow || !HasVariableLimit(from.TimingMode))
            Do(from.Actions[taken.Row.Number()]);
        Do(document_.State(taken.To.Number()).EntryCode);
    }

    void Do(const std::string& userText) {
        for (std::string& marker : MarkersIn(userText))
            trace_.push_back(std::move(marker));
    }

    const FsmDocument& document_;
    const Step& step_;
    World world_;
    run::Config config_;
    std::vector<run::Taken> log_;
    Trace trace_;
};

} // namespace orvane::test
