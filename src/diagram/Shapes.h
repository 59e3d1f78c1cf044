// SPDX-License-Identifier: GPL-3.0-or-later
// What every drawing of a picture has in common, whatever it is drawn with.
#pragma once

#include "diagram/Layout.h"

#include <array>

namespace orvane::diagram {

// The corners of a triangle; the first is where the line ends.
std::array<Point, 3> ArrowHead(const Path& line);

// The upper left corner of the text in a state's box, which stands in the middle of its height.
Point TextCorner(const SceneState& state, const Rect& box, const TextSizes& sizes);

} // namespace orvane::diagram
