// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentWriter.h"

#include "core/DocumentTags.h"
#include "core/RecordFields.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <string_view>

namespace orvane {

namespace {

constexpr std::string_view kBehindNumber = ":";
constexpr std::string_view kTopLevel = "";
constexpr std::string_view kInSection = "  ";
constexpr std::string_view kInCellList = "    ";

std::string_view ValueText(const FieldInFile&, const std::string& text) { return text; }
std::string ValueText(const FieldInFile&, std::int32_t number) { return NumberText(number); }
std::string ValueText(const FieldInFile&, Twips length) { return NumberText(length.Count()); }
std::string ValueText(const FieldInFile& file, bool mark) {
    if (file.AsDigit)
        return mark ? "1" : "0";
    return mark ? "True" : "False";
}

class Writer {
  public:
    explicit Writer(const FsmDocument& document) : document_(document) {}

    std::string Write() {
        WriteGeneral();
        WriteRowHeights();
        for (const RowNumber row : EventRows())
            WriteEvent(row);
        for (const StateNumber state : StateNumbers())
            WriteState(state);
        return std::move(bytes_);
    }

  private:
    void WriteGeneral();
    void WriteRowHeights();
    void WriteEvent(RowNumber row);
    void WriteState(StateNumber number);
    void WriteCells(const StateRecord& state);
    bool IsStored(const StateRecord& record) const {
        return !IsEmpty(record) || record.ColWidth != document_.DefaultColumnWidth();
    }

    // A line that opens or closes something and carries no value.
    void Marker(std::string_view indent, std::string_view tag) {
        bytes_.append(indent).append(kTagOpen).append(tag).append(">").append(kLineEnd);
    }
    template <typename... Pieces>
    void Field(std::string_view indent, std::string_view tag, const Pieces&... value) {
        bytes_.append(indent).append(kTagOpen).append(tag) += '>';
        (bytes_.append(std::string_view(value)), ...);
        bytes_.append(kValueEnd).append(kLineEnd);
    }
    // The record's fields, each in a line of its own.
    template <const auto& kFields, typename Record>
    void Fields(const Record& record) {
        ForEachFieldInOrder<kFields, FieldOrder::File>(
            [&]<typename Value>(const orvane::Field<Record, Value>& field) {
                WriteValue(kInSection, field, record.*field.Member);
            });
    }
    template <typename Record, typename Value>
    void WriteValue(std::string_view indent, const orvane::Field<Record, Value>& field, const Value& value) {
        if (field.File.EvenEmpty || value != Value())
            Field(indent, field.File.Tag, ValueText(field.File, value));
    }

    const FsmDocument& document_;
    std::string bytes_;
};

void Writer::WriteGeneral() {
    ForEachFieldInOrder<kMachineFields, FieldOrder::File>(
        [this](const auto& field) { WriteValue(kTopLevel, field, PartOf(document_, field).*field.Member); });
}

void Writer::WriteRowHeights() {
    Field(kTopLevel, tag::kRowVisible);
    Fields<kRowHeightFields>(document_.View.RowVisible);
    Field(kTopLevel, tag::kRowVisibleEnd);
}

void Writer::WriteEvent(RowNumber row) {
    const EventRecord& event = document_.Event(row);
    if (IsEmpty(event))
        return;
    Field(kTopLevel, tag::kEvent, NumberText(row.Number()), kBehindNumber);
    Fields<kEventFields>(event);
    Field(kTopLevel, tag::kEventEnd);
}

void Writer::WriteState(StateNumber number) {
    const StateRecord& state = document_.State(number);
    if (!IsStored(state))
        return;
    Field(kTopLevel, tag::kState, NumberText(number.Number()), kBehindNumber);
    Fields<kStateFields>(state);
    WriteCells(state);
    Marker(kTopLevel, tag::kStateEnd);
}

void Writer::WriteCells(const StateRecord& state) {
    bool listOpen = false;
    const auto cellField = [&](std::string_view tag, RowNumber row, std::string_view value) {
        if (!listOpen)
            Marker(kInSection, tag::kTransitions);
        listOpen = true;
        Field(kInCellList, tag, NumberText(row.Number()), kBehindNumber, value);
    };
    for (const RowNumber row : CellRows()) {
        if (state.Targets[row] != kNoState)
            cellField(tag::kTarget, row, NumberText(state.Targets[row].Number()));
        if (!state.Actions[row].empty())
            cellField(tag::kAction, row, state.Actions[row]);
    }
    if (listOpen)
        Field(kInSection, tag::kTransitionsEnd);
}

} // namespace

std::string WriteDocument(const FsmDocument& document) { return Writer(document).Write(); }

} // namespace orvane
