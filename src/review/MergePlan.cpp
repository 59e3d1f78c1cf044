// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/MergePlan.h"

#include "core/RecordOf.h"
#include "review/Compare.h"
#include "review/Presence.h"
#include "review/Titles.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <map>

namespace orvane::review {

namespace {

template <typename Number>
std::vector<Number> AddedOnes(const std::vector<Number>& present, const Pairing<Number>& pairing) {
    std::vector<Number> added;
    std::copy_if(present.begin(), present.end(), std::back_inserter(added),
                 [&](Number number) { return !pairing.HasOld(number); });
    return added;
}

template <typename Number>
std::map<std::string, std::vector<Number>> ByName(const FsmDocument& document,
                                                  const std::vector<Number>& numbers) {
    std::map<std::string, std::vector<Number>> byName;
    for (const Number number : numbers)
        byName[std::string(Trim(RecordOf(document, number).Name))].push_back(number);
    return byName;
}

template <typename Number>
struct Added {
    std::vector<Number> Ours;
    std::vector<Number> Theirs;
};

template <typename Number>
void PairSameNumbers(std::map<Number, Number>& pairs, const Added<Number>& added) {
    for (const Number number : added.Theirs) {
        if (std::find(added.Ours.begin(), added.Ours.end(), number) != added.Ours.end())
            pairs.emplace(number, number);
    }
}

// What both sides added is the same where it has a name that neither side added twice, or else where it has
// the same name and the same number.
template <typename Number>
std::map<Number, Number> AddedTwice(const MergePlan& plan, const Added<Number>& added) {
    std::map<Number, Number> pairs; // ours by theirs
    const auto oursByName = ByName(plan.Document(Side::Ours), added.Ours);
    for (const auto& [name, numbers] : ByName(plan.Document(Side::Theirs), added.Theirs)) {
        const auto same = oursByName.find(name);
        if (same == oursByName.end())
            continue;
        if (!name.empty() && numbers.size() == 1 && same->second.size() == 1)
            pairs.emplace(numbers.front(), same->second.front());
        else
            PairSameNumbers<Number>(pairs, {same->second, numbers});
    }
    return pairs;
}

template <typename Number>
void AddNodes(const MergePlan& plan, Nodes<Number>& nodes, Pairing<Number> Matching::*kind,
              const std::array<std::vector<Number>, 3>& present) {
    for (const Number number : present[IndexOf(Side::Base)])
        nodes.Add({{number, (plan.ToOurs.*kind).NewOf(number), (plan.ToTheirs.*kind).NewOf(number)}});
    const Added<Number> added{AddedOnes(present[IndexOf(Side::Ours)], plan.ToOurs.*kind),
                              AddedOnes(present[IndexOf(Side::Theirs)], plan.ToTheirs.*kind)};
    const std::map<Number, Number> oursOf = AddedTwice(plan, added);
    for (const Number number : added.Ours) {
        const auto twin = std::find_if(oursOf.begin(), oursOf.end(),
                                       [&](const auto& pair) { return pair.second == number; });
        nodes.Add({{Number(), number, twin == oursOf.end() ? Number() : twin->first}});
    }
    for (const Number number : added.Theirs) {
        if (oursOf.count(number) == 0)
            nodes.Add({{Number(), Number(), number}});
    }
}

template <typename Number>
Side NamingSide(const Node<Number>& node) {
    return node.IsOn(Side::Ours) ? Side::Ours : node.IsOn(Side::Theirs) ? Side::Theirs : Side::Base;
}

bool IsChanged(const FsmDocument& base, const FsmDocument& side, const Matching& matching) {
    return !Compare(base, side, matching).WithoutView().Changes.empty();
}

} // namespace

const Node<StateNumber>* MergePlan::TargetOn(Side side, const Node<StateNumber>& state,
                                             const Node<RowNumber>& row) const {
    if (!state.IsOn(side) || !row.IsOn(side))
        return nullptr;
    return States.At(side, Document(side).State(state.On(side)).Targets[row.On(side)]);
}

const std::string& MergePlan::ActionOn(Side side, const Node<StateNumber>& state,
                                       const Node<RowNumber>& row) const {
    static const std::string empty;
    if (!state.IsOn(side) || !row.IsOn(side))
        return empty;
    return Document(side).State(state.On(side)).Actions[row.On(side)];
}

MergePlan MakePlan(const FsmDocument& base, const FsmDocument& ours, const FsmDocument& theirs) {
    MergePlan plan{{&base, &ours, &theirs}, Match(base, ours), Match(base, theirs), {}, {}, {}, {}, {}};
    plan.Changed = {false, IsChanged(base, ours, plan.ToOurs), IsChanged(base, theirs, plan.ToTheirs)};
    AddNodes(plan, plan.States, &Matching::States,
             {PresentStates(base), PresentStates(ours), PresentStates(theirs)});
    for (const RowNumber row : {RowNumber(kTimeoutRow), RowNumber(kElseRow)})
        plan.Rows.Add({{row, row, row}, true, row});
    AddNodes(plan, plan.Rows, &Matching::Rows,
             {PresentEvents(base), PresentEvents(ours), PresentEvents(theirs)});
    return plan;
}

std::string TitleOf(const MergePlan& plan, const Node<StateNumber>& state) {
    const Side side = NamingSide(state);
    const StateNumber number = state.Result == kNoState ? state.On(side) : state.Result;
    return NumberedTitle(number.Number(), plan.Document(side).State(state.On(side)).Name);
}

std::string TitleOf(const MergePlan& plan, const Node<RowNumber>& row) {
    const Side side = NamingSide(row);
    const std::string name = RowTitle(plan.Document(side), row.On(side));
    const bool isNamed = !Trim(plan.Document(side).Event(row.On(side)).Name).empty();
    return isNamed || !EventRows().Contains(row.On(side)) || row.Result == kNoRow
               ? name
               : "row " + NumberText(row.Result.Number());
}

} // namespace orvane::review
