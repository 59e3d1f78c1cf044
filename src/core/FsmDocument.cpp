// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FsmDocument.h"

#include <algorithm>
#include <string>

namespace orvane {

bool IsEmpty(const StateRecord& state) {
    const auto emptyCell = [&state](RowNumber row) {
        return state.Targets[row] == kNoState && state.Actions[row].empty();
    };
    return state.Name.empty() && state.Tooltip.empty() && state.EntryCode.empty() && state.ExitCode.empty() &&
           state.TimingMode == 0 && state.TimeConst.empty() && state.TimingVar.empty() &&
           state.TimerId.empty() && std::all_of(CellRows().begin(), CellRows().end(), emptyCell);
}

FsmDocument::FsmDocument(Twips defaultColumnWidth)
    : defaultColumnWidth_(defaultColumnWidth), states_(kStateCount), events_(kCellRowCount) {
    ClearDataBase(false);
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

void FsmDocument::ClearDataBase(bool keepWidths, const TraceSink& trace) {
    const auto mark = [&trace](std::string_view label) {
        if (trace)
            trace(label);
    };
    mark("In ClearDataBase");
    const StateRecord stateTemplate = StateTemplate();
    mark("CDBb");
    const EventRecord eventTemplate = EventTemplate();
    mark("CDBc");
    for (StateRecord& state : states_) {
        const Twips width = keepWidths ? state.ColWidth : defaultColumnWidth_;
        state = stateTemplate;
        state.ColWidth = width;
    }
    mark("CDBd");
    std::fill(events_.begin(), events_.end(), eventTemplate);
    mark("CDBe");
    mark("CDBe1");
    General.LaunchSeg = true;
    int step = 2;
    for (std::string* text : {&General.CodeSeg, &General.HeaderComment, &General.InitSeg, &General.NvEm0Data,
                              &General.TestSeg, &General.FsmName, &General.Instances}) {
        mark("CDBe" + std::to_string(step++));
        text->clear();
    }
    mark("CDBf");
}

} // namespace orvane
