// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "cli/Verbs.h"

namespace orvane::cli {

// Does what a verb about several versions of a document says. Never throws.
Outcome RunReviewVerb(const Run& run) noexcept;

} // namespace orvane::cli
