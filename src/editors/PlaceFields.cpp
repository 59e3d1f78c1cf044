// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/PlaceFields.h"

#include "core/NameMatch.h"
#include "core/StateLabel.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <array>
#include <utility>

namespace orvane {

namespace {

struct TextOfState {
    std::string PlaceFields::*Shown;
    std::string StateRecord::*Kept;
};

constexpr auto kStateTexts = std::to_array<TextOfState>({{&PlaceFields::StateName, &StateRecord::Name},
                                                         {&PlaceFields::EntryCode, &StateRecord::EntryCode},
                                                         {&PlaceFields::ExitCode, &StateRecord::ExitCode},
                                                         {&PlaceFields::TimeConst, &StateRecord::TimeConst},
                                                         {&PlaceFields::TimingVar, &StateRecord::TimingVar},
                                                         {&PlaceFields::TimerId, &StateRecord::TimerId}});

std::string LabelOf(const FsmDocument& document, StateNumber state) {
    return state == kNoState ? "" : StateLabel(state, document.State(state).Name);
}

// Returns the text of a target that is no state.
std::optional<std::string> StoreTarget(FsmDocument& document, Cell place, const std::string& text) {
    const std::optional<StateNumber> target = TargetMeant(document, text);
    if (!target)
        return std::string(Trim(text));
    StateRecord& state = document.State(place.State);
    state.Targets[place.Row] = *target;
    if (*target == kNoState)
        state.Actions[place.Row].clear();
    return std::nullopt;
}

void StoreState(StateRecord& state, const PlaceFields& before, const PlaceFields& after) {
    for (const TextOfState& text : kStateTexts) {
        if (before.*text.Shown != after.*text.Shown)
            state.*text.Kept = after.*text.Shown;
    }
    if (before.TimingMode != after.TimingMode)
        state.TimingMode = after.TimingMode;
}

void StoreEvent(EventRecord& event, const PlaceFields& before, const PlaceFields& after) {
    if (before.EventName != after.EventName)
        event.Name = after.EventName;
    if (before.Test != after.Test)
        event.Code = after.Test;
}

std::string RowInWords(const FsmDocument& document, RowNumber row) {
    if (row == RowNumber(kTimeoutRow))
        return "on timeout";
    if (row == RowNumber(kElseRow))
        return "else";
    const std::string& name = document.Event(row).Name;
    return name.empty() ? "on an event without a name" : "on " + name;
}

std::string TransitionInWords(const FsmDocument& document, Cell place) {
    const StateRecord& state = document.State(place.State);
    const StateNumber target = state.Targets[place.Row];
    const bool acts = !state.Actions[place.Row].empty();
    if (target != kNoState)
        return (acts ? ", acts and goes to " : ", goes to ") + LabelOf(document, target);
    return acts ? ", acts but goes nowhere" : ", nothing happens";
}

} // namespace

PlaceParts PartsOf(Cell place) {
    const bool isCell = CellRows().Contains(place.Row) && place.State != kNoState;
    return {isCell, EventRows().Contains(place.Row), place.State != kNoState};
}

PlaceFields FieldsOf(const FsmDocument& document, Cell place) {
    PlaceFields fields;
    const PlaceParts parts = PartsOf(place);
    if (parts.Event) {
        fields.EventName = document.Event(place.Row).Name;
        fields.Test = document.Event(place.Row).Code;
    }
    if (!parts.State)
        return fields;
    const StateRecord& state = document.State(place.State);
    for (const TextOfState& text : kStateTexts)
        fields.*text.Shown = state.*text.Kept;
    fields.TimingMode = state.TimingMode;
    if (parts.Transition) {
        fields.Target = LabelOf(document, state.Targets[place.Row]);
        fields.Action = state.Actions[place.Row];
    }
    return fields;
}

std::optional<std::string> StoreFields(FsmDocument& document, Cell place, const PlaceFields& before,
                                       const PlaceFields& after) {
    const PlaceParts parts = PartsOf(place);
    std::optional<std::string> refused;
    if (parts.Event)
        StoreEvent(document.Event(place.Row), before, after);
    if (parts.State)
        StoreState(document.State(place.State), before, after);
    if (parts.Transition && before.Target != after.Target)
        refused = StoreTarget(document, place, after.Target);
    if (parts.Transition && before.Action != after.Action)
        document.State(place.State).Actions[place.Row] = after.Action;
    return refused;
}

std::string_view NameOfEdit(const PlaceFields& before, const PlaceFields& after) {
    if (before.Target != after.Target)
        return "transition";
    if (before.Action != after.Action)
        return "transition action";
    if (before.EventName != after.EventName || before.Test != after.Test)
        return "event";
    return "state";
}

std::string PlaceInWords(const FsmDocument& document, Cell place) {
    if (place == Cell{})
        return "The machine: its name and general code";
    const PlaceParts parts = PartsOf(place);
    if (parts.Transition)
        return LabelOf(document, place.State) + ", " + RowInWords(document, place.Row);
    if (parts.State)
        return "State " + LabelOf(document, place.State);
    if (!parts.Event)
        return "A row that all states have";
    const std::string& name = document.Event(place.Row).Name;
    return "Event row " + NumberText(place.Row.Number()) + ": " +
           (name.empty() ? "without a name yet" : name);
}

std::string WordsOf(const FsmDocument& document, Cell place) {
    std::string words = PlaceInWords(document, place);
    if (PartsOf(place).Transition)
        words += TransitionInWords(document, place);
    return words;
}

} // namespace orvane
