// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FsmDocument.h"

#include <algorithm>
#include <string>

namespace orvane {

bool IsEmpty(const StateRecord& state) {
    const auto emptyCell = [&state](int row) {
        return state.Targets[row] == kNoState && state.Actions[row].empty();
    };
    return state.Name.empty() && state.Tooltip.empty() && state.EntryCode.empty() && state.ExitCode.empty() &&
           state.TimingMode == 0 && state.TimeConst.empty() && state.TimingVar.empty() &&
           state.TimerId.empty() && std::all_of(CellRows().begin(), CellRows().end(), emptyCell);
}

FsmDocument::FsmDocument(std::int32_t defaultColumnWidth)
    : defaultColumnWidth_(defaultColumnWidth), states_(kStateCount), events_(kCellRowCount) {
    ClearDataBase(false);
}

StateRecord& FsmDocument::State(int number) {
    RequireInRange(number, StateNumbers(), "state");
    return states_[static_cast<std::size_t>(number - StateNumbers().First())];
}

const StateRecord& FsmDocument::State(int number) const {
    RequireInRange(number, StateNumbers(), "state");
    return states_[static_cast<std::size_t>(number - StateNumbers().First())];
}

EventRecord& FsmDocument::Event(int row) {
    RequireInRange(row, CellRows(), "row");
    return events_[static_cast<std::size_t>(row - CellRows().First())];
}

const EventRecord& FsmDocument::Event(int row) const {
    RequireInRange(row, CellRows(), "row");
    return events_[static_cast<std::size_t>(row - CellRows().First())];
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
        const std::int32_t width = keepWidths ? state.ColWidth : defaultColumnWidth_;
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
