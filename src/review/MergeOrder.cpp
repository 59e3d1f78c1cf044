// SPDX-License-Identifier: GPL-3.0-or-later
// The order is that of one side as a whole, with its empty columns: of the only one that changed it, or of
// the only one that moved something, or else ours. What the other side removed is taken out of it, what only
// the other side has is put behind what it stands behind there.
#include "review/MergePlan.h"
#include "review/ShowText.h"

#include <algorithm>
#include <vector>

namespace orvane::review {

namespace {

template <typename Number>
constexpr NumberRange<Number> OrderedNumbers();
template <>
constexpr StateRange OrderedNumbers<StateNumber>() {
    return StateNumbers();
}
template <>
constexpr RowRange OrderedNumbers<RowNumber>() {
    return EventRows();
}

template <typename Number>
class Orderer {
  public:
    Orderer(MergePlan& plan, Nodes<Number>& nodes, Pairing<Number> Matching::*kind)
        : plan_(plan), nodes_(nodes), kind_(kind), side_(Leader()) {
        for (const Number number : OrderedNumbers<Number>())
            slots_.push_back(nodes_.At(side_, number));
    }

    void Order() {
        std::erase_if(slots_, [](const Node<Number>* node) { return node && !node->Stays; });
        PutIn(OtherSide(side_));
        PutIn(side_); // what stays although the leading side does not count it
        while (!slots_.empty() && !slots_.back())
            slots_.pop_back();
    }

    // Both sides moved something, and to different places.
    bool IsDisputed() const { return Moves(Side::Ours) && Moves(Side::Theirs) && !AgreeOnOrder(); }

    void PutFirst(Node<Number>* node) {
        const auto at = std::find(slots_.begin(), slots_.end(), node);
        if (at != slots_.end())
            std::rotate(slots_.begin(), at, at + 1);
    }

    // Returns what found no room.
    std::vector<Node<Number>*> GiveNumbers() {
        std::vector<Node<Number>*> homeless = MakeRoom();
        Number next = OrderedNumbers<Number>().First();
        for (Node<Number>* node : slots_) {
            if (node)
                node->Result = next;
            ++next;
        }
        return homeless;
    }

  private:
    using Slots = std::vector<Node<Number>*>;

    const Pairing<Number>& PairingOf(Side side) const { return plan_.MatchingOf(side).*kind_; }

    bool Changes(Side side) const {
        return std::any_of(nodes_.All().begin(), nodes_.All().end(), [&](const Node<Number>& node) {
            return node.On(Side::Base) != node.On(side) && (node.IsOn(Side::Base) || node.IsOn(side));
        });
    }
    bool Moves(Side side) const {
        return std::any_of(nodes_.All().begin(), nodes_.All().end(), [&](const Node<Number>& node) {
            return node.IsOn(Side::Base) && node.IsOn(side) && PairingOf(side).HasMoved(node.On(Side::Base));
        });
    }
    bool AgreeOnOrder() const {
        Number last;
        for (const Number number : OrderedNumbers<Number>()) {
            const Node<Number>* node = nodes_.At(Side::Ours, number);
            if (!node || !node->IsOn(Side::Theirs))
                continue;
            if (node->On(Side::Theirs) < last)
                return false;
            last = node->On(Side::Theirs);
        }
        return true;
    }

    Side Leader() const {
        if (!Changes(Side::Ours))
            return Side::Theirs;
        if (!Changes(Side::Theirs))
            return Side::Ours;
        return Moves(Side::Theirs) && !Moves(Side::Ours) ? Side::Theirs : Side::Ours;
    }

    void PutIn(Side side) {
        auto behind = slots_.begin();
        for (const Number number : OrderedNumbers<Number>()) {
            Node<Number>* node = nodes_.At(side, number);
            if (!node || !node->Stays)
                continue;
            auto at = std::find(slots_.begin(), slots_.end(), node);
            if (at == slots_.end())
                at = slots_.insert(behind, node);
            behind = at + 1;
        }
    }

