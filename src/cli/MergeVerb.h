// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "cli/Verbs.h"

namespace orvane::cli {

// Puts two versions that came from one together, and writes the result and the list of its conflicts; status
// 1 when there are any.
Outcome MergeDocuments(const Run& run);

// Tells the conflicts that stand in documents; status 1 while any does.
Outcome TellConflicts(const Run& run);

} // namespace orvane::cli
