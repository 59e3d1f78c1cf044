// SPDX-License-Identifier: GPL-3.0-or-later
// What surrounds a machine while it is walked: time, events and the values of variables.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace orvane::test {

// One moment at which a machine looks around.
struct Tick {
    long Elapsed = 0;         // time units since the moment before
    std::uint64_t Events = 0; // bit r: the event of row r is present
    long Limit = 0;           // what the variable limits are computed from
};
void showValue(const Tick& tick, std::ostream& out);

// A machine sees one moment until it lets time pass; then it sees the next. Before the first it is time 0 and
// no event is present.
class World {
  public:
    explicit World(std::vector<Tick> ticks) : ticks_(std::move(ticks)) {}

    // Lets time pass to the next moment; false when there is none.
    bool Advance() {
        if (next_ == ticks_.size())
            return false;
        present_ = ticks_[next_++];
        now_ += present_.Elapsed;
        return true;
    }
    long Now() const { return now_; }
    bool HasEvent(int row) const { return (present_.Events >> static_cast<unsigned>(row) & 1U) != 0; }
    // The variable time limit of a state, another one in each.
    long LimitOf(int state) const { return (present_.Limit + state) % 7; }

  private:
    std::vector<Tick> ticks_;
    std::size_t next_ = 0;
    Tick present_;
    long now_ = 0;
};

// What a machine did, one line each: the user texts that it ran, and where it stood when time passed.
using Trace = std::vector<std::string>;

inline std::string StoodIn(int state) { return "stood in state " + std::to_string(state); }

// States that ELSE leaves do not let time pass, so that a ring of them never ends. A walk that polls this
// often at one moment goes round in such a ring and is given up.
inline constexpr int kMostPollsAtOneMoment = 250;
inline const std::string kGoesRound = "goes round without time passing";

// A reproducible stream; few events at a time, as they come in life.
std::vector<Tick> RandomTicks(unsigned seed, int count);

} // namespace orvane::test
