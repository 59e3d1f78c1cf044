// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Advice.h"

#include <vector>

namespace orvane::run {

// The advice that the table alone gives, without a look at what the machine can do: quick enough to be told
// after every edit. Throws BoundsError when a transition leads to a state that the table does not have.
std::vector<Advice> AdviceOnDesign(const FsmDocument& document);

// The states that lead to each other and let no time pass; the lowest stands first.
Advice RingWithoutYield(const FsmDocument& document, const std::vector<StateNumber>& ring, RowNumber row);

} // namespace orvane::run
