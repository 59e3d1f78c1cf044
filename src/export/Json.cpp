// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RecordFields.h"
#include "export/Exports.h"
#include "export/FieldKey.h"
#include "export/Names.h"
#include "text/Append.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

#include <type_traits>
#include <utility>

namespace orvane::exports {

namespace {

void AppendValue(std::string& json, const std::string& ansi) { AppendJsonStringOfAnsi(json, ansi); }
void AppendValue(std::string& json, bool isOn) { json += isOn ? "true" : "false"; }
void AppendValue(std::string& json, Twips length) { AppendNumber(json, length.Count()); }
void AppendValue(std::string& json, RowNumber row) { AppendNumber(json, row.Number()); }
void AppendValue(std::string& json, StateNumber state) { AppendNumber(json, state.Number()); }
template <typename Integer>
std::enable_if_t<std::is_integral_v<Integer>> AppendValue(std::string& json, Integer number) {
    AppendNumber(json, number);
}

class JsonWriter {
  public:
    std::string Write(const FsmDocument& document) {
        Open("{");
        Member("version", 1);
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
        return std::move(text_ += "\n");
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
        Member("defaultColumnWidth", document.DefaultColumnWidth());
    }

    void Event(const EventRecord& event, RowNumber row) {
        Item();
        Open("{");
        Member("row", row);
        Fields(kEventFields, event);
        Close("}");
    }

    void State(const StateRecord& state, StateNumber number) {
        Item();
        Open("{");
        Member("number", number);
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
        text_ += "{ \"row\": ";
        AppendValue(text_, row);
        if (target != kNoState)
            AppendValue(text_ += ", \"target\": ", target);
        if (!state.Actions[row].empty())
            AppendValue(text_ += ", \"action\": ", state.Actions[row]);
        text_ += " }";
    }

    // Texts that are empty and marks that are off are left out where the document leaves them out, too.
    template <typename Table, typename Record>
    void Fields(const Table& table, const Record& record) {
        ForEachField(table, [&]<typename Value>(const Field<Record, Value>& field) {
            if (field.File.EvenEmpty || !(record.*field.Member == Value()))
                Member(FieldKey(field.Name), record.*field.Member);
        });
    }

    void Item() {
        text_ += isFirst_ ? "\n" : ",\n";
        text_.append(2 * depth_, ' ');
        isFirst_ = false;
    }
    void Key(std::string_view key) {
        Item();
        Append(text_, "\"", key, "\": ");
    }
    template <typename Value>
    void Member(std::string_view key, const Value& value) {
        Key(key);
        AppendValue(text_, value);
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
