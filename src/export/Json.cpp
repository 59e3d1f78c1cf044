// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RecordFields.h"
#include "export/Exports.h"
#include "export/FieldKey.h"
#include "export/Names.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

#include <type_traits>

namespace orvane::exports {

namespace {

std::string ValueText(const std::string& text) { return JsonStringOfAnsi(text); }
std::string ValueText(bool isOn) { return isOn ? "true" : "false"; }
std::string ValueText(Twips length) { return NumberText(length.Count()); }
template <typename Integer>
std::enable_if_t<std::is_integral_v<Integer>, std::string> ValueText(Integer number) {
    return NumberText(number);
}

class JsonWriter {
  public:
    std::string Write(const FsmDocument& document) {
        Open("{");
        Member("version", "1");
        Machine(document);
        Key("events");
        Open("[");
        for (const RowNumber row : UsedRows(document)) {
            if (!IsEmpty(document.Event(row)))
                Event(document.Event(row), row);
        }
        Close("]");
        Key("states");
        Open("[");
        for (const StateNumber state : StateNumbers()) {
            if (!(document.State(state) == document.StateTemplate()))
                State(document.State(state), state);
        }
        Close("]");
        Close("}");
        return text_ + "\n";
    }

  private:
    void Machine(const FsmDocument& document) {
        Fields(kGeneralFields, document.General);
        Key("view");
        Open("{");
        Fields(kViewFields, document.View);
        Key("rowHeights");
        Open("{");
        Fields(kRowHeightFields, document.View.RowVisible);
        Close("}");
        Close("}");
        Member("defaultColumnWidth", ValueText(document.DefaultColumnWidth()));
    }

    void Event(const EventRecord& event, RowNumber row) {
        Item();
        Open("{");
        Member("row", NumberText(row.Number()));
        Fields(kEventFields, event);
        Close("}");
    }

    void State(const StateRecord& state, StateNumber number) {
        Item();
        Open("{");
        Member("number", NumberText(number.Number()));
        Fields(kStateFields, state);
        Key("cells");
        Open("[");
        for (const RowNumber row : CellRows())
            Cell(state, row);
        Close("]");
        Close("}");
    }

    void Cell(const StateRecord& state, RowNumber row) {
        const StateNumber target = state.Targets[row];
        if (target == kNoState && state.Actions[row].empty())
            return;
        RequireInRange(target, TargetNumbers(), "target");
        Item();
        text_ += "{ \"row\": " + NumberText(row.Number());
        if (target != kNoState)
            text_ += ", \"target\": " + NumberText(target.Number());
        if (!state.Actions[row].empty())
            text_ += ", \"action\": " + JsonStringOfAnsi(state.Actions[row]);
        text_ += " }";
    }

    // Texts that are empty and marks that are off are left out where the document leaves them out, too.
    template <typename Table, typename Record>
    void Fields(const Table& table, const Record& record) {
        ForEachField(table, [&]<typename Value>(const Field<Record, Value>& field) {
            if (field.File.EvenEmpty || !(record.*field.Member == Value()))
                Member(FieldKey(field.Name), ValueText(record.*field.Member));
        });
    }

    void Item() {
        text_ += isFirst_ ? "\n" : ",\n";
        text_.append(2 * depth_, ' ');
        isFirst_ = false;
    }
    void Key(const std::string& key) {
        Item();
        text_ += "\"" + key + "\": ";
    }
    void Member(const std::string& key, const std::string& value) {
        Key(key);
        text_ += value;
    }
    void Open(const char* bracket) {
        text_ += bracket;
        ++depth_;
        isFirst_ = true;
    }
    void Close(const char* bracket) {
        --depth_;
        if (!isFirst_)
            (text_ += '\n').append(2 * depth_, ' ');
        text_ += bracket;
        isFirst_ = false;
    }

    std::string text_;
    std::size_t depth_ = 0;
    bool isFirst_ = true;
};

} // namespace

std::string JsonOf(const FsmDocument& document) { return JsonWriter().Write(document); }

} // namespace orvane::exports
