// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PictureFaults.h"

#include "diagram/HitTest.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace orvane::test {

namespace {

using diagram::Layout;
using diagram::Point;
using diagram::Rect;

bool Overlap(const Rect& one, const Rect& other) {
    return one.X < other.Right() && other.X < one.Right() && one.Y < other.Bottom() && other.Y < one.Bottom();
}

bool Holds(const Rect& outer, const Rect& inner) {
    return inner.X >= outer.X && inner.Right() <= outer.Right() && inner.Y >= outer.Y &&
           inner.Bottom() <= outer.Bottom();
}

// Whether the straight line between two points has a point inside the rectangle; its border does not count.
bool Touches(Point from, Point to, const Rect& rect) {
    double first = 0;
    double last = 1;
    const auto clip = [&](double start, double step, double low, double high) {
        if (step == 0)
            return start > low && start < high;
        const double one = (low - start) / step;
        const double other = (high - start) / step;
        first = std::max(first, std::min(one, other));
        last = std::min(last, std::max(one, other));
        return first < last;
    };
    return clip(from.X, to.X - from.X, rect.X, rect.Right()) &&
           clip(from.Y, to.Y - from.Y, rect.Y, rect.Bottom());
}

bool Touches(const std::vector<Point>& line, const Rect& rect) {
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (Touches(line[i - 1], line[i], rect))
            return true;
    }
    return false;
}

bool IsOnBorder(Point point, const Rect& box) {
    const bool inX = point.X >= box.X && point.X <= box.Right();
    const bool inY = point.Y >= box.Y && point.Y <= box.Bottom();
    return inX && inY &&
           (point.X == box.X || point.X == box.Right() || point.Y == box.Y || point.Y == box.Bottom());
}

class FaultCounter {
  public:
    explicit FaultCounter(const Layout& layout) : layout_(layout) {
        for (const auto& edge : layout.Edges)
            lines_.push_back(PointsOn(edge.Line));
    }

    PictureFaults Count() {
        CountOverlaps();
        for (std::size_t i = 0; i < lines_.size(); ++i)
            CountOfLine(i);
        return faults_;
    }

  private:
    void CountOverlaps() {
        std::vector<Rect> things;
        for (const auto& state : layout_.States)
            things.push_back(state.Box);
        for (const auto& edge : layout_.Edges)
            things.push_back(edge.Label);
        if (layout_.Start)
            things.push_back(layout_.Start->Dot);
        for (std::size_t i = 0; i < things.size(); ++i) {
            faults_.OutOfBounds += Holds(layout_.Bounds, things[i]) ? 0 : 1;
            for (std::size_t j = 0; j < i; ++j)
                faults_.Overlaps += Overlap(things[i], things[j]) ? 1 : 0;
        }
    }

    void CountOfLine(std::size_t index) {
        const auto& edge = layout_.Edges[index];
        for (const auto& state : layout_.States) {
            faults_.ThroughBoxes += Touches(lines_[index], state.Box) ? 1 : 0;
            if (state.Number == edge.From)
                faults_.LooseEnds += IsOnBorder(lines_[index].front(), state.Box) ? 0 : 1;
            if (state.Number == edge.To)
                faults_.LooseEnds += IsOnBorder(lines_[index].back(), state.Box) ? 0 : 1;
        }
        for (const auto& other : layout_.Edges)
            faults_.ThroughLabels += Touches(lines_[index], other.Label) ? 1 : 0;
        for (const Point point : lines_[index])
            faults_.OutOfBounds += Holds(layout_.Bounds, {point.X, point.Y, 0, 0}) ? 0 : 1;
    }

    const Layout& layout_;
    std::vector<std::vector<Point>> lines_;
    PictureFaults faults_;
};

std::int64_t Turn(Point a, Point b, Point c) {
    return std::int64_t(b.X - a.X) * (c.Y - a.Y) - std::int64_t(b.Y - a.Y) * (c.X - a.X);
}

bool Cross(Point a, Point b, Point c, Point d) {
    const auto sign = [](std::int64_t number) { return number > 0 ? 1 : number < 0 ? -1 : 0; };
    return sign(Turn(a, b, c)) * sign(Turn(a, b, d)) < 0 && sign(Turn(c, d, a)) * sign(Turn(c, d, b)) < 0;
}

// The ends of the pieces alone: two curves between the same two layers cross when the straight lines do.
std::vector<Point> Corners(const diagram::Path& line) {
    std::vector<Point> corners{line.Begin};
    for (const auto& piece : line.Pieces)
        corners.push_back(piece.End);
    return corners;
}

} // namespace

PictureFaults FaultsOf(const Layout& layout) { return FaultCounter(layout).Count(); }

std::string Told(const PictureFaults& faults) {
    return std::to_string(faults.Overlaps) + " overlaps, " + std::to_string(faults.ThroughBoxes) +
           " lines through boxes, " + std::to_string(faults.ThroughLabels) + " lines through labels, " +
           std::to_string(faults.LooseEnds) + " loose ends, " + std::to_string(faults.OutOfBounds) +
           " out of bounds";
}

int CrossingsDrawn(const Layout& layout) {
    std::vector<std::vector<Point>> lines;
    for (const auto& edge : layout.Edges)
        lines.push_back(Corners(edge.Line));
    int crossings = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            for (std::size_t a = 1; a < lines[i].size(); ++a) {
                for (std::size_t b = 1; b < lines[j].size(); ++b)
                    crossings += Cross(lines[i][a - 1], lines[i][a], lines[j][b - 1], lines[j][b]) ? 1 : 0;
            }
        }
    }
    return crossings;
}

} // namespace orvane::test
