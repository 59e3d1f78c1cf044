// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layout.h"

#include <cstddef>
#include <optional>

namespace orvane::diagram {

// What lies at a point of the picture: a state or an edge, as indexes into the scene, or neither.
struct Hit {
    std::optional<std::size_t> State;
    std::optional<std::size_t> Edge;

    bool operator==(const Hit&) const = default;
};

// Boxes count before labels, labels before lines. A line is hit up to `reach` pixels beside it; of several
// the nearest one.
Hit HitAt(const Layout& layout, Point point, int reach = 5);

// Points on the line, near enough to each other to stand for it.
std::vector<Point> PointsOn(const Path& line);

} // namespace orvane::diagram
