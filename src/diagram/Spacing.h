// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace orvane::diagram {

// Something that would stand at a place, and how much that matters.
struct Wish {
    std::int64_t Place;
    std::int64_t Weight; // from 1
};

// Places in the order of the wishes, each at least so far behind the one before it as `distances` says (one
// less than wishes), so that the squares of what they are off the wishes, by weight, are the least.
std::vector<std::int64_t> SpacedPlaces(const std::vector<Wish>& wishes,
                                       const std::vector<std::int64_t>& distances);

} // namespace orvane::diagram
