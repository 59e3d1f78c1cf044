// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/LayoutMemory.h"

namespace orvane::diagram {

LayoutMemory Remember(const Scene& scene, const Layered& layered, const std::vector<Column>& columns,
                      Direction direction) {
    LayoutMemory memory{direction, columns, {}, {}, {}};
    const auto placeOf = [&](int item) {
        return KnownPlace{layered.Items[item].Layer, layered.Items[item].Position};
    };
    for (std::size_t i = 0; i < scene.States.size(); ++i) {
        const KnownPlace place = placeOf(int(i));
        memory.States.push_back(
            {scene.States[i].Number, scene.States[i].OwnName, place.Layer, place.Position});
    }
    for (std::size_t i = 0; i < scene.Edges.size(); ++i) {
        KnownEdge edge{scene.Edges[i].From, scene.Edges[i].To, 0, {}};
        for (const int item : layered.Chains[i].Items) {
            if (layered.Items[item].Kind == ItemKind::State)
                continue;
            edge.Places.push_back(placeOf(item));
            if (layered.Items[item].Kind == ItemKind::Label)
                edge.LabelLayer = layered.Items[item].Layer;
        }
        memory.Edges.push_back(std::move(edge));
    }
    if (layered.HasStart)
        memory.Start.push_back(placeOf(layered.Chains.back().Items.front()));
    return memory;
}

} // namespace orvane::diagram
