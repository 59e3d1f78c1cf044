// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Places.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace orvane::diagram {

namespace {

Point Middle(const Rect& rect) { return {rect.X + rect.Width / 2, rect.Y + rect.Height / 2}; }

// How far it is from one point to the other that way; what lies to the side counts more, and what lies
// behind cannot be reached.
int Distance(Point from, Point to, Heading heading) {
    const bool isLevel = heading == Heading::Left || heading == Heading::Right;
    const bool isBackward = heading == Heading::Left || heading == Heading::Up;
    const int x = to.X - from.X;
    const int y = to.Y - from.Y;
    const int ahead = (isLevel ? x : y) * (isBackward ? -1 : 1);
    constexpr int weight = 3;
    return ahead > 0 ? ahead + weight * std::abs(isLevel ? y : x) : std::numeric_limits<int>::max();
}

Hit FromState(const Scene& scene, const Layout& layout, std::size_t state, Heading heading) {
    Hit next{state, {}};
    int nearest = std::numeric_limits<int>::max();
    const Point from = Middle(layout.States[state].Box);
    for (std::size_t i = 0; i < scene.Edges.size(); ++i) {
        const StateNumber own = scene.States[state].Number;
        if (scene.Edges[i].From != own && scene.Edges[i].To != own)
            continue;
        const int distance = Distance(from, Middle(layout.Edges[i].Label), heading);
        if (distance < nearest) {
            nearest = distance;
            next = {{}, i};
        }
    }
    return next;
}

Hit FromEdge(const Scene& scene, const Layout& layout, std::size_t edge, Heading heading) {
    const Point from = Middle(layout.Edges[edge].Label);
    const auto tail = scene.IndexOf(scene.Edges[edge].From);
    const auto head = scene.IndexOf(scene.Edges[edge].To);
    const int toTail = Distance(from, Middle(layout.States[*tail].Box), heading);
    const int toHead = Distance(from, Middle(layout.States[*head].Box), heading);
    if (std::min(toTail, toHead) == std::numeric_limits<int>::max())
        return {{}, edge};
    return {toHead <= toTail ? head : tail, {}};
}

} // namespace

std::vector<Cell> CellsOf(const Scene& scene, const Hit& hit) {
    std::vector<Cell> cells;
    if (hit.State)
        cells.push_back({kHeadRow, scene.States[*hit.State].Number});
    if (hit.Edge) {
        for (const RowNumber row : scene.Edges[*hit.Edge].Rows)
            cells.push_back({row, scene.Edges[*hit.Edge].From});
    }
    return cells;
}

Hit ShownAt(const Scene& scene, Cell cell) {
    for (std::size_t i = 0; i < scene.Edges.size(); ++i) {
        const SceneEdge& edge = scene.Edges[i];
        if (edge.From == cell.State &&
            std::find(edge.Rows.begin(), edge.Rows.end(), cell.Row) != edge.Rows.end())
            return {{}, i};
    }
    return {scene.IndexOf(cell.State), {}};
}

std::optional<Cell> CellAtLabel(const Scene& scene, const Layout& layout, const TextSizes& sizes,
                                Point point) {
    const Hit hit = HitAt(layout, point, 0);
    if (!hit.Edge || point.Y < layout.Edges[*hit.Edge].Label.Y)
        return std::nullopt;
    const SceneEdge& edge = scene.Edges[*hit.Edge];
    const auto line =
        std::size_t((point.Y - layout.Edges[*hit.Edge].Label.Y) / sizes.LineHeight(TextRole::Line));
    const std::size_t named = edge.Label.size() - (edge.Rows.size() > edge.Label.size() ? 1 : 0);
    if (line >= named || point.X >= layout.Edges[*hit.Edge].Label.Right() ||
        point.X < layout.Edges[*hit.Edge].Label.X)
        return std::nullopt;
    return Cell{edge.Rows[line], edge.From};
}

Hit StepFrom(const Scene& scene, const Layout& layout, const Hit& from, Heading heading) {
    if (from.State)
        return FromState(scene, layout, *from.State, heading);
    if (from.Edge)
        return FromEdge(scene, layout, *from.Edge, heading);
    return scene.States.empty() ? Hit() : Hit{0, {}};
}

} // namespace orvane::diagram
