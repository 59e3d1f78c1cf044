// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Neighbours.h"

#include <numeric>

namespace orvane::diagram {

Neighbours::Neighbours(const Layered& layered)
    : tables_{MakeTable(layered, Side::Before), MakeTable(layered, Side::Behind)},
      place_(layered.Items.size()) {
    for (const std::vector<int>& layer : layered.Layers)
        TakePlaces(layer);
}

Neighbours::Table Neighbours::MakeTable(const Layered& layered, Side side) {
    const bool isBehind = side == Side::Behind;
    Table table{std::vector<int>(layered.Items.size() + 1), std::vector<Neighbour>(layered.Segments.size())};
    for (const Segment& segment : layered.Segments)
        ++table.Begin[(isBehind ? segment.Left : segment.Right) + 1];
    std::partial_sum(table.Begin.begin(), table.Begin.end(), table.Begin.begin());
    std::vector<int> next = table.Begin;
    for (const Segment& segment : layered.Segments)
        table.Joined[next[isBehind ? segment.Left : segment.Right]++] = {
            isBehind ? segment.Right : segment.Left, segment.Lines};
    return table;
}

void Neighbours::TakePlaces(const std::vector<int>& layer) {
    for (std::size_t i = 0; i < layer.size(); ++i)
        place_[layer[i]] = int(i);
}

int Neighbours::Gain(std::span<const Neighbour> first, std::span<const Neighbour> second) const {
    int gain = 0;
    for (const Neighbour& one : first) {
        const int place = place_[one.Item];
        for (const Neighbour& other : second) {
            const int otherPlace = place_[other.Item];
            gain += ((place > otherPlace ? 1 : 0) - (place < otherPlace ? 1 : 0)) * one.Lines * other.Lines;
        }
    }
    return gain;
}

} // namespace orvane::diagram
