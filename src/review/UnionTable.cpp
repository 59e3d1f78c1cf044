// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/UnionTable.h"

#include "review/InNewOrder.h"
#include "review/Presence.h"
#include "review/Titles.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::review {

namespace {

constexpr const char* kBecomes = " → ";

template <typename Number>
void AddLines(std::vector<UnionLine<Number>>& lines, const PresentOnes<Number>& present,
              const Pairing<Number>& pairing) {
    InNewOrder(
        present, pairing,
        [&](Number went) {
            lines.push_back({went, Number(), '-', false});
        },
        [&](Number oldOne, Number newOne) {
            const char sign = pairing.HasMoved(oldOne) ? '>' : ' ';
            lines.push_back({oldOne, newOne, sign, pairing.IsGuess(oldOne)});
        },
        [&](Number came) {
            lines.push_back({Number(), came, '+', false});
        });
}

template <typename Number>
std::string NumbersText(const UnionLine<Number>& line) {
    std::string text = line.Sign == ' ' ? "" : std::string(1, line.Sign) + " ";
    if (line.Old != Number())
        text += NumberText(line.Old.Number());
    if (line.Old != Number() && line.New != Number() && line.Old != line.New)
        text += kBecomes;
    if (line.New != Number() && line.Old != line.New)
        text += NumberText(line.New.Number());
    return text + (line.IsGuess ? " ?" : "");
}

// Where the line of this change stands; its number is 0 on a side that does not have it.
template <typename Number>
int IndexOfLine(const std::vector<UnionLine<Number>>& lines, Number oldOne, Number newOne) {
    if (oldOne == Number() && newOne == Number())
        return 0;
    const auto isIt = [&](const UnionLine<Number>& line) {
        return newOne != Number() ? line.New == newOne : line.Old == oldOne;
    };
    const auto found = std::find_if(lines.begin(), lines.end(), isIt);
    return found == lines.end() ? 0 : int(found - lines.begin()) + 1;
}

std::string FieldText(const Change& change) {
    switch (change.Kind) {
    case ChangeKind::EventAdded:
    case ChangeKind::StateAdded:
        return "added";
    case ChangeKind::EventRemoved:
    case ChangeKind::StateRemoved:
        return "removed";
    case ChangeKind::EventMoved:
    case ChangeKind::StateMoved:
        return "moved";
    case ChangeKind::BlankWidth:
        return "width of column " + NumberText(change.New.State.Number());
    default:
        return std::string(change.Name);
    }
}

char SignOf(const Change& change) {
    switch (change.Kind) {
    case ChangeKind::EventAdded:
    case ChangeKind::StateAdded:
        return '+';
    case ChangeKind::EventRemoved:
    case ChangeKind::StateRemoved:
        return '-';
    case ChangeKind::EventMoved:
    case ChangeKind::StateMoved:
        return '>';
    default:
        return '~';
    }
}

} // namespace

UnionTable::UnionTable(const DocumentPair& documents, const ChangeList& list)
    : documents_(documents), list_(list) {
    for (const RowNumber row : {kTimeoutRow, kElseRow})
        rows_.push_back({row, row});
    AddLines(rows_, {PresentEvents(documents.Old), PresentEvents(documents.New)}, list.Same.Rows);
    AddLines(columns_, {PresentStates(documents.Old), PresentStates(documents.New)}, list.Same.States);
    for (std::size_t index = 0; index < list.Changes.size(); ++index)
        changes_[PlaceOf(list.Changes[index])].push_back(index);
}

std::string UnionTable::RowNumbers(int row) const {
    return row == 0 || Row(row).Old == kTimeoutRow || Row(row).Old == kElseRow ? "" : NumbersText(Row(row));
}

std::string UnionTable::ColumnNumbers(int column) const {
    return column == 0 ? "" : NumbersText(Column(column));
}

