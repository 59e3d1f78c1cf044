// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FsmDocument.h"

#include "core/RecordFields.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

// Nothing in the fields that an image holds.
template <typename Fields, typename Record>
bool HoldsNothing(const Fields& fields, const Record& record) {
    bool nothing = true;
    ForEachField(fields, [&]<typename Value>(const Field<Record, Value>& field) {
        nothing = nothing && (field.ImagePlace == 0 || record.*field.Member == Value());
    });
    return nothing;
}

} // namespace

bool IsEmpty(const EventRecord& event) { return HoldsNothing(kEventFields, event); }

bool IsEmpty(const StateRecord& state) {
    const auto emptyCell = [&state](RowNumber row) {
        return state.Targets[row] == kNoState && state.Actions[row].empty();
    };
    return HoldsNothing(kStateFields, state) && std::all_of(CellRows().begin(), CellRows().end(), emptyCell);
}

FsmDocument::FsmDocument(Twips defaultColumnWidth)
    : defaultColumnWidth_(defaultColumnWidth), states_(kStateCount), events_(kCellRowCount) {
    for (StateRecord& state : states_)
        state.ColWidth = defaultColumnWidth; // all else of a new record is as clearing leaves it
}

StateRecord& FsmDocument::State(StateNumber number) {
    RequireInRange(number, StateNumbers(), "state");
    return states_[IndexIn(StateNumbers(), number)];
}

const StateRecord& FsmDocument::State(StateNumber number) const {
    RequireInRange(number, StateNumbers(), "state");
    return states_[IndexIn(StateNumbers(), number)];
}

EventRecord& FsmDocument::Event(RowNumber row) {
    RequireInRange(row, CellRows(), "row");
    return events_[IndexIn(CellRows(), row)];
}

const EventRecord& FsmDocument::Event(RowNumber row) const {
    RequireInRange(row, CellRows(), "row");
    return events_[IndexIn(CellRows(), row)];
}

StateRecord FsmDocument::StateTemplate() const {
    StateRecord cleared;
    cleared.ColWidth = defaultColumnWidth_;
    return cleared;
}

void FsmDocument::ClearStates(const StateRecord& cleared, bool keepWidths) {
    for (StateRecord& state : states_) {
        const Twips width = keepWidths ? state.ColWidth : defaultColumnWidth_;
        state = cleared;
        state.ColWidth = width;
    }
}

void FsmDocument::ClearGeneral() {
    GeneralCode cleared;
    cleared.BuildFile = std::move(General.BuildFile);
    General = std::move(cleared);
}

} // namespace orvane
