// SPDX-License-Identifier: GPL-3.0-or-later
// A second step function, written to be made wrong: each rule that a step has to keep can be broken.
#pragma once

#include "run/Machine.h"

namespace orvane::test {

// All false is right.
struct BrokenRules {
    bool HighestRowFirst = false;
    bool TimeoutBeforeEvents = false;
    bool ElseBeforeTimeout = false;
    bool HoldEnters = false;
    bool EventToItselfStays = false;
    bool TimeoutToItselfStays = false;
    bool ElseToItselfStays = false;
    bool ConstantDueAfterLimit = false;
    bool VariableDueAtLimit = false;
    bool ContinuingStarts = false;
    bool OnlyOtherStatesStartTimers = false;
    bool OneTimerForAll = false;
    bool UnstartedExpired = false;
    bool BeginsInStateOne = false;
    bool ElseStatesYield = false;
    bool ScanIsOneLook = false;
};

class RuledStep {
  public:
    RuledStep(const FsmDocument& document, const BrokenRules& broken)
        : document_(document), machine_(document), broken_(broken) {}

    StateNumber Start() const { return broken_.BeginsInStateOne ? StateNumber(1) : machine_.Start(); }

    run::ScanEnd PowerOn(run::Config& config, const run::Inputs& inputs, std::vector<run::Taken>& log) const {
        config = {Start(), 0, std::vector<run::Units>(machine_.Timers().size() + 1, run::kNever)};
        Enter(config, Start());
        return LookUntilYield(config, inputs, log);
    }
    run::ScanEnd Scan(run::Config& config, const run::Inputs& inputs, std::vector<run::Taken>& log) const {
        Look(config, inputs, log);
        return LookUntilYield(config, inputs, log);
    }
    void Look(run::Config& config, const run::Inputs& inputs, std::vector<run::Taken>& log) const;

  private:
    run::ScanEnd LookUntilYield(run::Config& config, const run::Inputs& inputs,
                                std::vector<run::Taken>& log) const;
    void Enter(run::Config& config, StateNumber state) const;
    bool Yields(StateNumber state) const;
    int RowTaken(const run::Config& config, const run::Inputs& inputs) const;
    int EventTaken(const run::Inputs& inputs, const run::RunState& state) const;
    bool TimeIsUp(const run::Config& config, const run::Inputs& inputs) const;
    bool Stays(StateNumber from, int row) const;

    const FsmDocument& document_;
    run::Machine machine_;
    BrokenRules broken_;
};

} // namespace orvane::test
