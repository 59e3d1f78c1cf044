// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

#include <optional>
#include <string>

namespace orvane::review {

// Makes one change of the list in its old document, which keeps its numbers: a state or event that came gets
// the place that it has in the new document when that is empty here, else the first empty one behind the last
// that is there. Its cells come with it as far as their states and events are here. Returns what keeps it
// from being done, for people; then nothing has happened. To take over several, compare again after each.
[[nodiscard]] std::optional<std::string> TakeOver(const Change& change, const ChangeList& list,
                                                  FsmDocument& document);

} // namespace orvane::review
