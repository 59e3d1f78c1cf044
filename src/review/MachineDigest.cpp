// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/MachineDigest.h"

#include "review/Presence.h"
#include "review/StoredFields.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::review {

namespace {

template <typename Number, typename DigestOf>
void LinkNeighbours(const std::vector<Number>& present, DigestOf digestOf) {
    Number before;
    int place = 0;
    for (const Number number : present) {
        auto& digest = digestOf(number);
        digest.IsPresent = true;
        digest.Place = ++place;
        digest.Before = before;
        if (before != Number())
            digestOf(before).After = number;
        before = number;
    }
}

} // namespace

MachineDigest::MachineDigest(const FsmDocument& document, TextIds& ids)
    : ids_(ids),
      states_(kStateCount),
      present_(PresentStates(document)),
      presentEvents_(PresentEvents(document)) {
    LinkNeighbours(
        present_, [this](StateNumber state) -> auto& { return Of(state); });
    LinkNeighbours(
        presentEvents_, [this](RowNumber row) -> auto& { return events_[row]; });
    for (const StateNumber state : present_)
        ReadState(document.State(state), Of(state));
    for (const RowNumber row : presentEvents_)
        ReadEvent(document.Event(row), events_[row]);
    ReadLedFrom();
}

void MachineDigest::ReadState(const StateRecord& state, StateDigest& digest) {
    ForEachStoredField<kStateFields>([&](const auto& field) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(state.*field.Member)>, Twips>)
            digest.Widths = (state.*field.Member).Count();
        else
            digest.Fields.push_back(IdOf(state.*field.Member));
    });
    digest.Name = ids_.Of(Trim(state.Name));
    digest.Targets = state.Targets;
    for (const RowNumber row : CellRows())
        digest.Actions[row] = ids_.Of(state.Actions[row]);
}

void MachineDigest::ReadEvent(const EventRecord& event, EventDigest& digest) {
    ForEachStoredField<kEventFields>([&](const auto& field) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(event.*field.Member)>, std::string>)
            digest.Fields.push_back(IdOf(event.*field.Member));
    });
    digest.Name = ids_.Of(Trim(event.Name));
    digest.Code = ids_.Of(event.Code);
}

void MachineDigest::ReadLedFrom() {
    for (const StateNumber state : present_) {
        for (const RowNumber row : CellRows()) {
            const StateNumber target = Of(state).Targets[row];
            if (target != kNoState && target != state)
                Of(target).LedFrom.push_back({row, state});
        }
    }
}

int MachineDigest::IdOf(std::int32_t number) {
    return number == 0 ? TextIds::kNoText : ids_.Of(numberTexts_.emplace_back(NumberText(number)));
}

} // namespace orvane::review
