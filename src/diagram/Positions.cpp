// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Positions.h"

#include "diagram/Extents.h"
#include "diagram/Spacing.h"

#include <algorithm>
#include <array>

namespace orvane::diagram {

namespace {

constexpr std::int64_t kUnit = 16; // positions are counted in these parts of a pixel, so that means are exact

// A line that bends on its way is worse than one that meets its box aslant.
int StraightWeight(ItemKind one, ItemKind other) {
    const auto isEnd = [](ItemKind kind) { return kind == ItemKind::State || kind == ItemKind::Start; };
    return isEnd(one) && isEnd(other) ? 1 : isEnd(one) || isEnd(other) ? 2 : 8;
}

class Positioner {
  public:
    explicit Positioner(Layered& layered)
        : layered_(layered), at_(layered.Items.size()), before_(at_.size()), behind_(at_.size()) {
        for (const Segment& segment : layered.Segments) {
            const int weight =
                StraightWeight(layered.Items[segment.Left].Kind, layered.Items[segment.Right].Kind);
            const std::int64_t shift = kUnit * (segment.LeftPort - segment.RightPort);
            behind_[segment.Left].push_back({segment.Right, -shift, weight});
            before_[segment.Right].push_back({segment.Left, shift, weight});
        }
        for (const std::vector<int>& layer : layered.Layers)
            distances_.push_back(DistancesOf(layer));
    }

    void FindAll() {
        StackUp();
        constexpr int sweeps = 4;  // looking at one side, which spreads far
        constexpr int rounds = 40; // looking at both, which settles
        for (int i = 0; i < sweeps; ++i) {
            for (const bool forward : {true, false})
                Sweep(forward, forward, !forward);
        }
        for (int i = 0; i < rounds; ++i)
            Sweep(i % 2 == 0, true, true);
        Store();
    }

    void FindFree() {
        for (std::size_t i = 0; i < at_.size(); ++i)
            at_[i] = layered_.Items[i].Position * kUnit;
        constexpr int rounds = 6;
        for (int i = 0; i < rounds; ++i) {
            for (std::size_t layer = 0; layer < layered_.Layers.size(); ++layer)
                Adjust(layer);
        }
        Store();
    }

  private:
    struct Pull {
        int From;
        std::int64_t Shift;
        int Weight;
    };

    std::vector<std::int64_t> DistancesOf(const std::vector<int>& layer) const {
        std::vector<std::int64_t> distances;
        for (std::size_t i = 0; i + 1 < layer.size(); ++i) {
            const Item& one = layered_.Items[layer[i]];
            const Item& next = layered_.Items[layer[i + 1]];
            const int halves = (one.Across + 1) / 2 + (next.Across + 1) / 2;
            distances.push_back(kUnit * (halves + Distance(one, next)));
        }
        return distances;
    }

    void StackUp() {
        for (std::size_t layer = 0; layer < layered_.Layers.size(); ++layer) {
            std::int64_t place = 0;
            for (std::size_t i = 0; i < layered_.Layers[layer].size(); ++i) {
                place += i == 0 ? 0 : distances_[layer][i - 1];
                at_[layered_.Layers[layer][i]] = place;
            }
        }
    }

    void Sweep(bool forward, bool fromBefore, bool fromBehind) {
        const std::size_t count = layered_.Layers.size();
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t layer = forward ? i : count - 1 - i;
            std::vector<Wish> wishes;
            for (const int item : layered_.Layers[layer])
                wishes.push_back(WishOf(item, fromBefore, fromBehind));
            Settle(layer, wishes);
        }
    }

    void Settle(std::size_t layer, const std::vector<Wish>& wishes) {
        const std::vector<std::int64_t> places = SpacedPlaces(wishes, distances_[layer]);
        for (std::size_t i = 0; i < places.size(); ++i)
            at_[layered_.Layers[layer][i]] = places[i];
    }

    // The weighted mean of where the lines would be straight; its own place for what has no lines there.
    Wish WishOf(int item, bool fromBefore, bool fromBehind) const {
        std::int64_t sum = 0;
        std::int64_t weight = 0;
        const auto add = [&](const std::vector<Pull>& pulls) {
            for (const Pull& pull : pulls) {
                sum += (at_[pull.From] + pull.Shift) * pull.Weight;
                weight += pull.Weight;
            }
        };
        if (fromBefore)
            add(before_[item]);
        if (fromBehind)
            add(behind_[item]);
        return weight == 0 ? Wish{at_[item], 1} : Wish{sum / weight, weight};
    }

    void Adjust(std::size_t layer) {
        constexpr std::int64_t ofState = 100'000;
        constexpr std::int64_t ofLine = 1'000;
        std::vector<Wish> wishes;
        for (const int index : layered_.Layers[layer]) {
            const Item& item = layered_.Items[index];
            if (item.IsFree)
                wishes.push_back(WishOf(index, true, true));
            else
                wishes.push_back({item.Position * kUnit, item.Kind == ItemKind::State ? ofState : ofLine});
        }
        Settle(layer, wishes);
    }

    // Rounding up keeps distances of whole pixels.
    void Store() {
        const std::int64_t up = kUnit - 1;
        for (std::size_t i = 0; i < at_.size(); ++i) {
            const std::int64_t place = at_[i] >= 0 ? (at_[i] + up) / kUnit : -(-at_[i] / kUnit);
            layered_.Items[i].Position = int(place);
        }
    }

    Layered& layered_;
    std::vector<std::int64_t> at_;
    std::vector<std::vector<Pull>> before_;
    std::vector<std::vector<Pull>> behind_;
    std::vector<std::vector<std::int64_t>> distances_; // by layer
};

} // namespace

void AssignPositions(Layered& layered) { Positioner(layered).FindAll(); }

void AdjustPositions(Layered& layered) { Positioner(layered).FindFree(); }

} // namespace orvane::diagram
