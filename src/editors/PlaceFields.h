// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that a place of the table shows of its transition, its event and its state, as fields to read
// and to edit beside the table.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// What of it a place has: a cell all three, a head its own.
struct PlaceParts {
    bool Transition = false;
    bool Event = false; // rows 6..54
    bool State = false;

    bool operator==(const PlaceParts&) const = default;
};

PlaceParts PartsOf(Cell place);

// Texts of what the place does not have are empty.
struct PlaceFields {
    std::string Target; // as the table names it: 7:Stopped
    std::string Action;
    std::string EventName;
    std::string Test;
    std::string StateName;
    std::string EntryCode;
    std::string ExitCode;
    std::int32_t TimingMode = 0;
    std::string TimeConst;
    std::string TimingVar;
    std::string TimerId;

    bool operator==(const PlaceFields&) const = default;
};

PlaceFields FieldsOf(const FsmDocument& document, Cell place);

// Stores what differs. A target is a number or a name (core/NameMatch.h), and nothing takes the action away
// with it, as in the table; one that is no state stays what it was. Returns the target's text then.
std::optional<std::string> StoreFields(FsmDocument& document, Cell place, const PlaceFields& before,
                                       const PlaceFields& after);

// The edit's name, by what differs, as undo tells it.
std::string_view NameOfEdit(const PlaceFields& before, const PlaceFields& after);

// The place in words: "State 3:Opening", "Event row 8: Button", "3:Opening, on Button".
std::string PlaceInWords(const FsmDocument& document, Cell place);
// And what happens there: "3:Opening, on Button, goes to 7:Stopped".
std::string WordsOf(const FsmDocument& document, Cell place);

} // namespace orvane
