// SPDX-License-Identifier: GPL-3.0-or-later
// What counts as a change of something that the other side removed: a field, a cell that was filled or leads
// elsewhere, a cell of another state that leads there now. Not what removing it would have done as well or
// what is only looks: a cell that was cleared, a move, a width, a cell that leads there no longer.
#include "review/MergePlan.h"
#include "review/ShowText.h"
#include "review/StoredFields.h"

#include <algorithm>

namespace orvane::review {

namespace {

template <const auto& kFields, typename Record>
bool FieldsDiffer(const Record& one, const Record& other) {
    bool differ = false;
    ForEachStoredField<kFields>([&](const auto& field) {
        differ = differ || (!IsOfTheView(field) && one.*field.Member != other.*field.Member);
    });
    return differ;
}

class Presence {
  public:
    explicit Presence(MergePlan& plan) : plan_(plan) {}

    void Decide() {
        for (Node<RowNumber>& row : plan_.Rows.All())
            Decide(row, "event " + TitleOf(plan_, row));
        for (Node<StateNumber>& state : plan_.States.All())
            Decide(state, "state " + TitleOf(plan_, state));
    }

  private:
    template <typename Number>
    void Decide(Node<Number>& node, const std::string& title) {
        if (!node.IsOn(Side::Base))
            return;
        const bool isOurs = node.IsOn(Side::Ours);
        const bool isTheirs = node.IsOn(Side::Theirs);
        if (isOurs && isTheirs)
            return;
        node.Stays = false;
        if (isOurs && Changed(node, Side::Ours)) {
            node.Stays = true;
            Ask(ConflictKind::ChangedHere, node, title + " was removed by theirs and changed by ours");
        } else if (isTheirs && Changed(node, Side::Theirs)) {
            Ask(ConflictKind::RemovedHere, node, title + " was removed by ours and changed by theirs");
        }
    }

    template <typename Number>
    void Ask(ConflictKind kind, const Node<Number>& node, const std::string& what) {
        Conflict conflict;
        conflict.Kind = kind;
        conflict.What = what;
        conflict.Base = ContentOf(node, Side::Base);
        conflict.Ours = ContentOf(node, Side::Ours);
        conflict.Theirs = ContentOf(node, Side::Theirs);
        conflict.Place = PlaceOf(node);
        plan_.Conflicts.push_back(std::move(conflict));
    }

    // The numbers that the merged document will have are not known yet: ours, for now.
    static Cell PlaceOf(const Node<StateNumber>& state) { return {kNoRow, state.On(Side::Ours)}; }
    static Cell PlaceOf(const Node<RowNumber>& row) { return {row.On(Side::Ours), kNoState}; }

    std::string ContentOf(const Node<StateNumber>& state, Side side) const {
        return state.IsOn(side) ? StateContent(plan_.Document(side), state.On(side)) : "";
    }
    std::string ContentOf(const Node<RowNumber>& row, Side side) const {
        return row.IsOn(side) ? EventContent(plan_.Document(side), row.On(side)) : "";
    }

    bool Changed(const Node<StateNumber>& state, Side side) const {
        if (FieldsDiffer<kStateFields>(plan_.Document(Side::Base).State(state.On(Side::Base)),
                                       plan_.Document(side).State(state.On(side))))
            return true;
        const auto changedHere = [&](const Node<RowNumber>& row) { return CellFilled(state, row, side); };
        if (std::any_of(plan_.Rows.All().begin(), plan_.Rows.All().end(), changedHere))
            return true;
        return std::any_of(plan_.States.All().begin(), plan_.States.All().end(),
                           [&](const Node<StateNumber>& other) {
                               return std::any_of(plan_.Rows.All().begin(), plan_.Rows.All().end(),
                                                  [&](const Node<RowNumber>& row) {
                                                      return plan_.TargetOn(side, other, row) == &state &&
                                                             plan_.TargetOn(Side::Base, other, row) != &state;
                                                  });
                           });
    }

    bool Changed(const Node<RowNumber>& row, Side side) const {
        if (FieldsDiffer<kEventFields>(plan_.Document(Side::Base).Event(row.On(Side::Base)),
                                       plan_.Document(side).Event(row.On(side))))
            return true;
        return std::any_of(plan_.States.All().begin(), plan_.States.All().end(),
                           [&](const Node<StateNumber>& state) { return CellFilled(state, row, side); });
    }

    bool CellFilled(const Node<StateNumber>& state, const Node<RowNumber>& row, Side side) const {
        const Node<StateNumber>* target = plan_.TargetOn(side, state, row);
        const std::string& action = plan_.ActionOn(side, state, row);
        return (target && target != plan_.TargetOn(Side::Base, state, row)) ||
               (!action.empty() && action != plan_.ActionOn(Side::Base, state, row));
    }

    MergePlan& plan_;
};

} // namespace

void DecidePresence(MergePlan& plan) { Presence(plan).Decide(); }

} // namespace orvane::review
