// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Versions.h"

#include "review/Presence.h"
#include "text/NumberText.h"

#include <algorithm>
#include <vector>

namespace orvane::test {

namespace {

constexpr std::array kWords = {"Idle", "Run",   "Stop",  "Fill",  "Drain", "Heat", "Cool",  "Wait",
                               "Open", "Close", "Alarm", "Start", "Purge", "Test", "Ready", "Error"};

std::string Word(Dice& dice) { return kWords[std::size_t(Roll(dice, int(kWords.size())))]; }

std::string Code(Dice& dice) {
    std::string code;
    const int lines = 1 + Roll(dice, 4);
    for (int line = 0; line < lines; ++line)
        code += (line == 0 ? "" : "\r\n") + ("\t" + Word(dice)) + "\t" + NumberText(Roll(dice, 1000));
    return code;
}

std::string NewName(Version& version, Dice& dice) { return Word(dice) + "_" + NumberText(++version.LastId); }

// One more line, one line less or another one.
std::string EditedCode(const std::string& code, Dice& dice) {
    if (code.empty() || Roll(dice, 3) == 0)
        return Code(dice);
    return Roll(dice, 2) == 0 ? code + "\r\n" + Code(dice) : ";" + Word(dice) + "\r\n" + code;
}

std::vector<StateNumber> StatesOf(const Version& version) {
    std::vector<StateNumber> states;
    for (const StateNumber state : StateNumbers()) {
        if (version.StateIds[IndexIn(TableColumns(), state)] != 0)
            states.push_back(state);
    }
    return states;
}

std::vector<RowNumber> EventsOf(const Version& version) {
    std::vector<RowNumber> rows;
    for (const RowNumber row : EventRows()) {
        if (version.EventIds[IndexIn(TableRows(), row)] != 0)
            rows.push_back(row);
    }
    return rows;
}

template <typename Item>
Item AnyOf(const std::vector<Item>& items, Dice& dice) {
    return items[std::size_t(Roll(dice, int(items.size())))];
}

// Gives the columns, or the rows, a new order: newAt says for each number which one stands there from now on,
// 0 for an empty one.
using Order = std::vector<int>;

void OrderStates(Version& version, const Order& newAt) {
    const Version before = version;
    std::array<int, kTableColumns> newOf{};
    for (int number = 1; number <= kStateCount; ++number)
        newOf[std::size_t(newAt[std::size_t(number)])] = number;
    newOf[0] = 0;
    for (int number = 1; number <= kStateCount; ++number) {
        const int from = newAt[std::size_t(number)];
        StateRecord& state = version.Document.State(number);
        state = from == 0 ? before.Document.StateTemplate() : before.Document.State(from);
        version.StateIds[std::size_t(number)] = before.StateIds[std::size_t(from)];
        for (const RowNumber row : CellRows())
            state.Targets[row] = newOf[std::size_t(state.Targets[row].Number())];
    }
}

void OrderEvents(Version& version, const Order& newAt) {
    const Version before = version;
    for (const RowNumber row : EventRows()) {
        const int from = newAt[std::size_t(row.Number())];
        version.Document.Event(row) = from == 0 ? EventRecord() : before.Document.Event(from);
        version.EventIds[IndexIn(TableRows(), row)] = before.EventIds[std::size_t(from)];
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& old = before.Document.State(state);
            version.Document.State(state).Targets[row] = from == 0 ? StateNumber() : old.Targets[from];
            version.Document.State(state).Actions[row] = from == 0 ? "" : old.Actions[from];
        }
    }
}

Order PresentOrder(int last) {
    Order order(std::size_t(last) + 1);
    for (int number = 0; number <= last; ++number)
        order[std::size_t(number)] = number;
    return order;
}

void PutIn(Order& order, int place) {
    order.insert(order.begin() + place, 0);
    order.pop_back();
}

void TakeOut(Order& order, int place) {
    order.erase(order.begin() + place);
    order.push_back(0);
}

void Move(Order& order, int from, int to) {
    const int moved = order[std::size_t(from)];
    order.erase(order.begin() + from);
    order.insert(order.begin() + to, moved);
}

void SetCell(Version& version, Dice& dice) {
    StateRecord& state = version.Document.State(AnyOf(StatesOf(version), dice));
    std::vector<RowNumber> rows = EventsOf(version);
    rows.push_back(kElseRow);
    state.Targets[AnyOf(rows, dice)] = AnyOf(StatesOf(version), dice);
}

void SetAction(Version& version, Dice& dice) {
    StateRecord& state = version.Document.State(AnyOf(StatesOf(version), dice));
    std::string& action = state.Actions[AnyOf(EventsOf(version), dice)];
    action = EditedCode(action, dice);
}

void ClearCell(Version& version, Dice& dice) {
    StateRecord& state = version.Document.State(AnyOf(StatesOf(version), dice));
    const RowNumber row = AnyOf(EventsOf(version), dice);
    state.Targets[row] = kNoState;
    state.Actions[row].clear();
}

void SetTiming(StateRecord& state, Dice& dice) {
    state.TimingMode = 1 + Roll(dice, 4);
    state.TimeConst = NumberText(Roll(dice, 500));
}

void InsertState(Version& version, Dice& dice) {
    const std::vector<StateNumber> states = StatesOf(version);
    if (states.back() == kStateCount || states.size() > 90)
        return;
    const int place = AnyOf(states, dice).Number() + Roll(dice, 2);
    Order order = PresentOrder(kStateCount);
    PutIn(order, place);
    OrderStates(version, order);
    version.StateIds[std::size_t(place)] = ++version.LastId;
    StateRecord& state = version.Document.State(place);
    state.Name = NewName(version, dice);
    state.EntryCode = Code(dice);
    for (int cell = Roll(dice, 4); cell >= 0; --cell)
        state.Targets[AnyOf(EventsOf(version), dice)] = AnyOf(StatesOf(version), dice);
}

void DeleteState(Version& version, Dice& dice) {
    const std::vector<StateNumber> states = StatesOf(version);
    if (states.size() < 3)
        return;
    Order order = PresentOrder(kStateCount);
    TakeOut(order, AnyOf(states, dice).Number());
    OrderStates(version, order);
}

void MoveState(Version& version, Dice& dice) {
    const std::vector<StateNumber> states = StatesOf(version);
    Order order = PresentOrder(kStateCount);
    Move(order, AnyOf(states, dice).Number(), AnyOf(states, dice).Number());
    OrderStates(version, order);
}

void InsertEvent(Version& version, Dice& dice) {
    const std::vector<RowNumber> rows = EventsOf(version);
    if (rows.back() == kLastRow)
        return;
    const int place = AnyOf(rows, dice).Number() + Roll(dice, 2);
    Order order = PresentOrder(kLastRow);
    PutIn(order, place);
    OrderEvents(version, order);
    version.EventIds[std::size_t(place)] = ++version.LastId;
    version.Document.Event(place).Name = NewName(version, dice);
    version.Document.Event(place).Code = Code(dice);
    for (int cell = Roll(dice, 4); cell > 0; --cell)
        version.Document.State(AnyOf(StatesOf(version), dice)).Targets[place] =
            AnyOf(StatesOf(version), dice);
}

void DeleteEvent(Version& version, Dice& dice) {
    const std::vector<RowNumber> rows = EventsOf(version);
    if (rows.size() < 3)
        return;
    Order order = PresentOrder(kLastRow);
    TakeOut(order, AnyOf(rows, dice).Number());
    OrderEvents(version, order);
}

void MoveEvent(Version& version, Dice& dice) {
    const std::vector<RowNumber> rows = EventsOf(version);
    Order order = PresentOrder(kLastRow);
    Move(order, AnyOf(rows, dice).Number(), AnyOf(rows, dice).Number());
    OrderEvents(version, order);
}

void RenameEvent(Version& version, Dice& dice) {
    EventRecord& event = version.Document.Event(AnyOf(EventsOf(version), dice));
    if (Roll(dice, 2) == 0)
        event.Name = NewName(version, dice);
    else
        event.Code = EditedCode(event.Code, dice);
}

void SetGeneralCode(FsmDocument& document, Dice& dice) {
    constexpr std::array texts = {&GeneralCode::HeaderComment, &GeneralCode::InitSeg, &GeneralCode::CodeSeg,
                                  &GeneralCode::TestSeg};
    std::string& text = document.General.*texts[std::size_t(Roll(dice, int(texts.size())))];
    text = EditedCode(text, dice);
}

void SetView(Version& version, Dice& dice) {
    if (Roll(dice, 2) == 0)
        version.Document.State(AnyOf(StatesOf(version), dice)).ColWidth = 600 + Roll(dice, 900);
    else
        version.Document.View.ShowElse = !version.Document.View.ShowElse;
}

void SetTextOfState(Version& version, Dice& dice) {
    StateRecord& state = version.Document.State(AnyOf(StatesOf(version), dice));
    switch (Roll(dice, 5)) {
    case 0:
        state.Name = NewName(version, dice);
        return;
    case 1:
        state.Tooltip = Word(dice) + " " + Word(dice);
        return;
    case 2:
        return SetTiming(state, dice);
    default:
        state.EntryCode = EditedCode(state.EntryCode, dice);
    }
}

} // namespace

