// SPDX-License-Identifier: GPL-3.0-or-later
// What is different between two versions of a document, as things that somebody did.
#pragma once

#include "core/Cell.h"
#include "review/Pairing.h"
#include "review/StoredFields.h"

#include <string_view>
#include <vector>

namespace orvane::review {

// Words of these stand in JSON and never change, see ChangeKindName.
enum class ChangeKind {
    MachineField, // of the machine as a whole, its view too
    EventAdded,   // with its cells in states that are in both documents
    EventRemoved,
    EventMoved,
    EventField,
    StateAdded, // with all its cells
    StateRemoved,
    StateMoved,
    StateField,
    Target,
    Action,
    BlankWidth, // the width of a column without a state
};

const char* ChangeKindName(ChangeKind kind);

// A cell of a state or event that came or went. Place and target are numbers of the document it is in.
struct CellContent {
    Cell Place;
    StateNumber Target;
    std::string Action;

    bool operator==(const CellContent&) const = default;
};

// A state or event that came or went.
struct Content {
    std::vector<FieldValue> Fields; // those stored, in the order of the table of its kind
    std::vector<CellContent> Cells; // those that are not empty

    bool operator==(const Content&) const = default;
};

// One change. It is between a place in the old document and one in the new document; what has no place on a
// side has number 0 there, and so have the state of an event and the row of a state.
struct Change {
    ChangeKind Kind = ChangeKind::MachineField;
    Cell Old;
    Cell New;
    std::string_view Tag = {};  // of a field: as in the file
    std::string_view Name = {}; // of a field: as people call it
    FieldValue Before = {};     // of fields and cells; targets are numbers of the old document ...
    FieldValue After = {};      // ... and of the new one
    Content What = {};          // of what came or went
    bool IsOfTheView = false;   // says only how the document is looked at
    bool IsGuess = false;       // concerns a state or event that was recognised by its content

    bool operator==(const Change&) const = default;
};

// All that is different: the changes, applied to the old document, give the new one. That states and events
// were renumbered by what came and went around them stands in the matching alone.
struct ChangeList {
    Matching Same;
    std::vector<Change> Changes; // the machine, events in their new order, states in theirs; what went stands
                                 // behind what it stood behind

    bool IsEmpty() const;
    ChangeList Mirrored() const;
    // Those that change what is designed.
    ChangeList WithoutView() const;
};

} // namespace orvane::review