std::string UnionTable::RowName(int row) const {
    if (row == 0)
        return "State";
    const UnionLine<RowNumber>& line = Row(row);
    if (!EventRows().Contains(line.New) && line.New != kNoRow)
        return RowTitle(documents_.New, line.New);
    return OneLine(line.New == kNoRow ? documents_.Old.Event(line.Old).Name
                                      : documents_.New.Event(line.New).Name);
}

std::string UnionTable::ColumnName(int column) const {
    if (column == 0)
        return "Event";
    const UnionLine<StateNumber>& line = Column(column);
    return OneLine(line.New == kNoState ? documents_.Old.State(line.Old).Name
                                        : documents_.New.State(line.New).Name);
}

const std::vector<std::size_t>& UnionTable::ChangesAt(UnionPlace place) const {
    static const std::vector<std::size_t> none;
    const auto found = changes_.find(place);
    return found == changes_.end() ? none : found->second;
}

// A width of an empty column belongs to nobody: it is among those of the machine.
UnionPlace UnionTable::PlaceOf(const Change& change) const {
    if (change.Kind == ChangeKind::BlankWidth)
        return {};
    return {IndexOfLine(rows_, change.Old.Row, change.New.Row),
            IndexOfLine(columns_, change.Old.State, change.New.State)};
}

// The cells of what came or went have no change of their own.
char UnionTable::SignAt(UnionPlace place) const {
    const std::vector<std::size_t>& changes = ChangesAt(place);
    if (!changes.empty())
        return SignOf(list_.Changes[changes.front()]);
    if (!IsTransition(place) || TransitionText(place).empty())
        return ' ';
    for (const char sign : {Row(place.Row).Sign, Column(place.Column).Sign}) {
        if (sign == '+' || sign == '-')
            return sign;
    }
    return ' ';
}

std::string UnionTable::TextAt(UnionPlace place) const {
    return IsTransition(place) ? TransitionText(place) : FieldsText(place);
}

std::string UnionTable::FieldsText(UnionPlace place) const {
    std::string text;
    for (const std::size_t index : ChangesAt(place))
        text += (text.empty() ? "" : ", ") + FieldText(list_.Changes[index]);
    return text;
}

// None where that version has no such cell.
const StateNumber* UnionTable::OldTarget(UnionPlace place) const {
    const RowNumber row = Row(place.Row).Old;
    const StateNumber state = Column(place.Column).Old;
    return row == kNoRow || state == kNoState ? nullptr : &documents_.Old.State(state).Targets[row];
}

const StateNumber* UnionTable::NewTarget(UnionPlace place) const {
    const RowNumber row = Row(place.Row).New;
    const StateNumber state = Column(place.Column).New;
    return row == kNoRow || state == kNoState ? nullptr : &documents_.New.State(state).Targets[row];
}

bool UnionTable::HasAction(UnionPlace place) const {
    const UnionLine<RowNumber>& row = Row(place.Row);
    const UnionLine<StateNumber>& state = Column(place.Column);
    if (NewTarget(place) != nullptr)
        return !documents_.New.State(state.New).Actions[row.New].empty();
    return OldTarget(place) != nullptr && !documents_.Old.State(state.Old).Actions[row.Old].empty();
}

std::string UnionTable::TransitionText(UnionPlace place) const {
    const StateNumber* before = OldTarget(place);
    const StateNumber* after = NewTarget(place);
    std::string text;
    bool actionDiffers = false;
    for (const std::size_t index : ChangesAt(place)) {
        if (list_.Changes[index].Kind == ChangeKind::Target)
            text = StateTitle(documents_.Old, *before) + kBecomes;
        actionDiffers = actionDiffers || list_.Changes[index].Kind == ChangeKind::Action;
    }
    if (after != nullptr && (*after != kNoState || !text.empty()))
        text += StateTitle(documents_.New, *after);
    else if (after == nullptr && before != nullptr && *before != kNoState)
        text += StateTitle(documents_.Old, *before);
    text += HasAction(place) ? "*" : "";
    return actionDiffers ? text + (text.empty() ? "action" : ", action") : text;
}

} // namespace orvane::review
