// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

namespace orvane::review {

// The changes that lead from one document to the other, by what the matching says is the same. Complete:
// whatever a document's file holds is compared.
ChangeList Compare(const FsmDocument& oldOne, const FsmDocument& newOne, const Matching& matching);

// The same with the matching that Match finds.
ChangeList Compare(const FsmDocument& oldOne, const FsmDocument& newOne);

} // namespace orvane::review
