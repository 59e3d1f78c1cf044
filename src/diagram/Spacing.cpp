// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Spacing.h"

#include <cstddef>

namespace orvane::diagram {

namespace {

// Neighbours that touch and stand together at the mean of their wishes.
struct Block {
    std::int64_t Sum;
    std::int64_t Weight;
    std::size_t Count;

    std::int64_t Mean() const {
        const std::int64_t rounded = Sum >= 0 ? Sum + Weight / 2 : Sum - Weight / 2;
        return rounded / Weight;
    }
};

} // namespace

// Without the distances it is the nearest sequence that never falls: blocks that would stand in the wrong
// order become one.
std::vector<std::int64_t> SpacedPlaces(const std::vector<Wish>& wishes,
                                       const std::vector<std::int64_t>& distances) {
    std::vector<Block> blocks;
    std::int64_t offset = 0;
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        offset += i == 0 ? 0 : distances[i - 1];
        blocks.push_back({(wishes[i].Place - offset) * wishes[i].Weight, wishes[i].Weight, 1});
        while (blocks.size() > 1 && blocks[blocks.size() - 2].Mean() > blocks.back().Mean()) {
            const Block last = blocks.back();
            blocks.pop_back();
            Block& merged = blocks.back();
            merged = {merged.Sum + last.Sum, merged.Weight + last.Weight, merged.Count + last.Count};
        }
    }
    std::vector<std::int64_t> places;
    offset = 0;
    for (const Block& block : blocks) {
        for (std::size_t i = 0; i < block.Count; ++i) {
            offset += places.empty() ? 0 : distances[places.size() - 1];
            places.push_back(block.Mean() + offset);
        }
    }
    return places;
}

} // namespace orvane::diagram
