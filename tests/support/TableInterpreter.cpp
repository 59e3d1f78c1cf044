// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TableInterpreter.h"

#include "support/Markers.h"
#include "text/NumberText.h"

#include <algorithm>
#include <map>

namespace orvane::test {

namespace {

// What tells one timer from another: states share one when their ids differ only in blanks at the ends, or in
// blanks and underscores.
std::string TimerOf(const StateRecord& state) {
    const std::string& id = state.TimerId;
    if (id.empty())
        return "the default timer";
    const std::size_t first = id.find_first_not_of(' ');
    const std::size_t last = id.find_last_not_of(' ');
    std::string name = first == std::string::npos ? "" : id.substr(first, last - first + 1);
    std::replace(name.begin(), name.end(), ' ', '_');
    return "timer " + name;
}

class Walker {
  public:
    Walker(const FsmDocument& document, World world) : document_(document), world_(std::move(world)) {}

    Trace Run(int start) {
        Enter(start);
        while (LookAround())
            React();
        return std::move(trace_);
    }

  private:
    const StateRecord& Record() const { return document_.State(state_); }

    void Do(const std::string& userText) {
        for (std::string& marker : MarkersIn(userText))
            trace_.push_back(std::move(marker));
    }

    void Enter(int state) {
        state_ = state;
        Do(Record().EntryCode);
        const bool startsTiming = Record().TimingMode == 1 || Record().TimingMode == 2;
        if (startsTiming)
            started_[TimerOf(Record())] = world_.Now();
    }

    // Polls once; false at the end of the walk.
    bool LookAround() {
        if (++polls_ > kMostPollsAtOneMoment) {
            trace_.push_back(kGoesRound);
            return false;
        }
        const int elseTarget = Record().Targets[5].Number();
        const bool leavesAtOnce = elseTarget != 0 && elseTarget != state_;
        if (document_.View.Polytask && leavesAtOnce)
            return true;
        if (!world_.Advance())
            return false;
        polls_ = 0;
        trace_.push_back(StoodIn(state_));
        return true;
    }

    void React() {
        for (int row = 6; row <= 54; ++row) {
            if (Record().Targets[row] != 0 && world_.HasEvent(row))
                return TakeEvent(row);
        }
        if (Record().Targets[4] != 0 && TimeIsUp())
            return TakeTimeout();
        if (Record().Targets[5] != 0)
            Take(5);
    }

    void TakeEvent(int row) {
        const bool stays = Record().Targets[row] == state_ && Record().Actions[row].empty();
        if (!stays)
            Take(row);
    }

    void TakeTimeout() {
        if (LimitIsVariable())
            Enter(Record().Targets[4].Number());
        else
            Take(4);
    }

    void Take(int row) {
        const int target = Record().Targets[row].Number();
        Do(Record().Actions[row]);
        Enter(target);
    }

    bool LimitIsVariable() const { return Record().TimingMode == 2 || Record().TimingMode == 4; }

    bool TimeIsUp() const {
        const auto found = started_.find(TimerOf(Record()));
        const long elapsed = world_.Now() - (found == started_.end() ? 0 : found->second);
        if (LimitIsVariable())
            return elapsed > world_.LimitOf(state_);
        return elapsed >= ParseNumber(Record().TimeConst);
    }

    const FsmDocument& document_;
    World world_;
    std::map<std::string, long> started_;
    int state_ = 0;
    int polls_ = 0; // at this moment
    Trace trace_;
};

} // namespace

std::set<int> EnteredStates(const FsmDocument& document) {
    std::set<int> entered;
    std::vector<int> toVisit = {1};
    while (!toVisit.empty()) {
        const int state = toVisit.back();
        toVisit.pop_back();
        for (int row = 4; row <= 54; ++row) {
            const int target = document.State(state).Targets[row].Number();
            const bool isNew = target != 0 && entered.insert(target).second;
            if (isNew && target != 1)
                toVisit.push_back(target);
        }
    }
    return entered;
}

Trace RunTable(const FsmDocument& document, World world) {
    const std::set<int> states = EnteredStates(document);
    if (states.empty())
        return {};
    return Walker(document, std::move(world)).Run(*states.begin());
}

} // namespace orvane::test