int Roll(Dice& dice, int count) { return int(dice() % unsigned(count)); }

Version RandomMachine(Dice& dice, const MachineShape& shape) {
    Version version;
    const int states = 2 + Roll(dice, shape.MostStates - 1);
    const int events = 2 + Roll(dice, shape.MostEvents - 1);
    for (int row = kFirstEventRow; row < kFirstEventRow + events; ++row) {
        version.EventIds[std::size_t(row)] = ++version.LastId;
        const bool blank = Roll(dice, 100) < shape.BlankNames;
        version.Document.Event(row).Name = blank ? "" : NewName(version, dice);
        version.Document.Event(row).Code = blank ? "" : Code(dice);
    }
    for (int number = 1; number <= states; ++number) {
        version.StateIds[std::size_t(number)] = ++version.LastId;
        StateRecord& state = version.Document.State(number);
        state.Name = Roll(dice, 100) < shape.BlankNames ? "" : NewName(version, dice);
        state.EntryCode = Code(dice);
        for (int row = kFirstEventRow; row < kFirstEventRow + events; ++row) {
            if (Roll(dice, 3) == 0)
                state.Targets[row] = 1 + Roll(dice, states);
            if (Roll(dice, 6) == 0)
                state.Actions[row] = Code(dice);
        }
        if (Roll(dice, 4) == 0)
            SetTiming(state, dice);
    }
    return version;
}

