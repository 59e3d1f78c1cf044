// SPDX-License-Identifier: GPL-3.0-or-later
// A tour in words and as a file. All texts are UTF-8.
#pragma once

#include "run/Tour.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

// The bytes of its .ztest file. `machine` is the document as seen from the file's folder, where that is not
// the one of the same name beside it.
std::string TourFile(const Tour& tour, const std::optional<std::string>& machine);

// What no step of it could see, a line each; not that the steps ran out, which its caller can do something
// about.
std::vector<std::string> TourGaps(const Tour& tour, const FsmDocument& document);

// "36 of 36 transitions, 80 of 90 empty cells in 84 steps"; what was not asked for is left out.
std::string TourSummary(const Tour& tour);

} // namespace orvane::run
