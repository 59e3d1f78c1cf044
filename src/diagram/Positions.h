// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layered.h"

namespace orvane::diagram {

// Where the items stand across their layers: in their order, far enough from each other, and so that the sum
// of what their lines deviate from straight, squared, is small.
void AssignPositions(Layered& layered);

// The same where only the items that are free look for a place; the others keep the position that they have
// unless somebody needs the room, and states longer than lines.
void AdjustPositions(Layered& layered);

} // namespace orvane::diagram
