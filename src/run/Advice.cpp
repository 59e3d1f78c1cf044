// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Advice.h"

#include "codegen/DesignChecks.h"
#include "run/DesignAdvice.h"
#include "run/FreeLimits.h"
#include "run/Obstacles.h"
#include "run/StateSpace.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"
#include "text/Ordinal.h"

#include <algorithm>

namespace orvane::run {

namespace {

constexpr std::array<std::string_view, kAdviceKinds.size()> kNames = {
    "start-not-1", "dead-timeout", "timer-never-started", "never-yields", "no-way-back", "trap",
    "same-test",   "label-twice",  "same-name",           "timer-blanks", "oscillates"};

using States = std::bitset<kStateCount + 1>;

class Adviser {
  public:
    Adviser(const FsmDocument& document, const std::stop_token& stop)
        : document_(document), stop_(stop), free_(WithFreeLimits(document)), machine_(free_) {}

    AdviceResult Run() {
        result_.List = AdviceOnDesign(document_);
        if (machine_.Start() != StateNumber() && Obstacles(document_).empty())
            AdviseOnBehaviour();
        std::stable_sort(result_.List.begin(), result_.List.end(), [](const Advice& a, const Advice& b) {
            return std::tuple(Ordinal(a.Kind), a.Place.State.Number(), a.Place.Row.Number()) <
                   std::tuple(Ordinal(b.Kind), b.Place.State.Number(), b.Place.Row.Number());
        });
        return std::move(result_);
    }

  private:
    void Add(AdviceKind kind, Cell place, std::string message) {
        result_.List.push_back({kind, place, std::move(message)});
    }
    std::string Title(StateNumber state) const { return StateTitle(document_, state); }
    std::string EventTitle(RowNumber row) const {
        const std::string name(Trim(document_.Event(row).Name));
        return "row " + NumberText(row.Number()) + (name.empty() ? "" : " (" + name + ")");
    }

    void AdviseOnBehaviour();
    void AdviseOnTimers(const StateSpace& space);
    void AdviseOnEndlessScans(const StateSpace& space);
    void AdviseOnWays(const StateSpace& space);

    const FsmDocument& document_;
    const std::stop_token& stop_;
    const FsmDocument free_;
    const Machine machine_;
    AdviceResult result_;
};

void Adviser::AdviseOnBehaviour() {
    const StateSpace space(machine_, Inputs(), {.Stop = stop_});
    result_.Complete = space.Complete();
    AdviseOnEndlessScans(space);
    AdviseOnTimers(space);
    if (space.Complete())
        AdviseOnWays(space);
}

void Adviser::AdviseOnTimers(const StateSpace& space) {
    for (const StateNumber state : StateNumbers()) {
        if (!space.Reaches(state))
            continue;
        if (space.LooksAtUnstarted(state)) {
            const std::string id(Trim(document_.State(state).TimerId));
            Add(AdviceKind::TimerNeverStarted, {kTimingModeRow, state},
                "The timeout of " + Title(state) + " looks at " +
                    (id.empty() ? "the default timer" : "the timer " + id) +
                    ", which may never have been started by then");
        }
        const bool hasTimeout = machine_.State(state).Limit != LimitKind::None;
        if (space.Complete() && hasTimeout && !space.Takes({kTimeoutRow, state}))
            Add(AdviceKind::DeadTimeout, {kTimeoutRow, state},
                "The timeout of " + Title(state) +
                    " can never be due: the state is always left, or "
                    "entered anew, before");
    }
}

void Adviser::AdviseOnEndlessScans(const StateSpace& space) {
    for (const EndlessScan& endless : space.EndlessScans()) {
        const StateNumber lowest = *std::min_element(endless.Ring.begin(), endless.Ring.end());
        if (endless.Ring.size() == 1) {
            Add(AdviceKind::NeverYields, {endless.Row, lowest},
                Title(lowest) + " is held by the event in " + EventTitle(endless.Row) +
                    " and lets no time pass, because its ELSE leads to another state: no other machine runs "
                    "as long as the event is there");
            continue;
        }
        std::vector<StateNumber> ring = endless.Ring;
        std::rotate(ring.begin(), std::min_element(ring.begin(), ring.end()), ring.end());
        const Advice advice = RingWithoutYield(document_, ring, endless.Row);
        if (std::find(result_.List.begin(), result_.List.end(), advice) == result_.List.end())
            result_.List.push_back(advice); // the table alone may have told it
    }
}

// Places from which the machine can come to its start, whatever it takes, are those from which a way leads
// to one of them or passes it.
class WaysBack {
  public:
    WaysBack(const StateSpace& space, StateNumber start) : space_(space), returns_(space.Places()) {
        std::vector<std::vector<std::uint32_t>> before(space.Places());
        for (std::uint32_t place = 1; place < space.Places(); ++place) {
            bool returns = space.StateAt(place) == start;
            for (const SpaceWay& way : space.From(place)) {
                before[way.To].push_back(place);
                returns = returns || Passes(way, start);
            }
            if (returns)
                Mark(place);
        }
        while (!open_.empty()) {
            const std::uint32_t place = open_.back();
            open_.pop_back();
            for (const std::uint32_t from : before[place])
                Mark(from);
        }
    }

    // The states that the machine is in, or passes, with a way back.
    States Returning() const {
        States returning;
        for (std::uint32_t place = 1; place < space_.Places(); ++place) {
            if (returns_[place])
                returning.set(space_.StateAt(place).Number());
            for (const SpaceWay& way : space_.From(place)) {
                for (const Cell& taken : space_.TakenOn(way))
                    returning[taken.State.Number()] = returning[taken.State.Number()] || returns_[way.To];
            }
        }
        return returning;
    }

  private:
    bool Passes(const SpaceWay& way, StateNumber state) const {
        const std::span<const Cell> taken = space_.TakenOn(way);
        return std::any_of(taken.begin(), taken.end(), [&](Cell cell) { return cell.State == state; });
    }
    void Mark(std::uint32_t place) {
        if (!returns_[place])
            open_.push_back(place);
        returns_[place] = true;
    }

    const StateSpace& space_;
    std::vector<bool> returns_;
    std::vector<std::uint32_t> open_;
};

void Adviser::AdviseOnWays(const StateSpace& space) {
    const States returning = WaysBack(space, machine_.Start()).Returning();
    for (const StateNumber state : StateNumbers()) {
        if (!space.Reaches(state))
            continue;
        if (!returning.test(state.Number()))
            Add(AdviceKind::NoWayBack, {kNoRow, state},
                "From " + Title(state) + " no way leads back to the start, " + Title(machine_.Start()));
        const bool left = std::any_of(CellRows().begin(), CellRows().end(), [&](RowNumber row) {
            return space.Takes({row, state}) && document_.State(state).Targets[row] != state;
        });
        if (!left)
            Add(AdviceKind::Trap, {kNoRow, state},
                "Nothing leads out of " + Title(state) + ": the machine stays there until power is off");
    }
}

} // namespace

std::string_view AdviceKindName(AdviceKind kind) { return kNames.at(Ordinal(kind)); }

AdviceResult AdviceOn(const FsmDocument& document, const std::stop_token& stop) {
    return Adviser(document, stop).Run();
}

} // namespace orvane::run
