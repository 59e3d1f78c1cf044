// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Columns.h"
#include "diagram/Layout.h"
#include "diagram/Order.h"
#include "diagram/Positions.h"
#include "diagram/Ranks.h"
#include "diagram/Routes.h"
#include "diagram/Straighten.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace orvane::diagram {

namespace {

RankGraph GraphOf(const Scene& scene) {
    RankGraph graph{scene.States.size(), {}};
    for (const SceneEdge& edge : scene.Edges)
        graph.Arcs.push_back({int(*scene.IndexOf(edge.From)), int(*scene.IndexOf(edge.To))});
    return graph;
}

// States without lines are dealt out, so that they make no column of their own.
void DealOutLonely(const RankGraph& graph, std::vector<int>& ranks) {
    std::vector<bool> isJoined(graph.Nodes);
    for (const RankGraph::Arc& arc : graph.Arcs)
        isJoined[arc.Tail] = isJoined[arc.Head] = true;
    const auto lonely = std::count(isJoined.begin(), isJoined.end(), false);
    int columns = ranks.empty() ? 1 : *std::max_element(ranks.begin(), ranks.end()) + 1;
    while (columns * columns < lonely)
        ++columns;
    int next = 0;
    for (std::size_t node = 0; node < graph.Nodes; ++node) {
        if (!isJoined[node])
            ranks[node] = next++ % columns;
    }
}

Layered Planned(const Scene& scene, const TextSizes& sizes, Direction direction, WayBack way) {
    const RankGraph graph = GraphOf(scene);
    std::vector<int> layers = Ranks(graph, ArcsBack(graph, way));
    DealOutLonely(graph, layers);
    std::transform(layers.begin(), layers.end(), layers.begin(), LayerOfRank);
    Layered layered = MakeLayered(scene, PlanLayers(scene, std::move(layers)), sizes, direction);
    OrderRoughly(layered);
    return layered;
}

// A rough order tells which ranks are promising; only those are worth a long search.
Layered BestOrdered(const Scene& scene, const TextSizes& sizes, Direction direction,
                    const std::stop_token& stop) {
    std::vector<std::pair<int, Layered>> rough;
    for (const WayBack way : {WayBack::ClosesCircle, WayBack::ClosesCircleLastFirst, WayBack::LeadsNearer,
                              WayBack::FewLeadBack}) {
        Layered layered = Planned(scene, sizes, direction, way);
        rough.emplace_back(CountCrossings(layered), std::move(layered));
    }
    std::stable_sort(rough.begin(), rough.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    rough.resize(rough.front().first == 0 ? 1 : 3);
    for (auto& [crossings, layered] : rough) {
        OrderLayers(layered, stop);
        crossings = CountCrossings(layered);
    }
    const auto best = std::min_element(rough.begin(), rough.end(), [](const auto& one, const auto& other) {
        return one.first < other.first;
    });
    return std::move(best->second);
}

// Moves everything so that the upper left corner of the picture is 0, 0.
Layout FromCorner(const Scene& scene, Layered layered, std::vector<Column> columns, const TextSizes& sizes,
                  Direction direction) {
    const Rect bounds = Draw(scene, layered, columns, sizes, direction).Bounds;
    const bool isTopDown = direction == Direction::TopDown;
    for (Item& item : layered.Items)
        item.Position -= isTopDown ? bounds.X : bounds.Y;
    for (Column& column : columns)
        column.Begin -= isTopDown ? bounds.Y : bounds.X;
    return Draw(scene, layered, columns, sizes, direction);
}

// How small a picture is shown in the window, in parts of a million.
std::int64_t Scale(const Rect& picture, const Rect& window) {
    constexpr std::int64_t million = 1'000'000;
    return std::min(million * window.Width / std::max(picture.Width, 1),
                    million * window.Height / std::max(picture.Height, 1));
}

} // namespace

Layout ColdLayout(const Scene& scene, const TextSizes& sizes, Direction direction,
                  const std::stop_token& stop) {
    Layered best = BestOrdered(scene, sizes, direction, stop);
    AssignPorts(best);
    AssignPositions(best);
    Straighten(best);
    std::vector<Column> columns = MakeColumns(best);
    return FromCorner(scene, std::move(best), std::move(columns), sizes, direction);
}

Layout FittingLayout(const Scene& scene, const TextSizes& sizes, Rect window) {
    Layout across = ColdLayout(scene, sizes, Direction::LeftToRight);
    Layout down = ColdLayout(scene, sizes, Direction::TopDown);
    return Scale(down.Bounds, window) > Scale(across.Bounds, window) ? down : across;
}

int CrossingsSaved(const Layout& shown, const Layout& cold) {
    constexpr int fewest = 3;
    const int saved = shown.Crossings - cold.Crossings;
    return saved >= fewest && saved * 3 >= shown.Crossings ? saved : 0;
}

} // namespace orvane::diagram
