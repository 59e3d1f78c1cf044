// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RecordFields.h"
#include "export/FieldKey.h"
#include "export/ImportFault.h"
#include "export/JsonValue.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <limits>

namespace orvane::exports {

namespace {

using Type = JsonValue::Type;

class DocumentMaker {
  public:
    explicit DocumentMaker(std::vector<ReaderMessage>& messages) : messages_(messages) {}

    FsmDocument Make(const JsonValue& root) {
        Require(root, Type::Object, "The JSON text is no object, as documents are");
        Twips width = kDefaultColumnWidth;
        for (std::size_t i = 0; i < root.Names.size(); ++i) {
            const std::string& key = root.Names[i];
            const JsonValue& value = root.List[i];
            if (key == "version" && Number(value, 1, std::numeric_limits<int>::max()) != 1)
                throw ImportFault{"The version of the JSON text is one that this program does not know",
                                  value.Line};
            if (key == "defaultColumnWidth")
                Take(value, width);
        }
        FsmDocument document(width);
        for (std::size_t i = 0; i < root.Names.size(); ++i)
            TakeMember(document, root.Names[i], root.List[i]);
        return document;
    }

  private:
    static void Require(const JsonValue& value, Type type, const char* otherwise) {
        if (value.Kind != type)
            throw ImportFault{otherwise, value.Line};
    }

    static int Number(const JsonValue& value, int least, int most) {
        Require(value, Type::Number, "A number is expected here");
        const std::int64_t number = ParseNumber(value.Text);
        if (value.Text.find_first_of(".eE") != std::string::npos || number < least || number > most)
            throw ImportFault{"The number " + value.Text + " is not from " + NumberText(least) + " to " +
                                  NumberText(most),
                              value.Line};
        return int(number);
    }

    static void Take(const JsonValue& value, std::string& text) {
        Require(value, Type::Text, "A text is expected here");
        text = DocumentText(value.Text, value.Line);
    }
    static void Take(const JsonValue& value, bool& isOn) {
        Require(value, Type::Boolean, "true or false is expected here");
        isOn = value.Text == "true";
    }
    static void Take(const JsonValue& value, Twips& length) {
        length = Number(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }
    template <typename Integer>
    static void Take(const JsonValue& value, Integer& number) {
        number =
            Integer(Number(value, std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()));
    }

    // Whether the table has a field of that key.
    template <typename Table, typename Record>
    static bool TakeField(const Table& table, Record& record, const std::string& key,
                          const JsonValue& value) {
        bool found = false;
        ForEachField(table, [&](const auto& field) {
            if (!found && FieldKey(field.Name) == key) {
                Take(value, record.*field.Member);
                found = true;
            }
        });
        return found;
    }

    void TellUnknown(const std::string& key, const JsonValue& value) {
        messages_.push_back(
            {"The member \"" + FromUtf8(key, '?') + "\" is unknown and left out", value.Line});
    }

    void TakeMember(FsmDocument& document, const std::string& key, const JsonValue& value) {
        if (key == "version" || key == "defaultColumnWidth")
            return;
        if (key == "events")
            ForEach(value, [&](const JsonValue& event) { TakeEvent(document, event); });
        else if (key == "states")
            ForEach(value, [&](const JsonValue& state) { TakeState(document, state); });
        else if (key == "view")
            TakeView(document.View, value);
        else if (!TakeField(kGeneralFields, document.General, key, value))
            TellUnknown(key, value);
    }

    template <typename TakeItem>
    static void ForEach(const JsonValue& list, TakeItem take) {
        Require(list, Type::List, "A list is expected here");
        for (const JsonValue& item : list.List) {
            Require(item, Type::Object, "An object is expected here");
            take(item);
        }
    }

    void TakeView(ViewOptions& view, const JsonValue& object) {
        Require(object, Type::Object, "An object is expected here");
        for (std::size_t i = 0; i < object.Names.size(); ++i) {
            const std::string& key = object.Names[i];
            const JsonValue& value = object.List[i];
            if (key == "rowHeights")
                TakeRowHeights(view.RowVisible, value);
            else if (!TakeField(kViewFields, view, key, value))
                TellUnknown(key, value);
        }
    }

    void TakeRowHeights(RowHeights& heights, const JsonValue& object) {
        Require(object, Type::Object, "An object is expected here");
        for (std::size_t i = 0; i < object.Names.size(); ++i) {
            const std::string& key = object.Names[i];
            const JsonValue& value = object.List[i];
            if (!TakeField(kRowHeightFields, heights, key, value))
                TellUnknown(key, value);
        }
    }

    // The number by which an item of a list says which one it is.
    static int Key(const JsonValue& object, const char* name, int least, int most) {
        for (std::size_t i = 0; i < object.Names.size(); ++i) {
            const std::string& key = object.Names[i];
            const JsonValue& value = object.List[i];
            if (key == name)
                return Number(value, least, most);
        }
        throw ImportFault{"The member \"" + std::string(name) + "\" is missing", object.Line};
    }

    void TakeEvent(FsmDocument& document, const JsonValue& object) {
        EventRecord& event = document.Event(Key(object, "row", kFirstCellRow, kLastRow));
        for (std::size_t i = 0; i < object.Names.size(); ++i) {
            const std::string& key = object.Names[i];
            const JsonValue& value = object.List[i];
            if (key != "row" && !TakeField(kEventFields, event, key, value))
                TellUnknown(key, value);
        }
    }

    void TakeState(FsmDocument& document, const JsonValue& object) {
        StateRecord& state = document.State(Key(object, "number", 1, kStateCount));
        for (std::size_t i = 0; i < object.Names.size(); ++i) {
            const std::string& key = object.Names[i];
            const JsonValue& value = object.List[i];
            if (key == "cells")
                ForEach(value, [&](const JsonValue& cell) { TakeCell(state, cell); });
            else if (key != "number" && !TakeField(kStateFields, state, key, value))
                TellUnknown(key, value);
        }
    }

    void TakeCell(StateRecord& state, const JsonValue& object) {
        const RowNumber row = Key(object, "row", kFirstCellRow, kLastRow);
        for (std::size_t i = 0; i < object.Names.size(); ++i) {
            const std::string& key = object.Names[i];
            const JsonValue& value = object.List[i];
            if (key == "target")
                state.Targets[row] = Number(value, kNoState, kStateCount);
            else if (key == "action")
                Take(value, state.Actions[row]);
            else if (key != "row")
                TellUnknown(key, value);
        }
    }

    std::vector<ReaderMessage>& messages_;
};

} // namespace

ImportResult ReadJson(std::string_view utf8) {
    return Guarded(
        [&](std::vector<ReaderMessage>& messages) { return DocumentMaker(messages).Make(ParseJson(utf8)); });
}

} // namespace orvane::exports
