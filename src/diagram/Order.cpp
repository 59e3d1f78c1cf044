// SPDX-License-Identifier: GPL-3.0-or-later
//
// Sweeps over the layers put each item at the middle of those it is joined to; then each item is tried at
// every place of its layer until nothing gets better. That is done from several first orders, and the best
// result is kept. All of it counts in whole numbers and breaks ties by place, so that every machine finds the
// same order.
#include "diagram/Order.h"

#include "diagram/Neighbours.h"
#include "diagram/PairedLines.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstdint>
#include <limits>
#include <utility>

namespace orvane::diagram {

namespace {

using Layers = std::vector<std::vector<int>>;

// Where lines end in the next layer, and how many end there together.
struct End {
    int Place;
    int Lines;
};

// Room for counting, kept from layer to layer: to ask for it each time takes longer than to count.
struct CountingRoom {
    std::vector<End> Ends;
    std::vector<int> Tree; // sums over ranges that double in length
};

// How many pairs of lines stand in the wrong order. Places are less than `limit`.
int Inversions(const std::vector<End>& ends, int limit, std::vector<int>& tree) {
    tree.assign(limit + 1, 0);
    int inversions = 0;
    int seen = 0;
    for (const End& end : ends) {
        int notGreater = 0;
        for (int i = end.Place + 1; i > 0; i -= i & -i)
            notGreater += tree[i];
        inversions += (seen - notGreater) * end.Lines;
        seen += end.Lines;
        for (int i = end.Place + 1; i <= limit; i += i & -i)
            tree[i] += end.Lines;
    }
    return inversions;
}

int CrossingsBehind(const std::vector<int>& layer, const Neighbours& neighbours, std::size_t nextSize,
                    CountingRoom& room) {
    std::vector<End>& ends = room.Ends;
    ends.clear();
    for (const int item : layer) {
        const std::size_t begin = ends.size();
        for (const Neighbours::Neighbour& next : neighbours.Of(item, Side::Behind))
            ends.push_back({neighbours.Place(next.Item), next.Lines});
        std::sort(ends.begin() + begin, ends.end(),
                  [](const End& one, const End& other) { return one.Place < other.Place; });
    }
    return Inversions(ends, int(nextSize), room.Tree);
}

int CountAll(const Layers& layers, const Neighbours& neighbours) {
    int crossings = 0;
    CountingRoom room;
    for (std::size_t i = 0; i + 1 < layers.size(); ++i)
        crossings += CrossingsBehind(layers[i], neighbours, layers[i + 1].size(), room);
    return crossings;
}

class Orderer {
  public:
    explicit Orderer(Layered& layered, std::stop_token stop = {})
        : layered_(layered), layers_(layered.Layers), neighbours_(layered), stop_(std::move(stop)) {}

    void FindBest() {
        KeepIfBetter();
        SiftAll();
        KeepIfBetter();
        std::vector<Candidate> candidates;
        const Layers given = layers_;
        for (const bool fromBehind : {false, true}) {
            for (const bool mirrored : {false, true}) {
                for (const bool byMiddle : {false, true}) {
                    Take(given);
                    WalkOrder(fromBehind, mirrored);
                    candidates.push_back(Swept(byMiddle));
                }
            }
        }
        std::stable_sort(
            candidates.begin(), candidates.end(),
            [](const Candidate& one, const Candidate& other) { return one.Crossings < other.Crossings; });
        constexpr std::size_t sifted = 3; // the best ones, because it takes longest
        for (std::size_t i = 0; i < sifted && best_.Crossings > 0; ++i) {
            Take(candidates[i].Order);
            SiftAll();
            KeepIfBetter();
        }
        layers_ = std::move(best_.Order);
    }

    void FindRough() {
        WalkOrder(false, false);
        layers_ = Swept(false).Order;
    }

    void Place(const std::vector<int>& items) {
        constexpr int rounds = 4;
        Unsettle();
        bool moved = true;
        for (int round = 0; round < rounds && moved; ++round) {
            moved = false;
            for (const int item : items)
                moved = Sift(item) || moved;
        }
    }

    void SiftAll() {
        constexpr int rounds = 6;
        Unsettle();
        bool moved = true;
        for (int round = 0; round < rounds && moved; ++round) {
            moved = false;
            const Layers now = layers_;
            for (const std::vector<int>& layer : now) {
                if (stop_.stop_requested())
                    return;
                for (const int item : layer)
                    moved = Sift(item) || moved;
            }
        }
    }

  private:
    struct Sorted {
        std::int64_t Wish; // the middle of what the item is joined to
        int Place;         // before, which decides between equal ones
        int Item;

        auto operator<=>(const Sorted&) const = default;
    };

    struct Candidate {
        int Crossings = std::numeric_limits<int>::max();
        Layers Order;
    };

    void Take(const Layers& layers) {
        layers_ = layers;
        for (const std::vector<int>& layer : layers_)
            neighbours_.TakePlaces(layer);
    }

    void KeepIfBetter() { KeepBetter(best_); }

    void KeepBetter(Candidate& best) const {
        const int crossings = CountAll(layers_, neighbours_);
        if (crossings < best.Crossings)
            best = {crossings, layers_};
    }

    // Items in the order in which a walk along the lines meets them.
    void WalkOrder(bool fromBehind, bool mirrored) {
        std::vector<bool> seen(layered_.Items.size());
        Layers ordered(layers_.size());
        const int count = int(layers_.size());
        for (int i = 0; i < count; ++i) {
            for (const int item : layers_[fromBehind ? count - 1 - i : i])
                Walk(item, fromBehind ? Side::Before : Side::Behind, seen, ordered);
        }
        if (mirrored) {
            for (std::vector<int>& layer : ordered)
                std::reverse(layer.begin(), layer.end());
        }
        Take(ordered);
    }

