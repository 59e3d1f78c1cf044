// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layered.h"

namespace orvane::diagram {

// Makes the lines bend as seldom as can be: each runs straight on for as long as it stays between its
// neighbours. States, and items that are not free, keep their positions.
void Straighten(Layered& layered);

} // namespace orvane::diagram
