// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "diagram/Scene.h"

#include <string>
#include <vector>

namespace orvane::diagram {

inline constexpr std::size_t kLabelLines = 3;

// What a transition of the state in that row is called: its event, the limit of its timeout, or ELSE.
std::string RowName(const FsmDocument& document, StateNumber state, RowNumber row);

// The names of the rows, one a line. Of more than three the first two, and how many are not named.
std::vector<LabelLine> LabelOf(const FsmDocument& document, StateNumber state,
                               const std::vector<RowNumber>& rows, const TextSizes& sizes);

// All names, with commas between them.
std::string AllNames(const FsmDocument& document, StateNumber state, const std::vector<RowNumber>& rows);

} // namespace orvane::diagram
