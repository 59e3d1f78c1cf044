// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentTexts.h"

#include <string>

namespace orvane::find {

// A place of the table as people call it: "State 3:Opening", "Event row 8: Button", "3:Opening, on Button",
// "Machine" for (0, 0).
std::string CellTitle(const FsmDocument& document, Cell place);

// A text: the same with its field, "State 3:Opening, entry action".
std::string PlaceTitle(const FsmDocument& document, const TextPlace& place);

} // namespace orvane::find