    void Walk(int from, Side side, std::vector<bool>& seen, Layers& ordered) const {
        std::vector<int> open{from};
        while (!open.empty()) {
            const int item = open.back();
            open.pop_back();
            if (seen[item])
                continue;
            seen[item] = true;
            ordered[layered_.Items[item].Layer].push_back(item);
            const std::span<const Neighbours::Neighbour> next = neighbours_.Of(item, side);
            for (std::size_t i = next.size(); i-- > 0;)
                open.push_back(next[i].Item);
        }
    }

    Candidate Swept(bool byMiddle) {
        constexpr int passes = 24;
        constexpr int patience = 6; // passes without a gain
        Candidate best;
        for (int pass = 0, idle = 0; pass < passes && idle < patience && best.Crossings > 0; ++pass) {
            const int last = best.Crossings;
            Sweep(pass % 2 == 0 ? Side::Before : Side::Behind, byMiddle);
            KeepBetter(best);
            idle = stop_.stop_requested() ? patience : best.Crossings < last ? 0 : idle + 1;
        }
        return best;
    }

    void Sweep(Side side, bool byMiddle) {
        const int count = int(layers_.size());
        for (int i = 1; i < count; ++i)
            SortLayer(layers_[side == Side::Before ? i : count - 1 - i], side, byMiddle);
    }

    // Items that are joined to nothing on that side keep their places.
    void SortLayer(std::vector<int>& layer, Side side, bool byMiddle) {
        sorted_.clear();
        for (const int item : layer) {
            if (!neighbours_.Of(item, side).empty())
                sorted_.push_back(
                    {byMiddle ? Middle(item, side) : Average(item, side), neighbours_.Place(item), item});
        }
        std::sort(sorted_.begin(), sorted_.end());
        auto next = sorted_.begin();
        for (int& item : layer) {
            if (!neighbours_.Of(item, side).empty())
                item = (next++)->Item;
        }
        neighbours_.TakePlaces(layer);
    }

    std::int64_t Average(int item, Side side) const {
        constexpr std::int64_t parts = 1 << 16; // of a place
        std::int64_t sum = 0;
        std::int64_t lines = 0;
        for (const Neighbours::Neighbour& other : neighbours_.Of(item, side)) {
            sum += std::int64_t(neighbours_.Place(other.Item)) * other.Lines;
            lines += other.Lines;
        }
        return sum * parts / lines;
    }

    std::int64_t Middle(int item, Side side) {
        places_.clear();
        for (const Neighbours::Neighbour& other : neighbours_.Of(item, side))
            places_.push_back(neighbours_.Place(other.Item));
        std::sort(places_.begin(), places_.end());
        const std::size_t half = places_.size() / 2;
        return places_.size() % 2 == 1 ? 2 * places_[half] : places_[half - 1] + places_[half];
    }

    // Moves the item to the place of its layer where its lines cross least; false when it stands there. That
    // is known without looking as long as nothing beside it has moved.
    bool Sift(int item) {
        const int number = layered_.Items[item].Layer;
        if (settled_[item] == MovesAround(number))
            return false;
        const bool moved = MoveToBest(item, layers_[number]);
        moves_[number] += moved ? 1 : 0;
        settled_[item] = MovesAround(number);
        return moved;
    }

    int MovesAround(int layer) const {
        return moves_[layer] + (layer > 0 ? moves_[layer - 1] : 0) +
               (layer + 1 < int(moves_.size()) ? moves_[layer + 1] : 0);
    }

    void Unsettle() {
        moves_.assign(layers_.size(), 0);
        settled_.assign(layered_.Items.size(), -1);
    }

    bool MoveToBest(int item, std::vector<int>& layer) {
        const int own = neighbours_.Place(item);
        int best = own;
        int least = 0;
        for (int at = own - 1, change = 0; at >= 0; --at) {
            change -= neighbours_.GainOfExchange(layer[at], item);
            if (change < least) {
                least = change;
                best = at;
            }
        }
        for (int at = own + 1, change = 0; at < int(layer.size()); ++at) {
            change -= neighbours_.GainOfExchange(item, layer[at]);
            if (change < least) {
                least = change;
                best = at;
            }
        }
        if (best == own)
            return false;
        layer.erase(layer.begin() + own);
        layer.insert(layer.begin() + best, item);
        neighbours_.TakePlaces(layer);
        return true;
    }

    Layered& layered_;
    Layers& layers_;
    Neighbours neighbours_;
    const std::stop_token stop_;
    std::vector<Sorted> sorted_; // of one layer
    std::vector<int> places_;    // of one item's neighbours
    std::vector<int> moves_;     // of items, by layer
    std::vector<int> settled_;   // by item: the moves around it when it stood at its best place; -1 for none
    Candidate best_;
};

} // namespace

int CountCrossings(const Layered& layered) { return CountAll(layered.Layers, Neighbours(layered)); }

void OrderLayers(Layered& layered, const std::stop_token& stop) {
    PairedLines paired(layered);
    Orderer(paired.Paired, stop).FindBest();
    paired.Unpair(layered);
    Orderer whole(layered, stop);
    constexpr std::size_t most = 500; // items, beyond which a second search takes longer than it is worth
    if (layered.Items.size() <= most)
        whole.FindBest();
    else
        whole.SiftAll();
}

void OrderRoughly(Layered& layered) {
    PairedLines paired(layered);
    Orderer(paired.Paired).FindRough();
    paired.Unpair(layered);
}

void PlaceAmong(Layered& layered, const std::vector<int>& items) { Orderer(layered).Place(items); }

} // namespace orvane::diagram
