// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/World.h"

#include <ostream>
#include <random>

namespace orvane::test {

void showValue(const Tick& tick, std::ostream& out) {
    out << "{elapsed " << tick.Elapsed << ", limit " << tick.Limit << ", events";
    for (unsigned row = 0; row < 64; ++row) {
        if ((tick.Events >> row & 1U) != 0)
            out << ' ' << row;
    }
    out << '}';
}

std::vector<Tick> RandomTicks(unsigned seed, int count) {
    std::mt19937_64 random(seed);
    std::vector<Tick> ticks;
    for (int i = 0; i < count; ++i) {
        std::uint64_t events = random() & random();
        for (auto thinner = random() % 4; thinner > 0; --thinner)
            events &= random();
        ticks.push_back({static_cast<long>(random() % 4), events, static_cast<long>(random() % 7)});
    }
    return ticks;
}

} // namespace orvane::test
