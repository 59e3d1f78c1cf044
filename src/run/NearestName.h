// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

// The candidate that was probably meant: at most a third of its letters are to be changed, put in, left out
// or exchanged with their neighbours, capitals not counted. Empty when none is near. Bytes count as letters.
std::string NearestName(std::string_view written, const std::vector<std::string>& candidates);

// "; did you mean X?" with the name in quotes, or nothing.
std::string DidYouMean(std::string_view written, const std::vector<std::string>& candidates);

} // namespace orvane::run
