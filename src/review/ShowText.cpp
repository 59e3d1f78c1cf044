// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ShowText.h"

#include "review/LineDiff.h"
#include "review/Presence.h"
#include "review/Titles.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <map>

namespace orvane::review {

namespace {

std::string Label(std::string_view name, int number, bool isUnique) {
    const std::string shown = OneLine(Trim(name));
    return isUnique && !shown.empty() ? shown : shown + (shown.empty() ? "#" : " #") + NumberText(number);
}

class Shower {
  public:
    explicit Shower(const FsmDocument& document)
        : document_(document), states_(PresentStates(document)), events_(PresentEvents(document)) {
        for (const StateNumber state : states_)
            ++stateNames_[std::string(Trim(document.State(state).Name))];
        for (const RowNumber row : events_)
            ++eventNames_[std::string(Trim(document.Event(row).Name))];
    }

    std::string Show() {
        ShowMachine();
        RowNumber nextRow = kFirstEventRow;
        for (const RowNumber row : events_) {
            ShowGap("row", row - nextRow);
            ShowEvent(row);
            nextRow = row + 1;
        }
        StateNumber nextState = 1;
        for (const StateNumber state : states_) {
            ShowGap("column", state - nextState);
            ShowState(state);
            nextState = state + 1;
        }
        ShowBlankWidths();
        return std::move(text_);
    }

    std::string ShowOnly(StateNumber state) {
        ShowState(state);
        return std::move(text_);
    }
    std::string ShowOnly(RowNumber row) {
        ShowEvent(row);
        for (const StateNumber state : states_) {
            const StateRecord& record = document_.State(state);
            if (IsEmptyCell(record, row))
                continue;
            Line("  in " + NameOf(state) + LeadsTo(record.Targets[row]));
            Code(4, record.Actions[row]);
        }
        return std::move(text_);
    }

  private:
    std::string LeadsTo(StateNumber target) const {
        return target == kNoState ? ", stay" : " -> " + NameOf(target);
    }
    std::string NameOf(StateNumber state) const {
        const std::string& name = document_.State(state).Name;
        return Label(name, state.Number(), stateNames_.at(std::string(Trim(name))) == 1);
    }
    std::string NameOf(RowNumber row) const {
        if (row == kTimeoutRow || row == kElseRow)
            return RowTitle(document_, row);
        const std::string& name = document_.Event(row).Name;
        return Label(name, row.Number(), eventNames_.at(std::string(Trim(name))) == 1);
    }

    void Line(const std::string& line) { text_ += line + "\n"; }
    void Code(std::size_t indent, const std::string& text) {
        for (const std::string_view line : LinesOf(text))
            Line(std::string(indent, ' ') + CodeLine(line));
    }

    // Names are shown trimmed; one with blanks at its ends is shown once more as it is.
    template <typename Field>
    void ShowField(const Field& field, const std::string& value) {
        const bool isName = field.File.Tag == tag::kName || field.File.Tag == tag::kFsmName;
        if (isName && Trim(value) == value)
            return;
        if (isName)
            return Line("  " + std::string(field.Name) + ": \"" + OneLine(value) + "\"");
        if (!IsCode(field.File.Tag))
            return Line("  " + std::string(field.Name) + ": " + OneLine(value));
        Line("  " + std::string(field.Name) + ":");
        Code(4, value);
    }
    template <typename Field, typename Value>
    void ShowField(const Field& field, const Value& value) {
        Line("  " + std::string(field.Name) + ": " + ValueTitle(document_, value));
    }

    // Those that are other than in a fresh document.
    template <const auto& kFields, typename Record>
    void ShowFields(const Record& record, const Record& fresh) {
        ForEachStoredField<kFields>([&](const auto& field) {
            if (record.*field.Member != fresh.*field.Member)
                ShowField(field, record.*field.Member);
        });
    }

    void ShowMachine();
    void ShowEvent(RowNumber row);
    void ShowState(StateNumber state);
    void ShowGap(const char* what, int count);
    void ShowBlankWidths();

    const FsmDocument& document_;
    std::vector<StateNumber> states_;
    std::vector<RowNumber> events_;
    std::map<std::string, int> stateNames_;
    std::map<std::string, int> eventNames_;
    std::string text_;
};

void Shower::ShowMachine() {
    Line("machine " + OneLine(document_.General.FsmName));
    ShowFields<kGeneralFields>(document_.General, GeneralCode());
    ShowFields<kViewFields>(document_.View, ViewOptions());
    ShowFields<kRowHeightFields>(document_.View.RowVisible, RowHeights());
}

void Shower::ShowEvent(RowNumber row) {
    Line("event " + NameOf(row));
    ShowFields<kEventFields>(document_.Event(row), FsmDocument::EventTemplate());
}

void Shower::ShowState(StateNumber state) {
    const StateRecord& record = document_.State(state);
    Line("state " + NameOf(state));
    ShowFields<kStateFields>(record, document_.StateTemplate());
    for (const RowNumber row : CellRows()) {
        if (IsEmptyCell(record, row))
            continue;
        Line("  on " + NameOf(row) + LeadsTo(record.Targets[row]));
        Code(4, record.Actions[row]);
    }
}

void Shower::ShowGap(const char* what, int count) {
    for (; count > 0; --count)
        Line(std::string("empty ") + what);
}

void Shower::ShowBlankWidths() {
    for (const StateNumber state : StateNumbers()) {
        const Twips width = document_.State(state).ColWidth;
        if (std::find(states_.begin(), states_.end(), state) == states_.end() &&
            width != document_.DefaultColumnWidth())
            Line("empty column #" + NumberText(state.Number()) + ", width: " + NumberText(width.Count()));
    }
}

std::string AsDocumentText(std::string_view utf8) {
    std::string text;
    for (const char byte : FromUtf8(utf8, '?'))
        text.append(byte == '\n' ? kLineEnd : std::string_view(&byte, 1));
    if (text.ends_with(kLineEnd))
        text.resize(text.size() - kLineEnd.size());
    return text;
}

} // namespace

std::string ShowText(const FsmDocument& document) { return Shower(document).Show(); }

std::string StateContent(const FsmDocument& document, StateNumber state) {
    return AsDocumentText(Shower(document).ShowOnly(state));
}

std::string EventContent(const FsmDocument& document, RowNumber row) {
    return AsDocumentText(Shower(document).ShowOnly(row));
}

} // namespace orvane::review
