// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Shapes.h"

#include "diagram/Extents.h"

namespace orvane::diagram {

std::array<Point, 3> ArrowHead(const Path& line) {
    constexpr int length = 8;
    constexpr int half = 3;
    const Point end = line.Pieces.back().End;
    const Point from = line.Pieces.size() > 1 ? line.Pieces[line.Pieces.size() - 2].End : line.Begin;
    const int x = from.X == end.X ? 0 : from.X < end.X ? -length : length;
    const int y = from.Y == end.Y ? 0 : from.Y < end.Y ? -length : length;
    if (x != 0)
        return {end, {end.X + x, end.Y - half}, {end.X + x, end.Y + half}};
    return {end, {end.X - half, end.Y + y}, {end.X + half, end.Y + y}};
}

Point TextCorner(const SceneState& state, const Rect& box, const TextSizes& sizes) {
    return {box.X + kBoxMargin, box.Y + (box.Height - BoxExtent(state, sizes).Height) / 2 + kBoxMargin};
}

} // namespace orvane::diagram
