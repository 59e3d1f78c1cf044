// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentTexts.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

template <typename Document>
auto& TextIn(Document& document, const TextPlace& place) {
    if (const auto* machine = std::get_if<MachineText>(&place.Field))
        return document.General.**machine;
    if (const auto* event = std::get_if<EventText>(&place.Field))
        return document.Event(place.At.Row).**event;
    if (const auto* state = std::get_if<StateText>(&place.Field))
        return document.State(place.At.State).**state;
    return document.State(place.At.State).Actions[place.At.Row];
}

// What no other program reads is prose, and a name is no code.
constexpr EventText kEventCode = &EventRecord::Code;
constexpr std::array<StateText, 4> kStateCode = {&StateRecord::EntryCode, &StateRecord::ExitCode,
                                                 &StateRecord::TimingVar, &StateRecord::TimeConst};
constexpr std::array<MachineText, 5> kMachineCode = {&GeneralCode::CodeSeg, &GeneralCode::InitSeg,
                                                     &GeneralCode::NvEm0Data, &GeneralCode::TestSeg,
                                                     &GeneralCode::HeaderComment};

bool IsCode(EventText field) { return field == kEventCode; }
bool IsCode(StateText field) {
    return std::find(kStateCode.begin(), kStateCode.end(), field) != kStateCode.end();
}
bool IsCode(MachineText field) {
    return std::find(kMachineCode.begin(), kMachineCode.end(), field) != kMachineCode.end();
}

template <typename Fields, typename Record>
TextKind KindIn(const Fields& fields, std::string Record::*member) {
    TextKind kind{};
    ForEachField(fields, [&]<typename Value>(const Field<Record, Value>& field) {
        if constexpr (std::is_same_v<Value, std::string>) {
            if (field.Member == member)
                kind = {field.Name, field.File.Tag, field.ImagePlace != 0, IsCode(member)};
        }
    });
    return kind;
}

RowNumber RowOf(StateText field) {
    if (field == &StateRecord::EntryCode)
        return kEntryActionRow;
    if (field == &StateRecord::ExitCode)
        return kExitActionRow;
    const bool ofTimeout = field == &StateRecord::TimeConst || field == &StateRecord::TimingVar ||
                           field == &StateRecord::TimerId;
    return ofTimeout ? kTimingModeRow : kHeadRow;
}

} // namespace

TextPlace PlaceOfText(MachineText field) { return {field, {}}; }

TextPlace PlaceOfText(EventText field, RowNumber row) { return {field, {row, kNoState}}; }

TextPlace PlaceOfText(StateText field, StateNumber state) { return {field, {RowOf(field), state}}; }

const std::string& TextAt(const FsmDocument& document, const TextPlace& place) {
    return TextIn(document, place);
}

std::string& TextAt(FsmDocument& document, const TextPlace& place) { return TextIn(document, place); }

TextKind KindOf(const TextPlace& place) {
    if (const auto* machine = std::get_if<MachineText>(&place.Field))
        return KindIn(kGeneralFields, *machine);
    if (const auto* event = std::get_if<EventText>(&place.Field))
        return KindIn(kEventFields, *event);
    if (const auto* state = std::get_if<StateText>(&place.Field))
        return KindIn(kStateFields, *state);
    return {"action", tag::kAction, true, true};
}

} // namespace orvane
