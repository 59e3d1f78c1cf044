// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Straighten.h"

#include "diagram/Extents.h"

#include <algorithm>
#include <limits>

namespace orvane::diagram {

namespace {

// Where a line may pass, both included.
struct Room {
    int Low = std::numeric_limits<int>::min() / 2;
    int High = std::numeric_limits<int>::max() / 2;

    bool IsEmpty() const { return Low > High; }
    Room With(const Room& other) const { return {std::max(Low, other.Low), std::min(High, other.High)}; }
};

class Straightener {
  public:
    explicit Straightener(Layered& layered) : layered_(layered), place_(layered.Items.size()) {
        for (const std::vector<int>& layer : layered.Layers) {
            for (std::size_t i = 0; i < layer.size(); ++i)
                place_[layer[i]] = int(i);
        }
    }

    void Do() {
        constexpr int rounds = 3; // a line that moved may make way for another one
        for (int round = 0; round < rounds; ++round) {
            for (const Chain& chain : layered_.Chains) {
                if (!chain.Turns && chain.Items.size() > 2)
                    Straighten(chain);
            }
        }
    }

  private:
    // The line's distance from the middle of the chain's item.
    int Port(const Chain& chain, std::size_t at) const {
        return at == 0 ? layered_.Segments[chain.Segments.front()].LeftPort
                       : layered_.Segments[chain.Segments[at - 1]].RightPort;
    }

    int LineAt(const Chain& chain, std::size_t at) const {
        return layered_.Items[chain.Items[at]].Position + Port(chain, at);
    }

    // Where the line may pass the item: it may be moved up to its neighbours.
    Room RoomAt(const Chain& chain, std::size_t at) const {
        const int index = chain.Items[at];
        const Item& item = layered_.Items[index];
        if (item.Kind == ItemKind::State || item.Kind == ItemKind::Start || !item.IsFree)
            return {LineAt(chain, at), LineAt(chain, at)};
        const std::vector<int>& layer = layered_.Layers[item.Layer];
        const int place = place_[index];
        Room room;
        const auto between = [&](const Item& other) {
            return (item.Across + 1) / 2 + (other.Across + 1) / 2 + Distance(item, other);
        };
        if (place > 0) {
            const Item& before = layered_.Items[layer[place - 1]];
            room.Low = before.Position + between(before) + Port(chain, at);
        }
        if (place + 1 < int(layer.size())) {
            const Item& next = layered_.Items[layer[place + 1]];
            room.High = next.Position - between(next) + Port(chain, at);
        }
        return room;
    }

    // Takes runs of items, each as long as one straight line can pass them all.
    void Straighten(const Chain& chain) {
        std::size_t first = 0;
        Room room = RoomAt(chain, 0);
        for (std::size_t at = 1; at < chain.Items.size(); ++at) {
            const Room here = RoomAt(chain, at);
            const Room both = room.With(here);
            if (both.IsEmpty()) {
                MoveTo(chain, first, at, room);
                first = at;
                room = here;
            } else {
                room = both;
            }
        }
        MoveTo(chain, first, chain.Items.size(), room);
    }

    void MoveTo(const Chain& chain, std::size_t first, std::size_t end, Room room) {
        long sum = 0;
        for (std::size_t at = first; at < end; ++at)
            sum += LineAt(chain, at);
        const int line = std::clamp(int(sum / long(end - first)), room.Low, room.High);
        for (std::size_t at = first; at < end; ++at)
            layered_.Items[chain.Items[at]].Position = line - Port(chain, at);
    }

    Layered& layered_;
    std::vector<int> place_;
};

} // namespace

void Straighten(Layered& layered) { Straightener(layered).Do(); }

} // namespace orvane::diagram
