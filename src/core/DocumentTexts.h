// SPDX-License-Identifier: GPL-3.0-or-later
// All texts of a document, each with a name for where it stands, so that whoever looks through them forgets
// none: the walk goes over the tables of fields.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "core/RecordFields.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace orvane {

using MachineText = std::string GeneralCode::*;
using EventText = std::string EventRecord::*;
using StateText = std::string StateRecord::*;

// The action of a transition.
struct CellAction {
    bool operator==(const CellAction&) const = default;
};

// Where a text stands. The cell is the place that is opened to edit it: (0, 0) for the machine, (6..54, 0) an
// event, (0..3, state) a state, by the row that shows the field, (4..54, state) a transition.
struct TextPlace {
    std::variant<MachineText, EventText, StateText, CellAction> Field;
    Cell At;

    bool operator==(const TextPlace&) const = default;
};

// A piece of a text, in bytes.
struct TextPiece {
    TextPlace Place;
    std::size_t Start = 0;
    std::size_t Length = 0;
};

TextPlace PlaceOfText(MachineText field);
TextPlace PlaceOfText(EventText field, RowNumber row);
TextPlace PlaceOfText(StateText field, StateNumber state);
inline TextPlace PlaceOfAction(Cell cell) { return {CellAction(), cell}; }

// Places of a document; others throw BoundsError.
const std::string& TextAt(const FsmDocument& document, const TextPlace& place);
std::string& TextAt(FsmDocument& document, const TextPlace& place);

// What is known of a text without looking at it.
struct TextKind {
    std::string_view Name; // as people call it: "entry action"
    std::string_view Tag;  // in the document's file
    bool IsDesigned;       // it stands in the image, so that undo brings it back
    bool IsCode;           // of the controller language, where a comment can be told from the rest
};
TextKind KindOf(const TextPlace& place);

// The texts of a record one after the other as its fields stand in the file; a field that stands there twice
// is one text.
template <const auto& kFields, typename Record, typename Visit>
void ForEachTextOf(Visit visit) {
    std::string Record::*last = nullptr;
    ForEachFieldInOrder<kFields, FieldOrder::File>(
        [&]<typename Owner, typename Value>(const Field<Owner, Value>& field) {
            if constexpr (std::is_same_v<Field<Owner, Value>, Field<Record, std::string>>) {
                if (field.Member != last)
                    visit(field.Member);
                last = field.Member;
            }
        });
}

// Calls visit(place, text) for each text that is not empty, in the order of the document's file. Events are
// those of rows 6..54: the rows above have none.
template <typename Visit>
void ForEachText(const FsmDocument& document, Visit visit) {
    const auto look = [&](const TextPlace& place, const std::string& text) {
        if (!text.empty())
            visit(place, text);
    };
    ForEachTextOf<kMachineFields, GeneralCode>(
        [&](MachineText field) { look(PlaceOfText(field), document.General.*field); });
    for (const RowNumber row : EventRows()) {
        const EventRecord& event = document.Event(row);
        ForEachTextOf<kEventFields, EventRecord>(
            [&](EventText field) { look(PlaceOfText(field, row), event.*field); });
    }
    for (const StateNumber number : StateNumbers()) {
        const StateRecord& state = document.State(number);
        ForEachTextOf<kStateFields, StateRecord>(
            [&](StateText field) { look(PlaceOfText(field, number), state.*field); });
        for (const RowNumber row : CellRows())
            look(PlaceOfAction({row, number}), state.Actions[row]);
    }
}

} // namespace orvane
