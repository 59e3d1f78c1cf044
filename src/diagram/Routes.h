// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Columns.h"
#include "diagram/Layout.h"

namespace orvane::diagram {

// The picture of layers whose items have their positions and ports. Within a layer a line runs straight along
// at its own place; it curves only between two layers, where nothing else is. So no line touches a box or a
// label that is not its own, whatever the positions are.
Layout Draw(const Scene& scene, const Layered& layered, const std::vector<Column>& columns,
            const TextSizes& sizes, Direction direction);

} // namespace orvane::diagram
