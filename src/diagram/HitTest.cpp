// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/HitTest.h"

#include <algorithm>
#include <cstdint>

namespace orvane::diagram {

namespace {

bool Holds(const Rect& rect, Point point) {
    return point.X >= rect.X && point.X < rect.Right() && point.Y >= rect.Y && point.Y < rect.Bottom();
}

constexpr int kParts = 16; // of a curve

int OnCurve(std::int64_t begin, std::int64_t first, std::int64_t second, std::int64_t end,
            std::int64_t part) {
    const std::int64_t rest = kParts - part;
    const std::int64_t sum = rest * rest * rest * begin + 3 * rest * rest * part * first +
                             3 * rest * part * part * second + part * part * part * end;
    return int(sum / (kParts * kParts * kParts));
}

// Squared, of a point from the straight line between two others.
std::int64_t DistanceFrom(Point from, Point to, Point point) {
    const std::int64_t alongX = to.X - from.X;
    const std::int64_t alongY = to.Y - from.Y;
    const std::int64_t length = alongX * alongX + alongY * alongY;
    const std::int64_t toX = point.X - from.X;
    const std::int64_t toY = point.Y - from.Y;
    const std::int64_t part = std::clamp<std::int64_t>(toX * alongX + toY * alongY, 0, length);
    const std::int64_t offX = length == 0 ? toX : toX - alongX * part / length;
    const std::int64_t offY = length == 0 ? toY : toY - alongY * part / length;
    return offX * offX + offY * offY;
}

std::int64_t DistanceFrom(const Path& line, Point point) {
    const std::vector<Point> points = PointsOn(line);
    std::int64_t least = DistanceFrom(points.front(), points.front(), point);
    for (std::size_t i = 1; i < points.size(); ++i)
        least = std::min(least, DistanceFrom(points[i - 1], points[i], point));
    return least;
}

} // namespace

std::vector<Point> PointsOn(const Path& line) {
    std::vector<Point> points{line.Begin};
    for (const PathPiece& piece : line.Pieces) {
        const Point begin = points.back();
        for (int part = 1; piece.IsCurve && part < kParts; ++part)
            points.push_back({OnCurve(begin.X, piece.First.X, piece.Second.X, piece.End.X, part),
                              OnCurve(begin.Y, piece.First.Y, piece.Second.Y, piece.End.Y, part)});
        points.push_back(piece.End);
    }
    return points;
}

Hit HitAt(const Layout& layout, Point point, int reach) {
    for (std::size_t i = 0; i < layout.States.size(); ++i) {
        if (Holds(layout.States[i].Box, point))
            return {i, {}};
    }
    for (std::size_t i = 0; i < layout.Edges.size(); ++i) {
        if (Holds(layout.Edges[i].Label, point))
            return {{}, i};
    }
    Hit hit;
    std::int64_t least = std::int64_t(reach) * reach + 1;
    for (std::size_t i = 0; i < layout.Edges.size(); ++i) {
        const std::int64_t distance = DistanceFrom(layout.Edges[i].Line, point);
        if (distance < least) {
            least = distance;
            hit.Edge = i;
        }
    }
    return hit;
}

} // namespace orvane::diagram
