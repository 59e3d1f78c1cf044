// SPDX-License-Identifier: GPL-3.0-or-later
// What a merge of two versions leaves in a text where people have to decide: a block of comments that begins
// with this line.
#pragma once

#include <string_view>

namespace orvane {

inline constexpr std::string_view kConflictMark = ";<<<<<<< CONFLICT: ";

// Whether a line of the text begins with the mark.
bool HoldsConflict(std::string_view text);

} // namespace orvane
