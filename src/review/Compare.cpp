// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Compare.h"

#include "review/DocumentPair.h"
#include "review/InNewOrder.h"
#include "review/Match.h"
#include "review/Presence.h"

#include <array>

namespace orvane::review {

namespace {

class Comparer {
  public:
    Comparer(const DocumentPair& documents, const Matching& matching)
        : old_(documents.Old), new_(documents.New), same_(matching), list_{matching, {}} {}

    ChangeList Compare() {
        CompareMachine();
        InNewOrder(
            PresentOnes<RowNumber>{PresentEvents(old_), PresentEvents(new_)}, same_.Rows,
            [this](RowNumber row) {
                Add({ChangeKind::EventRemoved, {row, kNoState}, {}}, EventContent(old_, row, false));
            },
            [this](RowNumber oldRow, RowNumber newRow) { CompareEvent(oldRow, newRow); },
            [this](RowNumber row) {
                Add({ChangeKind::EventAdded, {}, {row, kNoState}}, EventContent(new_, row, true));
            });
        InNewOrder(
            PresentOnes<StateNumber>{PresentStates(old_), PresentStates(new_)}, same_.States,
            [this](StateNumber state) {
                Add({ChangeKind::StateRemoved, {kNoRow, state}, {}}, StateContent(old_.State(state), state));
            },
            [this](StateNumber oldState, StateNumber newState) { CompareState(oldState, newState); },
            [this](StateNumber state) {
                Add({ChangeKind::StateAdded, {}, {kNoRow, state}}, StateContent(new_.State(state), state));
            });
        CompareBlankWidths();
        return std::move(list_);
    }

  private:
    void Add(Change change, Content what) {
        change.What = std::move(what);
        list_.Changes.push_back(std::move(change));
    }
    template <const auto& kFields, typename Record>
    void CompareFields(const Change& pattern, const Record& oldRecord, const Record& newRecord);
    void CompareMachine();
    void CompareEvent(RowNumber oldRow, RowNumber newRow);
    void CompareState(StateNumber oldState, StateNumber newState);
    void CompareCell(const Change& pattern);
    void CompareBlankWidths();

    Content EventContent(const FsmDocument& document, RowNumber row, bool isNew) const;
    Content StateContent(const StateRecord& record, StateNumber state) const;

