// SPDX-License-Identifier: GPL-3.0-or-later
// First everything that is in both documents is put where it stands in the new one, then the changes are made
// there.
#include "review/Apply.h"

#include "review/Presence.h"
#include "review/SetFields.h"

#include <array>

namespace orvane::review {

namespace {

class Applier {
  public:
    Applier(const ChangeList& list, const FsmDocument& oldOne)
        : list_(list), old_(oldOne), new_(oldOne.DefaultColumnWidth()) {
        for (const StateNumber state : StateNumbers())
            hasStateNow_[IndexIn(StateNumbers(), state)] = list.Same.States.HasOld(state);
        for (const Change& change : list.Changes) {
            if (change.Kind == ChangeKind::StateAdded)
                hasStateNow_[IndexIn(StateNumbers(), change.New.State)] = true;
        }
    }

    FsmDocument Apply() {
        new_.General = old_.General;
        new_.View = old_.View;
        for (const RowNumber row : EventRows()) {
            if (list_.Same.Rows.HasNew(row))
                new_.Event(list_.Same.Rows.NewOf(row)) = old_.Event(row);
        }
        for (const StateNumber state : StateNumbers()) {
            if (list_.Same.States.HasNew(state))
                PutState(old_.State(state), new_.State(list_.Same.States.NewOf(state)));
        }
        KeepBlankWidths();
        for (const Change& change : list_.Changes)
            Make(change);
        return std::move(new_);
    }

  private:
    void PutState(const StateRecord& from, StateRecord& to) const;
    void KeepBlankWidths();
    void Make(const Change& change);
    void PutCells(const std::vector<CellContent>& cells);
    bool IsBlankNow(StateNumber state) const { return !hasStateNow_[IndexIn(StateNumbers(), state)]; }

    const ChangeList& list_;
    const FsmDocument& old_;
    FsmDocument new_;
    std::array<bool, kStateCount> hasStateNow_{};
};

void Applier::PutState(const StateRecord& from, StateRecord& to) const {
    to = from;
    to.Targets = {};
    to.Actions = {};
    for (const RowNumber row : CellRows()) {
        if (!list_.Same.Rows.HasNew(row))
            continue;
        to.Targets[list_.Same.Rows.NewOf(row)] = list_.Same.NewTarget(from.Targets[row]);
        to.Actions[list_.Same.Rows.NewOf(row)] = from.Actions[row];
    }
}

void Applier::KeepBlankWidths() {
    std::array<bool, kTableColumns> hasState{};
    for (const StateNumber state : PresentStates(old_))
        hasState[IndexIn(TableColumns(), state)] = true;
    for (const StateNumber state : StateNumbers()) {
        if (IsBlankNow(state) && !hasState[IndexIn(TableColumns(), state)])
            new_.State(state).ColWidth = old_.State(state).ColWidth;
    }
}

void Applier::Make(const Change& change) {
    switch (change.Kind) {
    case ChangeKind::MachineField:
        return SetMachineField(new_, change);
    case ChangeKind::EventAdded:
        SetFields<kEventFields>(new_.Event(change.New.Row), change.What.Fields);
        return PutCells(change.What.Cells);
    case ChangeKind::EventField:
        return SetField<kEventFields>(new_.Event(change.New.Row), change);
    case ChangeKind::StateAdded:
        SetFields<kStateFields>(new_.State(change.New.State), change.What.Fields);
        return PutCells(change.What.Cells);
    case ChangeKind::StateField:
        return SetField<kStateFields>(new_.State(change.New.State), change);
    case ChangeKind::Target:
        new_.State(change.New.State).Targets[change.New.Row] = std::get<StateNumber>(change.After);
        return;
    case ChangeKind::Action:
        new_.State(change.New.State).Actions[change.New.Row] = std::get<std::string>(change.After);
        return;
    case ChangeKind::BlankWidth: // of a column that has a state now it says nothing
        if (IsBlankNow(change.New.State))
            new_.State(change.New.State).ColWidth = std::get<Twips>(change.After);
        return;
    case ChangeKind::EventRemoved: // was not put into the new document
    case ChangeKind::EventMoved:   // stands where it is in both
    case ChangeKind::StateRemoved:
    case ChangeKind::StateMoved:
        return;
    }
}

void Applier::PutCells(const std::vector<CellContent>& cells) {
    for (const CellContent& cell : cells) {
        new_.State(cell.Place.State).Targets[cell.Place.Row] = cell.Target;
        new_.State(cell.Place.State).Actions[cell.Place.Row] = cell.Action;
    }
}

} // namespace

FsmDocument Applied(const ChangeList& list, const FsmDocument& oldOne) {
    return Applier(list, oldOne).Apply();
}

} // namespace orvane::review
