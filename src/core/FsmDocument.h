// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/EventRecord.h"
#include "core/GeneralCode.h"
#include "core/StateRecord.h"
#include "core/ViewOptions.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace orvane {

inline constexpr Twips kDefaultColumnWidth = 945;

// One finite-state machine as a table: 100 states, 49 events, a cell at every crossing, and what belongs to
// the machine as a whole. A fresh document is empty, with every column at its default width.
//
// Access is by table number, states 1..100 and rows 4..54. Anything else throws BoundsError and changes
// nothing.
class FsmDocument {
  public:
    explicit FsmDocument(Twips defaultColumnWidth = kDefaultColumnWidth);

    StateRecord& State(StateNumber number);
    const StateRecord& State(StateNumber number) const;
    EventRecord& Event(RowNumber row);
    const EventRecord& Event(RowNumber row) const;

    // The cleared records that clearing, inserting and deleting put in place.
    StateRecord StateTemplate() const;
    static EventRecord EventTemplate() { return {}; }

    // The width of a state column when nothing else says.
    Twips DefaultColumnWidth() const { return defaultColumnWidth_; }

    // Empties states, events and general code; the builder script's path and the view options stay. With
    // keepWidths the columns keep their widths, else they get the default.
    void ClearDataBase(bool keepWidths) {
        ClearDataBase(keepWidths, [](std::string_view) {});
    }

    // The same with a call of mark(label) before each step: the short labels by which a trace of the start
    // tells how far it came.
    template <typename Mark>
    void ClearDataBase(bool keepWidths, Mark mark);

    GeneralCode General;
    ViewOptions View;

    bool operator==(const FsmDocument&) const = default;

  private:
    void ClearStates(const StateRecord& cleared, bool keepWidths);
    void ClearGeneral();

    Twips defaultColumnWidth_;
    // Both have their full size for life. On the heap, because together they are too large for a stack.
    std::vector<StateRecord> states_;
    std::vector<EventRecord> events_;
};

template <typename Mark>
void FsmDocument::ClearDataBase(bool keepWidths, Mark mark) {
    mark("In ClearDataBase");
    const StateRecord stateTemplate = StateTemplate();
    mark("CDBb");
    const EventRecord eventTemplate = EventTemplate();
    mark("CDBc");
    ClearStates(stateTemplate, keepWidths);
    mark("CDBd");
    std::fill(events_.begin(), events_.end(), eventTemplate);
    mark("CDBe");
    mark("CDBe1");
    General.LaunchSeg = GeneralCode().LaunchSeg;
    for (const char* text : {"CDBe2", "CDBe3", "CDBe4", "CDBe5", "CDBe6", "CDBe7", "CDBe8"})
        mark(text);
    ClearGeneral();
    mark("CDBf");
}

} // namespace orvane
