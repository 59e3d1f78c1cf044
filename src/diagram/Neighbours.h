// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layered.h"

#include <array>
#include <span>
#include <vector>

namespace orvane::diagram {

enum class Side { Before, Behind };

// Which items are joined by segments, and which places they have in their layers.
class Neighbours {
  public:
    explicit Neighbours(const Layered& layered);

    struct Neighbour {
        int Item;
        int Lines;
    };

    // Of the item, in the layer on that side, in no order.
    std::span<const Neighbour> Of(int item, Side side) const {
        const Table& table = tables_[side == Side::Behind];
        return {table.Joined.data() + table.Begin[item], table.Joined.data() + table.Begin[item + 1]};
    }
    int Place(int item) const { return place_[item]; }

    // To be called for a layer whose order is another one.
    void TakePlaces(const std::vector<int>& layer);

    // How many crossings less there are when the second of two items of one layer stands before the first
    // one than the other way round.
    int GainOfExchange(int first, int second) const {
        return Gain(Of(first, Side::Before), Of(second, Side::Before)) +
               Gain(Of(first, Side::Behind), Of(second, Side::Behind));
    }

  private:
    // One row after the other, because a search asks for them millions of times.
    struct Table {
        std::vector<int> Begin; // by item, and the end of the last one
        std::vector<Neighbour> Joined;
    };

    static Table MakeTable(const Layered& layered, Side side);
    int Gain(std::span<const Neighbour> first, std::span<const Neighbour> second) const;

    std::array<Table, 2> tables_;
    std::vector<int> place_;
};

} // namespace orvane::diagram
