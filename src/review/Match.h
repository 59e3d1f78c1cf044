// SPDX-License-Identifier: GPL-3.0-or-later
// Which state and which event of one version of a document is which of another version. Numbers shift with
// every column that is put in and names change, so neither alone tells.
#pragma once

#include "core/FsmDocument.h"
#include "review/Pairing.h"

#include <optional>
#include <vector>

namespace orvane::review {

// What somebody who knows says about a state or event: which new one the old one is, or, with one side only,
// that it is not there on the other side.
template <typename Number>
struct Wish {
    std::optional<Number> Old;
    std::optional<Number> New;
};

struct Wishes {
    std::vector<Wish<StateNumber>> States;
    std::vector<Wish<RowNumber>> Rows; // 6..54

    Wishes Mirrored() const;
};

// Recognised by what was wished, then by names that are unique on both sides, events then by test code that
// is; the rest is guessed from the content and marked so. Of what several guesses lead to, the one with the
// shortest list of changes is taken. Match(b, a) is the mirror of Match(a, b), and a document matches itself
// number by number. Wishes for what is not there, and a second one for the same, are passed over.
Matching Match(const FsmDocument& oldOne, const FsmDocument& newOne, const Wishes& wishes = {});

} // namespace orvane::review
