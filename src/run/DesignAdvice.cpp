// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/DesignAdvice.h"

#include "codegen/DesignChecks.h"
#include "codegen/LabelClashes.h"
#include "core/TimingMode.h"
#include "run/CodeLines.h"
#include "run/Machine.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <bitset>
#include <map>
#include <set>

namespace orvane::run {

namespace {

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

std::string EventTitle(const FsmDocument& document, RowNumber row) {
    const std::string name(Trim(document.Event(row).Name));
    return "row " + NumberText(row.Number()) + (name.empty() ? "" : " (" + name + ")");
}

std::string List(const FsmDocument& document, const std::vector<StateNumber>& states) {
    std::string list;
    for (const StateNumber state : states)
        list += (list.empty() ? "" : ", ") + StateTitle(document, state);
    return list;
}

bool LeadsSomewhere(const FsmDocument& document, RowNumber row) {
    return std::any_of(StateNumbers().begin(), StateNumbers().end(),
                       [&](StateNumber state) { return document.State(state).Targets[row] != kNoState; });
}

class DesignAdviser {
  public:
    explicit DesignAdviser(const FsmDocument& document) : document_(document), machine_(document) {}

    std::vector<Advice> Run() {
        AdviseOnStart();
        AdviseOnTests();
        AdviseOnLabels();
        AdviseOnNames();
        AdviseOnTimers();
        AdviseOnRings();
        return std::move(list_);
    }

  private:
    void Add(AdviceKind kind, Cell place, std::string message) {
        list_.push_back({kind, place, std::move(message)});
    }
    std::string Title(StateNumber state) const { return StateTitle(document_, state); }

    void AdviseOnStart() {
        if (machine_.Start() != kNoState && machine_.Start() != StateNumber(1))
            Add(AdviceKind::StartNot1, {kNoRow, machine_.Start()},
                "The machine starts in " + Title(machine_.Start()) +
                    ", the first state that a transition enters, and not in " + Title(1));
    }

    void AdviseOnTests() {
        std::map<std::string, RowNumber> firstOf;
        for (const RowNumber row : EventRows()) {
            const std::string test(Trim(WithSingleBlanks(document_.Event(row).Code)));
            if (test.empty() || !LeadsSomewhere(document_, row))
                continue;
            const auto [first, isNew] = firstOf.emplace(test, row);
            if (!isNew)
                Add(AdviceKind::SameTest, {row, kNoState},
                    "The events in " + EventTitle(document_, first->second) + " and " +
                        EventTitle(document_, row) +
                        " have the same test; where both lead somewhere only the upper one is taken");
        }
    }

    void AdviseOnLabels() {
        for (const std::string& label : LabelClashes(document_))
            Add(AdviceKind::LabelTwice, {},
                "The label " + label + " stands twice in the program; change one of the names it is made of");
    }

    void AdviseOnNames() {
        std::map<std::string_view, StateNumber> states;
        for (const StateNumber state : StateNumbers()) {
            const std::string_view name = Trim(document_.State(state).Name);
            const auto [first, isNew] = states.emplace(name, state);
            if (!name.empty() && !isNew)
                Add(AdviceKind::SameName, {kNoRow, state},
                    "The states " + Title(first->second) + " and " + Title(state) + " have the same name");
        }
        std::map<std::string_view, RowNumber> events;
        for (const RowNumber row : EventRows()) {
            const std::string_view name = Trim(document_.Event(row).Name);
            const auto [first, isNew] = events.emplace(name, row);
            if (!name.empty() && !isNew)
                Add(AdviceKind::SameName, {row, kNoState},
                    "The events in rows " + NumberText(first->second.Number()) + " and " +
                        NumberText(row.Number()) + " have the same name, " + std::string(name));
        }
    }

    // They look like one timer in the table, and may be two in the program.
    void AdviseOnTimers() {
        std::map<std::string, StateNumber> firstOf;
        std::set<std::string> told;
        for (const StateNumber state : StateNumbers()) {
            const std::string& id = document_.State(state).TimerId;
            const std::int32_t mode = document_.State(state).TimingMode;
            if (!HasConstantLimit(mode) && !HasVariableLimit(mode))
                continue;
            std::string bare = id;
            std::erase(bare, ' ');
            const auto [first, isNew] = firstOf.emplace(bare, state);
            const std::string& other = document_.State(first->second).TimerId;
            if (!isNew && id != other && told.insert(id).second)
                Add(AdviceKind::TimerBlanks, {kTimingModeRow, state},
                    "The timer ids " + Quoted(other) + " of " + Title(first->second) + " and " + Quoted(id) +
                        " of " + Title(state) + " differ only in blanks");
        }
    }

    StateNumber Else(StateNumber state) const {
        return machine_.State(state).HasBlock ? StateNumber(machine_.State(state).Targets[kElseRow])
                                              : StateNumber();
    }

    // Every state has one ELSE, so that who follows it from a state comes into one ring at most.
    void AdviseOnRings() {
        std::bitset<kStateCount + 1> seen;
        for (const StateNumber begin : StateNumbers()) {
            std::vector<StateNumber> way;
            StateNumber state = begin;
            for (; state != kNoState && !seen.test(state.Number()); state = Else(state)) {
                seen.set(state.Number());
                way.push_back(state);
            }
            const auto back = std::find(way.begin(), way.end(), state);
            if (way.end() - back > 1)
                AddRing({back, way.end()});
        }
    }

    void AddRing(std::vector<StateNumber> ring) {
        std::rotate(ring.begin(), std::min_element(ring.begin(), ring.end()), ring.end());
        if (machine_.Polytask())
            list_.push_back(RingWithoutYield(document_, ring, kElseRow));
        else
            Add(AdviceKind::Oscillates, {kElseRow, ring.front()},
                "The states " + List(document_, ring) +
                    " lead to each other by ELSE: while nothing happens the machine goes round with every "
                    "scan, and where it is then depends on how often the controller scans");
    }

    const FsmDocument& document_;
    const Machine machine_;
    std::vector<Advice> list_;
};

} // namespace

std::vector<Advice> AdviceOnDesign(const FsmDocument& document) { return DesignAdviser(document).Run(); }

Advice RingWithoutYield(const FsmDocument& document, const std::vector<StateNumber>& ring, RowNumber row) {
    return {AdviceKind::NeverYields,
            {row, ring.front()},
            "The states " + List(document, ring) +
                " lead to each other and let no time pass: no other machine runs then"};
}

} // namespace orvane::run
