// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/LineMerge.h"
#include "review/MergePlan.h"

namespace orvane::review {

// The document of a plan whose numbers are decided. Conflicts of code stand in it already; the others are
// only told.
FsmDocument MergedContent(MergePlan& plan, Blocks blocks);

} // namespace orvane::review
