// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/MachineDigest.h"
#include "review/Pairing.h"

#include <cstddef>

namespace orvane::review {

// How many changes of states, events and cells lead from one document to the other, when what is the same in
// both is what the matching says. What belongs to the machine as a whole is not counted: no matching changes
// it.
std::size_t ListLength(const MachineDigest& oldOne, const MachineDigest& newOne, const Matching& matching);

} // namespace orvane::review
