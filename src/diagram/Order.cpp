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
#include <cstdint>
#include <limits>

namespace orvane::diagram {

namespace {

using Layers = std::vector<std::vector<int>>;

// Where lines end in the next layer, and how many end there together.
struct End {
    int Place;
    int Lines;
};

// How many pairs of lines stand in the wrong order. Places are less than `limit`.
int Inversions(const std::vector<End>& ends, int limit) {
    std::vector<int> tree(limit + 1); // sums over ranges that double in length
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

int CrossingsBehind(const std::vector<int>& layer, const Neighbours& neighbours, std::size_t nextSize) {
    std::vector<End> ends;
    for (const int item : layer) {
        const std::size_t begin = ends.size();
        for (const Neighbours::Neighbour& next : neighbours.Of(item, Side::Behind))
            ends.push_back({neighbours.Place(next.Item), next.Lines});
        std::sort(ends.begin() + begin, ends.end(),
                  [](const End& one, const End& other) { return one.Place < other.Place; });
    }
    return Inversions(ends, int(nextSize));
}

int CountAll(const Layers& layers, const Neighbours& neighbours) {
    int crossings = 0;
    for (std::size_t i = 0; i + 1 < layers.size(); ++i)
        crossings += CrossingsBehind(layers[i], neighbours, layers[i + 1].size());
    return crossings;
}

class Orderer {
  public:
    explicit Orderer(Layered& layered) : layered_(layered), layers_(layered.Layers), neighbours_(layered) {}

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
        bool moved = true;
        for (int round = 0; round < rounds && moved; ++round) {
            moved = false;
            for (const int item : items)
                moved = Sift(item) || moved;
        }
    }

    void SiftAll() {
        constexpr int rounds = 6;
        bool moved = true;
        for (int round = 0; round < rounds && moved; ++round) {
            moved = false;
            const Layers now = layers_;
            for (const std::vector<int>& layer : now) {
                for (const int item : layer)
                    moved = Sift(item) || moved;
            }
        }
    }

  private:
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
            idle = best.Crossings < last ? 0 : idle + 1;
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
        std::vector<std::pair<std::int64_t, int>> joined;
        for (const int item : layer) {
            if (!neighbours_.Of(item, side).empty())
                joined.push_back({byMiddle ? Middle(item, side) : Average(item, side), item});
        }
        std::stable_sort(joined.begin(), joined.end(),
                         [](const auto& one, const auto& other) { return one.first < other.first; });
        auto next = joined.begin();
        for (int& item : layer) {
            if (!neighbours_.Of(item, side).empty())
                item = (next++)->second;
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

    std::int64_t Middle(int item, Side side) const {
        std::vector<int> places;
        for (const Neighbours::Neighbour& other : neighbours_.Of(item, side))
            places.push_back(neighbours_.Place(other.Item));
        std::sort(places.begin(), places.end());
        const std::size_t half = places.size() / 2;
        return places.size() % 2 == 1 ? 2 * places[half] : places[half - 1] + places[half];
    }

    // Moves the item to the place of its layer where its lines cross least; false when it stands there.
    bool Sift(int item) {
        std::vector<int>& layer = layers_[layered_.Items[item].Layer];
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
    Candidate best_;
};

} // namespace

int CountCrossings(const Layered& layered) { return CountAll(layered.Layers, Neighbours(layered)); }

void OrderLayers(Layered& layered) {
    PairedLines paired(layered);
    Orderer(paired.Paired).FindBest();
    paired.Unpair(layered);
    Orderer whole(layered);
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
