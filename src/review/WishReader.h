// SPDX-License-Identifier: GPL-3.0-or-later
// Reads what a user says of identities: which state or event is which.
#pragma once

#include "review/DocumentPair.h"
#include "review/Match.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane::review {

// A side names a state by its number (4), its name (Run) or both (4:Run), an event by e and its row (e6) or
// its name; a name that a state and an event have is that of the state. Texts are UTF-8; there has to be what
// is named. Returns what is wrong, for people, or none: then the wish was added.

// "OLD=NEW": the same state, or the same event, in both documents. A name may hold "=".
[[nodiscard]] std::optional<std::string> AddSame(Wishes& wishes, std::string_view text,
                                                 const DocumentPair& documents);

// "OLD": it is not in the new document.
[[nodiscard]] std::optional<std::string> AddDifferent(Wishes& wishes, std::string_view text,
                                                      const FsmDocument& oldOne);

} // namespace orvane::review
