// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Pattern.h"

#include <variant>

namespace orvane::find {

// The program of a regular expression, in the syntax that find/Pattern.h tells.
std::variant<PatternProgram, PatternFault> ReadExpression(const SearchQuery& query);

} // namespace orvane::find