    // Empty places give way, then what is not ours, the last ones first.
    std::vector<Node<Number>*> MakeRoom() {
        constexpr auto numbers = OrderedNumbers<Number>();
        const std::size_t room = IndexIn(numbers, numbers.Last()) + 1;
        std::vector<Node<Number>*> homeless;
        while (slots_.size() > room) {
            auto goes = std::find(slots_.rbegin(), slots_.rend(), nullptr);
            if (goes == slots_.rend())
                goes = std::find_if(slots_.rbegin(), slots_.rend(),
                                    [](const Node<Number>* node) { return !node->IsOn(Side::Ours); });
            if (goes == slots_.rend())
                goes = slots_.rbegin();
            if (*goes)
                homeless.push_back(*goes);
            slots_.erase(goes.base() - 1);
        }
        return homeless;
    }

    MergePlan& plan_;
    Nodes<Number>& nodes_;
    Pairing<Number> Matching::*kind_;
    Side side_;
    Slots slots_;
};

// How many of a kind a document holds, for people.
struct Limit {
    const char* Kind;
    const char* Most;
};

class WholeOrder {
  public:
    explicit WholeOrder(MergePlan& plan) : plan_(plan) {}

    void Decide() {
        Orderer<StateNumber> states(plan_, plan_.States, &Matching::States);
        if (states.IsDisputed())
            plan_.Notes.push_back("both sides moved states; their order is ours");
        states.Order();
        DecideStart(states);
        GiveUp(states.GiveNumbers(), {"state ", "100 states"});
        Orderer<RowNumber> rows(plan_, plan_.Rows, &Matching::Rows);
        if (rows.IsDisputed())
            Ask(ConflictKind::Order,
                "both sides moved events; their order, which is their priority, is ours");
        rows.Order();
        GiveUp(rows.GiveNumbers(), {"event ", "49 events"});
    }

  private:
    void DecideStart(Orderer<StateNumber>& states);
    std::string StartTitle(Side side) const {
        const Node<StateNumber>* start = plan_.States.At(side, 1);
        return start ? TitleOf(plan_, *start) : "none";
    }
    void Ask(ConflictKind kind, const std::string& what) {
        Conflict conflict;
        conflict.Kind = kind;
        conflict.What = what;
        plan_.Conflicts.push_back(std::move(conflict));
    }
    std::string ContentOf(const Node<StateNumber>& state, Side side) const {
        return state.IsOn(side) ? StateContent(plan_.Document(side), state.On(side)) : "";
    }
    std::string ContentOf(const Node<RowNumber>& row, Side side) const {
        return row.IsOn(side) ? EventContent(plan_.Document(side), row.On(side)) : "";
    }
    template <typename Number>
    void GiveUp(const std::vector<Node<Number>*>& homeless, const Limit& limit) {
        for (Node<Number>* node : homeless) {
            node->Stays = false;
            std::string what = limit.Kind;
            what.append(TitleOf(plan_, *node))
                .append(" has no room: a document has at most ")
                .append(limit.Most);
            Ask(ConflictKind::NoRoom, what);
            plan_.Conflicts.back().Theirs = ContentOf(*node, Side::Theirs);
            plan_.Conflicts.back().Ours = ContentOf(*node, Side::Ours);
        }
    }

    MergePlan& plan_;
};

// It is the first state. A side that moved it while the other one did anything may have changed what the
// other one relied on.
void WholeOrder::DecideStart(Orderer<StateNumber>& states) {
    const auto start = [&](Side side) { return plan_.States.At(side, 1); };
    if (start(Side::Ours) == start(Side::Theirs))
        return;
    const bool oursMoved = start(Side::Ours) != start(Side::Base) && plan_.HasChanged(Side::Theirs);
    const bool theirsMoved = start(Side::Theirs) != start(Side::Base) && plan_.HasChanged(Side::Ours);
    if (!oursMoved && !theirsMoved)
        return;
    states.PutFirst(start(Side::Ours));
    Ask(ConflictKind::Start, "the machine starts in " + StartTitle(Side::Ours) + " in ours, in " +
                                 StartTitle(Side::Theirs) + " in theirs");
}

} // namespace

void DecideOrder(MergePlan& plan) { WholeOrder(plan).Decide(); }

} // namespace orvane::review
