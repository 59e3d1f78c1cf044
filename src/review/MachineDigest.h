// SPDX-License-Identifier: GPL-3.0-or-later
// A document as it is compared with another version of itself: texts as numbers, and what is not written down
// in it, such as which cells lead to a state.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "review/TextIds.h"

#include <deque>
#include <vector>

namespace orvane::review {

// A state or event without its cells. Texts are ids of TextIds.
template <typename Number>
struct RecordDigest {
    bool IsPresent = false;
    int Name = TextIds::kNoText; // without blanks at the ends
    std::vector<int> Fields;     // what is designed of it, in the order of the table of fields
    int Widths = 0;              // fields of the view together
    Number Before;               // the neighbours among those that are present; 0 is none
    Number After;
    int Place = 0; // among those that are present, from 1
};

struct StateDigest : RecordDigest<StateNumber> {
    RowArray<int> Actions;
    RowArray<StateNumber> Targets;
    std::vector<Cell> LedFrom; // the cells of other states that lead here
};

struct EventDigest : RecordDigest<RowNumber> {
    int Code = TextIds::kNoText;
};

class MachineDigest {
  public:
    // Both must outlive it. Two digests are only comparable when they have the same ids.
    MachineDigest(const FsmDocument& document, TextIds& ids);

    const StateDigest& State(StateNumber number) const { return states_[IndexIn(StateNumbers(), number)]; }
    const EventDigest& Event(RowNumber row) const { return events_[row]; }
    const std::vector<StateNumber>& States() const { return present_; }
    const std::vector<RowNumber>& Events() const { return presentEvents_; }

  private:
    StateDigest& Of(StateNumber number) { return states_[IndexIn(StateNumbers(), number)]; }
    void ReadState(const StateRecord& state, StateDigest& digest);
    void ReadEvent(const EventRecord& event, EventDigest& digest);
    void ReadLedFrom();
    int IdOf(const std::string& text) { return ids_.Of(text); }
    int IdOf(std::int32_t number);

    TextIds& ids_;
    std::vector<StateDigest> states_;
    RowArray<EventDigest> events_;
    std::vector<StateNumber> present_;
    std::vector<RowNumber> presentEvents_;
    std::deque<std::string> numberTexts_;
};

} // namespace orvane::review
