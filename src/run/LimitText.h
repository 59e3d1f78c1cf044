// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane::run {

// A constant limit as a number: blanks around it, a sign and digits. Anything else ("3s", "1+2", "LONG") is a
// name that only the build tool knows. A number beyond 64 bits gives the nearest one.
std::optional<std::int64_t> LimitNumber(std::string_view text);

} // namespace orvane::run
