// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <string>

namespace orvane {

// What a screen reader says of a cell, heads and empty cells included: "State 2: Closed", "Button in Opening:
// 7:Stopped, with action". Never empty, and nothing is cut off but code, of which it says the first line.
std::string CellName(const FsmDocument& document, Cell cell);

} // namespace orvane
