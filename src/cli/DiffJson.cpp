// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DiffJson.h"

#include "cli/JsonReport.h"
#include "review/TellChanges.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

using review::Change;
using review::ChangeKind;

std::string Bool(bool value) { return value ? "true" : "false"; }
std::string Text(std::string_view ansi) { return JsonStringOfAnsi(ansi); }

struct JsonValue {
    std::string operator()(const std::string& text) const { return Text(text); }
    std::string operator()(bool mark) const { return Bool(mark); }
    std::string operator()(std::int32_t number) const { return NumberText(number); }
    std::string operator()(Twips length) const { return NumberText(length.Count()); }
    std::string operator()(StateNumber target) const { return NumberOrNull(target.Number()); }
};

template <typename Number>
std::string Identities(const review::Pairing<Number>& pairing, NumberRange<Number> range) {
    std::string json;
    for (const Number number : range) {
        if (pairing.HasNew(number))
            json += (json.empty() ? "{\"old\":" : ",{\"old\":") + NumberText(number.Number()) +
                    ",\"new\":" + NumberText(pairing.NewOf(number).Number()) +
                    ",\"guessed\":" + Bool(pairing.IsGuess(number)) + "}";
    }
    return "[" + json + "]";
}

std::string Place(Cell place, const FsmDocument& document) {
    if (place == Cell())
        return "null";
    const std::string stateName = place.State == kNoState ? "null" : Text(document.State(place.State).Name);
    const bool isEvent = EventRows().Contains(place.Row);
    return "{\"state\":" + NumberOrNull(place.State.Number()) + ",\"stateName\":" + stateName +
           ",\"row\":" + NumberOrNull(place.Row.Number()) +
           ",\"eventName\":" + (isEvent ? Text(document.Event(place.Row).Name) : "null") + "}";
}

template <const auto& kFields>
std::string Fields(const review::Content& content) {
    std::string json;
    auto value = content.Fields.begin();
    review::ForEachStoredField<kFields>([&](const auto& field) {
        json +=
            (json.empty() ? "" : ",") + JsonString(field.File.Tag) + ":" + std::visit(JsonValue(), *value++);
    });
    return "{" + json + "}";
}

std::string Cells(const review::Content& content) {
    std::string json;
    for (const review::CellContent& cell : content.Cells)
        json += (json.empty() ? "{\"state\":" : ",{\"state\":") + NumberText(cell.Place.State.Number()) +
                ",\"row\":" + NumberText(cell.Place.Row.Number()) +
                ",\"target\":" + NumberOrNull(cell.Target.Number()) + ",\"action\":" + Text(cell.Action) +
                "}";
    return "[" + json + "]";
}

std::string What(const Change& change) {
    switch (change.Kind) {
    case ChangeKind::EventAdded:
    case ChangeKind::EventRemoved:
        return ",\"fields\":" + Fields<kEventFields>(change.What) + ",\"cells\":" + Cells(change.What);
    case ChangeKind::StateAdded:
    case ChangeKind::StateRemoved:
        return ",\"fields\":" + Fields<kStateFields>(change.What) + ",\"cells\":" + Cells(change.What);
    case ChangeKind::EventMoved:
    case ChangeKind::StateMoved:
        return {};
    default:
        return ",\"field\":" + (change.Tag.empty() ? "null" : JsonString(change.Tag)) +
               ",\"before\":" + std::visit(JsonValue(), change.Before) +
               ",\"after\":" + std::visit(JsonValue(), change.After);
    }
}

std::string ChangeObject(const Change& change, const ComparedDocuments& compared) {
    return "{\"kind\":" + JsonString(ChangeKindName(change.Kind)) +
           ",\"old\":" + Place(change.Old, compared.Old) + ",\"new\":" + Place(change.New, compared.New) +
           ",\"view\":" + Bool(change.IsOfTheView) + ",\"guessed\":" + Bool(change.IsGuess) +
           ",\"text\":" + JsonString(TellChange(change, compared.Old, compared.New).Text) + What(change) +
           "}";
}

} // namespace

std::string DiffJson(const ComparedDocuments& compared) {
    std::string changes;
    for (const Change& change : compared.List.Changes)
        changes += (changes.empty() ? "" : ",") + ChangeObject(change, compared);
    return "{\"version\":1,\"old\":" + JsonString(compared.OldName) +
           ",\"new\":" + JsonString(compared.NewName) + ",\"equal\":" + Bool(compared.List.IsEmpty()) +
           ",\"states\":" + Identities(compared.List.Same.States, StateNumbers()) +
           ",\"events\":" + Identities(compared.List.Same.Rows, EventRows()) + ",\"changes\":[" + changes +
           "]}\n";
}

} // namespace orvane::cli
