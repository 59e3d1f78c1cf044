// SPDX-License-Identifier: GPL-3.0-or-later
// The ways through a state space that steps of a test can go. A test settles the machine when power comes on
// and at the end of a wait, with the inputs that are there; between that it may scan with any inputs.
#pragma once

#include "run/StateSpace.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <queue>
#include <span>
#include <stop_token>
#include <utility>
#include <vector>

namespace orvane::run {

struct TestableWay {
    std::uint32_t To = 0;     // where it ends: of a wait, settled
    std::uint64_t Events = 0; // that are there
    Units Wait = 0;           // 0 for scans and for power that comes on
    bool IsPowerOn = false;
    std::vector<Cell> Transitions; // that are taken

    // How many lines of a test it takes; settling is part of the line before. Inputs that are there when
    // power comes on stay, and mostly have to go again.
    int Cost() const {
        if (IsPowerOn)
            return Events == 0 ? 1 : 3;
        return Wait == 0 && Events == 0 ? 0 : 1;
    }
};

class TestableWays {
  public:
    // All must outlive this. Not all ways are there once somebody says stop.
    TestableWays(const Machine& machine, const Inputs& given, const StateSpace& space,
                 const std::stop_token& stop = {});

    std::span<const TestableWay> From(std::uint32_t place) const { return ways_[place]; }
    const StateSpace& Space() const { return space_; }

  private:
    void AddWaits(std::uint32_t place, const SpaceWay& wait);
    std::optional<TestableWay> Settled(const SpaceWay& wait, std::uint64_t events) const;

    const Machine& machine_;
    const Inputs& given_;
    const StateSpace& space_;
    std::vector<std::vector<TestableWay>> ways_;
};

// The fewest steps from one of the places to a way that ends it; that way is the last one. Empty when there
// is none.
template <typename Ends>
std::vector<const TestableWay*> ShortestWay(const TestableWays& ways, std::span<const std::uint32_t> from,
                                            const Ends& ends) {
    struct Reached {
        const TestableWay* By = nullptr;
        std::uint32_t From = 0;
        int Cost = -1;
    };
    std::vector<Reached> reached(ways.Space().Places());
    using Open = std::pair<int, std::uint32_t>; // what it takes to get there
    std::priority_queue<Open, std::vector<Open>, std::greater<>> open;
    for (const std::uint32_t place : from) {
        reached[place].Cost = 0;
        open.emplace(0, place);
    }
    Reached end; // its way is the last one
    while (!open.empty()) {
        const auto [cost, place] = open.top();
        open.pop();
        if (end.By != nullptr && cost >= end.Cost)
            break;
        if (cost > reached[place].Cost)
            continue; // a shorter one was found meanwhile
        for (const TestableWay& way : ways.From(place)) {
            const bool isEnd = ends(place, way);
            Reached& next = isEnd ? end : reached[way.To];
            const int total = cost + way.Cost();
            if (next.Cost >= 0 && next.Cost <= total)
                continue;
            next = {&way, place, total};
            if (!isEnd)
                open.emplace(total, way.To);
        }
    }
    std::vector<const TestableWay*> way;
    for (const Reached* step = &end; step->By != nullptr; step = &reached[step->From])
        way.push_back(step->By);
    std::reverse(way.begin(), way.end());
    return way;
}

} // namespace orvane::run
