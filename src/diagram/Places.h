// SPDX-License-Identifier: GPL-3.0-or-later
// From the picture to the table and back.
#pragma once

#include "core/Cell.h"
#include "diagram/HitTest.h"

#include <optional>
#include <vector>

namespace orvane::diagram {

// The cells of the table that a state or an edge shows: the head of the state's column, or the transitions
// from the edge's first state in the order of the table. None for nothing.
std::vector<Cell> CellsOf(const Scene& scene, const Hit& hit);

// What shows the cell: a transition's edge, for all else of a column its state. Nothing where the picture
// leaves it out.
Hit ShownAt(const Scene& scene, Cell cell);

// The transition whose own line of an edge's label is at the point; none for a line that stands for several.
std::optional<Cell> CellAtLabel(const Scene& scene, const Layout& layout, const TextSizes& sizes,
                                Point point);

enum class Heading { Left, Right, Up, Down };

// Where one step goes from there: from a state to an edge that leaves or reaches it in this direction, from
// an edge to the state at that end. Stays where nothing is; from nothing it goes to the first state.
Hit StepFrom(const Scene& scene, const Layout& layout, const Hit& from, Heading heading);

} // namespace orvane::diagram