Version VersionOf(const FsmDocument& document) {
    Version version;
    version.Document = document;
    for (const StateNumber state : review::PresentStates(document))
        version.StateIds[IndexIn(TableColumns(), state)] = ++version.LastId;
    for (const RowNumber row : review::PresentEvents(document))
        version.EventIds[IndexIn(TableRows(), row)] = ++version.LastId;
    return version;
}

void EditAtRandom(Version& version, Dice& dice) {
    using Edit = void (*)(Version&, Dice&);
    struct Weighted {
        int Weight;
        Edit Do;
    };
    constexpr std::array edits = {
        Weighted{25, SetCell},
        Weighted{15, SetAction},
        Weighted{6, ClearCell},
        Weighted{20, SetTextOfState},
        Weighted{6, InsertState},
        Weighted{4, DeleteState},
        Weighted{5, MoveState},
        Weighted{4, InsertEvent},
        Weighted{3, DeleteEvent},
        Weighted{3, MoveEvent},
        Weighted{5, RenameEvent},
        Weighted{2, SetView},
        Weighted{4, [](Version& changed, Dice& rolled) { SetGeneralCode(changed.Document, rolled); }}};
    int all = 0;
    for (const Weighted& edit : edits)
        all += edit.Weight;
    int chosen = Roll(dice, all);
    for (const Weighted& edit : edits) {
        chosen -= edit.Weight;
        if (chosen < 0)
            return edit.Do(version, dice);
    }
}

review::Matching TrueMatching(const Version& oldOne, const Version& newOne) {
    review::Matching matching;
    for (const StateNumber state : review::PresentStates(oldOne.Document)) {
        for (const StateNumber other : review::PresentStates(newOne.Document)) {
            if (oldOne.StateIds[IndexIn(TableColumns(), state)] ==
                newOne.StateIds[IndexIn(TableColumns(), other)])
                matching.States.Join(state, other);
        }
    }
    for (const RowNumber row : review::PresentEvents(oldOne.Document)) {
        for (const RowNumber other : review::PresentEvents(newOne.Document)) {
            if (oldOne.EventIds[IndexIn(TableRows(), row)] == newOne.EventIds[IndexIn(TableRows(), other)])
                matching.Rows.Join(row, other);
        }
    }
    matching.States.MarkMoves();
    matching.Rows.MarkMoves();
    return matching;
}

} // namespace orvane::test
