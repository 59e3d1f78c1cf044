// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <string>
#include <string_view>

namespace orvane::review {

// Words of these stand in lists of conflicts and never change, see ConflictKindName.
enum class ConflictKind {
    Field,       // both sides changed it, to different things
    Target,      // the same of where a cell leads
    LostTarget,  // a cell leads to a state that the other side removed
    ChangedHere, // we changed what they removed; it stays
    RemovedHere, // they changed what we removed; it is gone
    AddedTwice,  // both sides added one of that name, with different content
    Order,       // both sides moved events
    Start,       // a side has another start, and the other one changed something
    NoRoom,      // they added it, and the table is full
};

const char* ConflictKindName(ConflictKind kind);

// A question that a merge leaves to people. The document has our answer.
struct Conflict {
    ConflictKind Kind = ConflictKind::Field;
    Cell Place;                // in the merged document; 0 for none
    std::string_view Tag = {}; // of a field: as in the file; TACT for an action
    std::string What;          // the place and the question in words, UTF-8 on one line
    std::string Base;          // document text of any number of lines: what it was ...
    std::string Ours;          // ... what we made of it
    std::string Theirs;        // ... and they
    bool IsInText = false;     // its block stands in the merged text already
};

} // namespace orvane::review
