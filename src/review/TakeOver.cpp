// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/TakeOver.h"

#include "review/Presence.h"
#include "review/SetFields.h"

#include <algorithm>

namespace orvane::review {

namespace {

template <typename Number>
std::optional<Number> FreePlace(const std::vector<Number>& present, Number wanted,
                                NumberRange<Number> range) {
    if (std::find(present.begin(), present.end(), wanted) == present.end())
        return wanted;
    const Number next = present.back() + 1;
    return range.Contains(next) ? std::optional(next) : std::nullopt;
}

class Taker {
  public:
    Taker(const Change& change, const ChangeList& list, FsmDocument& document)
        : change_(change), list_(list), document_(document) {}

    std::optional<std::string> Take() {
        switch (change_.Kind) {
        case ChangeKind::MachineField:
            SetMachineField(document_, change_);
            return std::nullopt;
        case ChangeKind::EventField:
            SetField<kEventFields>(document_.Event(change_.Old.Row), change_);
            return std::nullopt;
        case ChangeKind::StateField:
            SetField<kStateFields>(document_.State(change_.Old.State), change_);
            return std::nullopt;
        case ChangeKind::Target:
            return TakeTarget();
        case ChangeKind::Action:
            document_.State(change_.Old.State).Actions[change_.Old.Row] =
                std::get<std::string>(change_.After);
            return std::nullopt;
        case ChangeKind::EventAdded:
            return AddEvent();
        case ChangeKind::StateAdded:
            return AddState();
        case ChangeKind::EventRemoved:
            RemoveEvent();
            return std::nullopt;
        case ChangeKind::StateRemoved:
            RemoveState();
            return std::nullopt;
        case ChangeKind::BlankWidth:
            document_.State(change_.Old.State).ColWidth = std::get<Twips>(change_.After);
            return std::nullopt;
        case ChangeKind::EventMoved:
        case ChangeKind::StateMoved:
            break;
        }
        return "A move cannot be taken over by itself. Move it in the table";
    }

  private:
    std::optional<std::string> TakeTarget();
    std::optional<std::string> AddEvent();
    std::optional<std::string> AddState();
    void RemoveEvent();
    void RemoveState();
    void PutCell(const CellContent& cell, Cell place, StateNumber self);

    const Change& change_;
    const ChangeList& list_;
    FsmDocument& document_;
};

std::optional<std::string> Taker::TakeTarget() {
    const StateNumber target = std::get<StateNumber>(change_.After);
    if (target != kNoState && !list_.Same.States.HasOld(target))
        return "The transition leads to a state that is not here. Take that state over first";
    document_.State(change_.Old.State).Targets[change_.Old.Row] =
        target == kNoState ? target : list_.Same.States.OldOf(target);
    return std::nullopt;
}

// A target that is not here is left out.
void Taker::PutCell(const CellContent& cell, Cell place, StateNumber self) {
    StateRecord& state = document_.State(place.State);
    state.Actions[place.Row] = cell.Action;
    if (cell.Target == kNoState)
        return;
    state.Targets[place.Row] =
        cell.Target == change_.New.State && self != kNoState ? self : list_.Same.States.OldOf(cell.Target);
}

std::optional<std::string> Taker::AddEvent() {
    const auto row = FreePlace(PresentEvents(document_), change_.New.Row, EventRows());
    if (!row)
        return "There is no room for another event";
    SetFields<kEventFields>(document_.Event(*row), change_.What.Fields);
    for (const CellContent& cell : change_.What.Cells)
        PutCell(cell, {*row, list_.Same.States.OldOf(cell.Place.State)}, kNoState);
    return std::nullopt;
}

std::optional<std::string> Taker::AddState() {
    const auto state = FreePlace(PresentStates(document_), change_.New.State, StateNumbers());
    if (!state)
        return "There is no room for another state";
    SetFields<kStateFields>(document_.State(*state), change_.What.Fields);
    for (const CellContent& cell : change_.What.Cells) {
        if (list_.Same.Rows.HasOld(cell.Place.Row))
            PutCell(cell, {list_.Same.Rows.OldOf(cell.Place.Row), *state}, *state);
    }
    return std::nullopt;
}

void Taker::RemoveEvent() {
    document_.Event(change_.Old.Row) = FsmDocument::EventTemplate();
    for (const StateNumber state : StateNumbers()) {
        document_.State(state).Targets[change_.Old.Row] = kNoState;
        document_.State(state).Actions[change_.Old.Row].clear();
    }
}

void Taker::RemoveState() {
    document_.State(change_.Old.State) = document_.StateTemplate();
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            StateNumber& target = document_.State(state).Targets[row];
            target = target == change_.Old.State ? StateNumber() : target;
        }
    }
}

} // namespace

std::optional<std::string> TakeOver(const Change& change, const ChangeList& list, FsmDocument& document) {
    return Taker(change, list, document).Take();
}

} // namespace orvane::review
