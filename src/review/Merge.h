// SPDX-License-Identifier: GPL-3.0-or-later
// Two versions that came from one, put together. What is merged are states, events, fields and cells, not
// numbers: a target is a state, so that being renumbered contradicts nothing.
#pragma once

#include "core/FsmDocument.h"
#include "review/Conflict.h"
#include "review/Pairing.h"

#include <string>
#include <vector>

namespace orvane::review {

// What becomes of what both sides changed to different things: it is a conflict, which stands as a comment
// block in the document, or our answer counts and nobody is asked. For theirs exchange the sides.
enum class Contradictions { Asked, OursCounts };

struct MergeResult {
    FsmDocument Document;
    std::vector<Conflict> Conflicts;
    std::vector<std::string> Notes; // UTF-8: what was decided for ours because it is only looks
    Matching FromOurs;              // where our states and events are in the merged document
    Matching FromTheirs;
};

// A conflict keeps ours and has theirs in a comment block: in the text itself for code, in the cell's action
// for a target, in the exit note for anything else of a state, else in the header. Whatever a side changed is
// in the document or among the conflicts, but for its looks. None of the documents may hold conflicts
// already.
MergeResult Merge(const FsmDocument& base, const FsmDocument& ours, const FsmDocument& theirs,
                  Contradictions contradictions = Contradictions::Asked);

} // namespace orvane::review
