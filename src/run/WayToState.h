// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/TestableWays.h"

#include <cstdint>
#include <span>
#include <vector>

namespace orvane::run {

using Way = std::vector<const TestableWay*>;

// The fewest steps from one of the places to where the state is entered, be it only for a moment; empty when
// there are none.
Way WayToState(const Machine& machine, const TestableWays& ways, std::span<const std::uint32_t> from,
               StateNumber to);

} // namespace orvane::run
