// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace orvane::review {

// One of the longest increasing subsequences of the numbers, all different: for each, whether it belongs to
// it. What does not has moved.
std::vector<bool> LongestIncreasingRun(std::span<const int> numbers);

} // namespace orvane::review
