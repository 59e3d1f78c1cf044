// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TableGeometry.h"

namespace orvane {

// A place in the table, heads included. A state's number is its column.
struct Cell {
    RowNumber Row;
    StateNumber State;

    constexpr bool operator==(const Cell&) const = default;
};

} // namespace orvane
