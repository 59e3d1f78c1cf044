// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/MovePlan.h"

#include "codegen/Labels.h"
#include "codegen/Reachability.h"
#include "codegen/TimerList.h"
#include "core/StateLabel.h"
#include "core/TimingMode.h"
#include "find/GeneratedLabels.h"
#include "find/Rename.h"
#include "text/NumberText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::find {

namespace {

constexpr StateNumber kStart = 1;

// The timers that the program defines when the reached states come in that order, sorted.
std::vector<std::string> DefinedTimers(const FsmDocument& document, const Reachability& reachability,
                                       const StateOrder& order) {
    const StateOrder back = order.Inverse();
    TimerList timers;
    for (const StateNumber place : StateNumbers()) {
        const StateRecord& state = document.State(back.NewOf(place));
        if (reachability.Reached(back.NewOf(place)) && StartsTiming(state.TimingMode))
            timers.Add(state.TimerId);
    }
    std::vector<std::string> labels;
    for (const std::string& id : timers.Ids())
        labels.push_back(TimerLabel(document, id));
    std::sort(labels.begin(), labels.end());
    return labels;
}

// An id that is the tail of one that comes before has no definition, so the order of the states may matter.
std::vector<std::string> NotesOnTimers(const FsmDocument& document, const StateOrder& order) {
    const Reachability reachability = ComputeReachability(document);
    const std::vector<std::string> before = DefinedTimers(document, reachability, {});
    const std::vector<std::string> after = DefinedTimers(document, reachability, order);
    std::vector<std::string> notes;
    const auto tell = [&](const auto& some, const auto& others, const std::string& what) {
        std::vector<std::string> labels;
        std::set_difference(some.begin(), some.end(), others.begin(), others.end(),
                            std::back_inserter(labels));
        for (const std::string& label : labels)
            notes.push_back("The program would " + what + " " + label);
    };
    tell(before, after, "lose a definition of the timer");
    tell(after, before, "have one more definition of the timer");
    return notes;
}

struct Noter {
    const FsmDocument& Document;

    std::vector<std::string> operator()(const StateOrder& order) const {
        std::vector<std::string> notes = NotesOnTimers(Document, order);
        const StateNumber start = order.Inverse().NewOf(kStart);
        if (start != kStart)
            notes.push_back("State 1 is the start: the machine would begin in " +
                            StateLabel(start, Document.State(start).Name) + ", now as state 1");
        return notes;
    }
    std::vector<std::string> operator()(const EventOrder& order) const;
};

// Two events that some state knows both.
struct Pair {
    StateNumber State;
    RowNumber First; // after the move
    RowNumber Second;
};

// Where an event that came second comes first now. Each pair of events once, with the first state.
std::vector<Pair> TurnedAround(const FsmDocument& document, const EventOrder& order) {
    std::vector<Pair> pairs;
    for (const RowNumber upper : EventRows()) {
        for (RowNumber lower = upper + 1; lower <= kLastRow; ++lower) {
            if (order.NewOf(upper) < order.NewOf(lower))
                continue;
            for (const StateNumber state : StateNumbers()) {
                const StateRecord& record = document.State(state);
                if (record.Targets[upper] == kNoState || record.Targets[lower] == kNoState)
                    continue;
                pairs.push_back({state, lower, upper});
                break;
            }
        }
    }
    return pairs;
}

std::vector<std::string> Noter::operator()(const EventOrder& order) const {
    constexpr std::size_t most = 3; // that are told one by one
    const std::vector<Pair> pairs = TurnedAround(Document, order);
    std::vector<std::string> notes;
    for (std::size_t i = 0; i < pairs.size() && i < most; ++i) {
        const Pair& pair = pairs[i];
        notes.push_back("When both occur at a time, " + Document.Event(pair.First).Name +
                        " would count before " + Document.Event(pair.Second).Name + " (in " +
                        StateLabel(pair.State, Document.State(pair.State).Name) + ")");
    }
    if (pairs.size() > most)
        notes.push_back("The same holds for " + NumberText(pairs.size() - most) + " more pairs of events");
    return notes;
}

} // namespace

MovePlan PlanMove(const FsmDocument& document, const TableOrder& order) {
    MovePlan plan;
    plan.Order = order;
    plan.Notes = std::visit(Noter{document}, order);
    plan.Labels = std::visit(
        [&](const auto& places) { return LabelUses(document, LabelsOfRearranged(document, places)); }, order);
    return plan;
}

void Apply(FsmDocument& document, TableClipboard& clipboard, const MovePlan& plan,
           const std::vector<bool>& chosen) {
    Apply(document, ChosenChanges(plan.Labels, chosen));
    std::visit([&](const auto& order) { Rearrange(document, clipboard, order); }, plan.Order);
}

TableOrder InverseOf(const TableOrder& order) {
    return std::visit([](const auto& places) { return TableOrder(places.Inverse()); }, order);
}

void ApplyUnkept(FsmDocument& document, TableClipboard& clipboard, const TableOrder& order) {
    std::visit([&](const auto& places) { RearrangeUnkept(document, clipboard, places); }, order);
}

StateNumber NewNumber(const TableOrder& order, StateNumber state) {
    const auto* states = std::get_if<StateOrder>(&order);
    return states == nullptr ? state : states->NewOf(state);
}

Cell NewPlace(const TableOrder& order, Cell place) {
    if (const auto* events = std::get_if<EventOrder>(&order))
        return {events->NewOf(place.Row), place.State};
    return {place.Row, NewNumber(order, place.State)};
}

} // namespace orvane::find