    const FsmDocument& old_;
    const FsmDocument& new_;
    const Matching& same_;
    ChangeList list_;
};

template <const auto& kFields, typename Record>
void Comparer::CompareFields(const Change& pattern, const Record& oldRecord, const Record& newRecord) {
    ForEachStoredField<kFields>([&](const auto& field) {
        if (oldRecord.*field.Member == newRecord.*field.Member)
            return;
        Change change = pattern;
        change.Tag = field.File.Tag;
        change.Name = field.Name;
        change.Before = oldRecord.*field.Member;
        change.After = newRecord.*field.Member;
        change.IsOfTheView = IsOfTheView(field);
        list_.Changes.push_back(std::move(change));
    });
}

void Comparer::CompareMachine() {
    CompareFields<kGeneralFields>({ChangeKind::MachineField, {}, {}}, old_.General, new_.General);
    CompareFields<kViewFields>({ChangeKind::MachineField, {}, {}}, old_.View, new_.View);
    CompareFields<kRowHeightFields>({ChangeKind::MachineField, {}, {}}, old_.View.RowVisible,
                                    new_.View.RowVisible);
}

void Comparer::CompareEvent(RowNumber oldRow, RowNumber newRow) {
    Change pattern{ChangeKind::EventMoved, {oldRow, kNoState}, {newRow, kNoState}};
    pattern.IsGuess = same_.Rows.IsGuess(oldRow);
    if (same_.Rows.HasMoved(oldRow))
        list_.Changes.push_back(pattern);
    pattern.Kind = ChangeKind::EventField;
    CompareFields<kEventFields>(pattern, old_.Event(oldRow), new_.Event(newRow));
}

void Comparer::CompareState(StateNumber oldState, StateNumber newState) {
    Change pattern{ChangeKind::StateMoved, {kNoRow, oldState}, {kNoRow, newState}};
    pattern.IsGuess = same_.States.IsGuess(oldState);
    if (same_.States.HasMoved(oldState))
        list_.Changes.push_back(pattern);
    pattern.Kind = ChangeKind::StateField;
    CompareFields<kStateFields>(pattern, old_.State(oldState), new_.State(newState));
    for (const RowNumber newRow : CellRows()) {
        if (!same_.Rows.HasOld(newRow))
            continue;
        pattern.Old.Row = same_.Rows.OldOf(newRow);
        pattern.New.Row = newRow;
        CompareCell(pattern);
    }
}

void Comparer::CompareCell(const Change& pattern) {
    const StateRecord& here = old_.State(pattern.Old.State);
    const StateRecord& there = new_.State(pattern.New.State);
    const StateNumber oldTarget = here.Targets[pattern.Old.Row];
    const StateNumber newTarget = there.Targets[pattern.New.Row];
    const bool isSame =
        same_.NewTarget(oldTarget) == newTarget && (oldTarget == kNoState) == (newTarget == kNoState);
    Change change = pattern;
    if (!isSame) {
        change.Kind = ChangeKind::Target;
        change.Before = oldTarget;
        change.After = newTarget;
        list_.Changes.push_back(change);
    }
    if (here.Actions[pattern.Old.Row] != there.Actions[pattern.New.Row]) {
        change.Kind = ChangeKind::Action;
        change.Before = here.Actions[pattern.Old.Row];
        change.After = there.Actions[pattern.New.Row];
        list_.Changes.push_back(change);
    }
}

// A column that has a state on one side counts there as one of the width that a column has by itself.
void Comparer::CompareBlankWidths() {
    const auto blankWidths = [](const FsmDocument& document) {
        std::array<Twips, kTableColumns> widths;
        for (const StateNumber state : StateNumbers())
            widths[IndexIn(TableColumns(), state)] = document.State(state).ColWidth;
        for (const StateNumber state : PresentStates(document))
            widths[IndexIn(TableColumns(), state)] = document.DefaultColumnWidth();
        return widths;
    };
    const auto oldWidths = blankWidths(old_);
    const auto newWidths = blankWidths(new_);
    for (const StateNumber state : StateNumbers()) {
        Change change{ChangeKind::BlankWidth, {kNoRow, state}, {kNoRow, state}};
        change.Before = oldWidths[IndexIn(TableColumns(), state)];
        change.After = newWidths[IndexIn(TableColumns(), state)];
        change.IsOfTheView = true;
        if (change.Before != change.After)
            list_.Changes.push_back(std::move(change));
    }
}

template <const auto& kFields, typename Record>
std::vector<FieldValue> FieldsOf(const Record& record) {
    std::vector<FieldValue> values;
    ForEachStoredField<kFields>([&](const auto& field) { values.push_back(record.*field.Member); });
    return values;
}

void AddCell(Content& content, const StateRecord& state, Cell place) {
    if (!IsEmptyCell(state, place.Row))
        content.Cells.push_back({place, state.Targets[place.Row], state.Actions[place.Row]});
}

// The cells of states that came or went belong to these.
Content Comparer::EventContent(const FsmDocument& document, RowNumber row, bool isNew) const {
    Content content{FieldsOf<kEventFields>(document.Event(row)), {}};
    for (const StateNumber state : StateNumbers()) {
        if (isNew ? same_.States.HasOld(state) : same_.States.HasNew(state))
            AddCell(content, document.State(state), {row, state});
    }
    return content;
}

Content Comparer::StateContent(const StateRecord& record, StateNumber state) const {
    Content content{FieldsOf<kStateFields>(record), {}};
    for (const RowNumber row : CellRows())
        AddCell(content, record, {row, state});
    return content;
}

} // namespace

ChangeList Compare(const FsmDocument& oldOne, const FsmDocument& newOne, const Matching& matching) {
    return Comparer({oldOne, newOne}, matching).Compare();
}

ChangeList Compare(const FsmDocument& oldOne, const FsmDocument& newOne) {
    return Compare(oldOne, newOne, Match(oldOne, newOne));
}

} // namespace orvane::review
