// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

namespace orvane::review {

// The old document of the list with all its changes made: the new one, byte for byte once both are written.
FsmDocument Applied(const ChangeList& list, const FsmDocument& oldOne);

} // namespace orvane::review
