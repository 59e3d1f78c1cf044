// SPDX-License-Identifier: GPL-3.0-or-later
// What a merge knows while it goes on: the three documents, which state and event is which in all of them,
// which of them stay, and where.
#pragma once

#include "review/Conflict.h"
#include "review/Match.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace orvane::review {

enum class Side { Base, Ours, Theirs };
inline constexpr std::array kBothSides = {Side::Ours, Side::Theirs};

constexpr Side OtherSide(Side side) { return side == Side::Ours ? Side::Theirs : Side::Ours; }
constexpr std::size_t IndexOf(Side side) { return side == Side::Base ? 0 : side == Side::Ours ? 1 : 2; }

// One state or event, whatever its number is on each side.
template <typename Number>
struct Node {
    std::array<Number, 3> Numbers{}; // by side; 0 where it is not
    bool Stays = true;
    Number Result{}; // its number in the merged document, once that is known

    Number On(Side side) const { return Numbers[IndexOf(side)]; }
    bool IsOn(Side side) const { return On(side) != Number(); }
};

template <typename Number>
class Nodes {
  public:
    static constexpr NumberRange<Number> Numbers() { return NumbersOfKind(Number()); }

    void Add(const Node<Number>& node) {
        for (const Side side : {Side::Base, Side::Ours, Side::Theirs}) {
            if (node.IsOn(side))
                at_[IndexOf(side)][IndexIn(Numbers(), node.On(side))] = all_.size() + 1;
        }
        all_.push_back(node);
    }

    std::vector<Node<Number>>& All() { return all_; }
    const std::vector<Node<Number>>& All() const { return all_; }

    // None where nothing is at that number; the number 0 is nothing.
    const Node<Number>* At(Side side, Number number) const {
        if (number == Number())
            return nullptr;
        const std::size_t place = at_[IndexOf(side)][IndexIn(Numbers(), number)];
        return place == 0 ? nullptr : &all_[place - 1];
    }
    Node<Number>* At(Side side, Number number) {
        const Node<Number>* found = std::as_const(*this).At(side, number);
        return found ? &all_[std::size_t(found - all_.data())] : nullptr;
    }

  private:
    static constexpr std::size_t kCount =
        IndexIn(NumbersOfKind(Number()), NumbersOfKind(Number()).Last()) + 1;

    std::vector<Node<Number>> all_;
    std::array<std::array<std::size_t, kCount>, 3> at_{}; // by side and number the place in all_, from 1
};

struct MergePlan {
    const FsmDocument& Document(Side side) const { return *Documents[IndexOf(side)]; }
    const Matching& MatchingOf(Side side) const { return side == Side::Ours ? ToOurs : ToTheirs; }

    bool HasChanged(Side side) const { return Changed[IndexOf(side)]; }

    // The cell's target, or none; of a place that the side does not have, none too.
    const Node<StateNumber>* TargetOn(Side side, const Node<StateNumber>& state,
                                      const Node<RowNumber>& row) const;
    // The cell's action; empty of a place that the side does not have.
    const std::string& ActionOn(Side side, const Node<StateNumber>& state, const Node<RowNumber>& row) const;

    std::array<const FsmDocument*, 3> Documents; // by side
    Matching ToOurs;                             // from the base
    Matching ToTheirs;
    Nodes<StateNumber> States;
    Nodes<RowNumber> Rows;         // timeout and ELSE, too
    std::array<bool, 3> Changed{}; // by side: anything that is designed
    std::vector<Conflict> Conflicts;
    std::vector<std::string> Notes; // UTF-8: what was decided without asking, because it is only looks
};

// The plan with every state and event in it; all of them stay so far.
MergePlan MakePlan(const FsmDocument& base, const FsmDocument& ours, const FsmDocument& theirs);

// Decides what stays. What one side removed goes, unless the other one changed it: then our answer counts.
void DecidePresence(MergePlan& plan);

// Decides the numbers of what stays; what finds no room does not stay.
void DecideOrder(MergePlan& plan);

// How a state or event is called in what people read: by its number in the merged document, once it has one,
// and our name, or else theirs.
std::string TitleOf(const MergePlan& plan, const Node<StateNumber>& state);
std::string TitleOf(const MergePlan& plan, const Node<RowNumber>& row);

} // namespace orvane::review
