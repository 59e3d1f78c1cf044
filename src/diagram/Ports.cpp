// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Extents.h"
#include "diagram/Layered.h"

#include <algorithm>

namespace orvane::diagram {

namespace {

class PortAssigner {
  public:
    explicit PortAssigner(Layered& layered)
        : layered_(layered),
          place_(layered.Items.size()),
          before_(layered.Items.size()),
          behind_(layered.Items.size()) {
        for (const std::vector<int>& layer : layered.Layers) {
            for (std::size_t i = 0; i < layer.size(); ++i)
                place_[layer[i]] = int(i);
        }
        for (std::size_t i = 0; i < layered.Segments.size(); ++i) {
            behind_[layered.Segments[i].Left].push_back(int(i));
            before_[layered.Segments[i].Right].push_back(int(i));
        }
    }

    void Assign() {
        for (std::size_t item = 0; item < layered_.Items.size(); ++item) {
            Sort(before_[item], &Segment::Left);
            Sort(behind_[item], &Segment::Right);
            if (layered_.Items[item].Kind == ItemKind::State)
                AssignBox(int(item));
        }
        for (const Chain& chain : layered_.Chains) {
            for (const int item : chain.Items) {
                if (layered_.Items[item].Kind == ItemKind::Label)
                    AssignLabel(item, chain.Turns);
            }
        }
    }

  private:
    void Sort(std::vector<int>& segments, int Segment::*end) const {
        std::stable_sort(segments.begin(), segments.end(), [&](int one, int other) {
            return place_[layered_.Segments[one].*end] < place_[layered_.Segments[other].*end];
        });
    }

    void AssignBox(int item) {
        Item& box = layered_.Items[item];
        const int most = int(std::max(before_[item].size(), behind_[item].size()));
        box.Across = std::max(box.Across, (most + 1) * kPortDistance);
        Spread(before_[item], &Segment::RightPort, box.Across);
        Spread(behind_[item], &Segment::LeftPort, box.Across);
    }

    void Spread(const std::vector<int>& segments, int Segment::*port, int across) {
        const int parts = int(segments.size()) + 1;
        for (int i = 1; i < parts; ++i)
            layered_.Segments[segments[i - 1]].*port = across * i / parts - across / 2;
    }

    // The line passes at the label's edge, or turns back before its middle.
    void AssignLabel(int item, bool turns) {
        if (turns) {
            layered_.Segments[before_[item].front()].RightPort = -kTurnWidth / 2;
            layered_.Segments[before_[item].back()].RightPort = kTurnWidth / 2;
            return;
        }
        const int line = LinePort(layered_.Items[item]);
        layered_.Segments[before_[item].front()].RightPort = line;
        layered_.Segments[behind_[item].front()].LeftPort = line;
    }

    int LinePort(const Item& label) const {
        return layered_.LinesAreFirst ? 1 - label.Across / 2 : label.Across / 2 - 1;
    }

    Layered& layered_;
    std::vector<int> place_;               // of items in their layers
    std::vector<std::vector<int>> before_; // segments by item
    std::vector<std::vector<int>> behind_;
};

} // namespace

void AssignPorts(Layered& layered) { PortAssigner(layered).Assign(); }

} // namespace orvane::diagram
