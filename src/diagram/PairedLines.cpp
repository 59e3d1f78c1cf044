// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/PairedLines.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane::diagram {

PairedLines::PairedLines(const Layered& layered)
    : pairedOf_(layered.Items.size(), -1), segmentOf_(layered.Segments.size()) {
    std::map<std::pair<int, int>, const Chain*> chains; // by their states
    for (const Chain& chain : layered.Chains) {
        const auto ends = std::minmax(chain.Items.front(), chain.Items.back());
        const auto [first, isNew] = chains.emplace(std::pair(ends.first, ends.second), &chain);
        if (isNew)
            Add(layered, chain);
        else
            Join(layered, chain, *first->second);
    }
    for (std::size_t item = 0; item < layered.Items.size(); ++item)
        Take(layered, int(item));
    Paired.Layers.resize(layered.Layers.size());
    for (std::size_t item = 0; item < Paired.Items.size(); ++item)
        Paired.Layers[Paired.Items[item].Layer].push_back(int(item));
}

void PairedLines::Join(const Layered& layered, const Chain& chain, const Chain& twin) {
    for (std::size_t i = 0; i < chain.Items.size(); ++i) {
        if (layered.Items[chain.Items[i]].Kind == ItemKind::State)
            continue;
        const int paired = pairedOf_[twin.Items[i]];
        pairedOf_[chain.Items[i]] = paired;
        originals_[paired].push_back(chain.Items[i]);
    }
    for (const int segment : twin.Segments)
        ++Paired.Segments[segmentOf_[segment]].Lines;
}

int PairedLines::Take(const Layered& layered, int item) {
    if (pairedOf_[item] < 0) {
        pairedOf_[item] = int(Paired.Items.size());
        Paired.Items.push_back(layered.Items[item]);
        originals_.push_back({item});
    }
    return pairedOf_[item];
}

void PairedLines::Add(const Layered& layered, const Chain& chain) {
    for (const int index : chain.Segments) {
        const Segment& segment = layered.Segments[index];
        segmentOf_[index] = int(Paired.Segments.size());
        Paired.Segments.push_back({Take(layered, segment.Left), Take(layered, segment.Right), 0, 0});
    }
}

void PairedLines::Unpair(Layered& layered) const {
    for (std::size_t layer = 0; layer < layered.Layers.size(); ++layer) {
        layered.Layers[layer].clear();
        for (const int item : Paired.Layers[layer])
            layered.Layers[layer].insert(layered.Layers[layer].end(), originals_[item].begin(),
                                         originals_[item].end());
    }
}

} // namespace orvane::diagram
