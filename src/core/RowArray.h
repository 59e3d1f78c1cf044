// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundsError.h"
#include "core/TableGeometry.h"

#include <array>

namespace orvane {

// One element for each cell row, 4..54, indexed by the row number itself. A row outside throws BoundsError.
template <typename T>
class RowArray {
  public:
    T& operator[](RowNumber row) { return elements_[Index(row)]; }
    const T& operator[](RowNumber row) const { return elements_[Index(row)]; }

    // All elements, from row 4 to row 54.
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

    bool operator==(const RowArray&) const = default;

  private:
    static std::size_t Index(RowNumber row) {
        RequireInRange(row, CellRows(), "row");
        return IndexIn(CellRows(), row);
    }

    std::array<T, kCellRowCount> elements_{};
};

} // namespace orvane
