// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TableNumber.h"

#include <string>
#include <string_view>

namespace orvane {

// A state as people read it: its number, ":" and its name, blanks at the ends trimmed (3:Idle).
std::string StateLabel(StateNumber number, std::string_view name);

} // namespace orvane
