// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <QTableView>

#include <array>
#include <vector>

namespace orvane {

// Keeps the widths and heights of the table's view and those of the document together. The document counts in
// twips, the view in whole pixels; a width goes back into the document only where the user has changed it, so
// that looking at a document alters nothing in it.
class GridGeometry {
  public:
    // Both outlive this.
    GridGeometry(FsmDocument& document, QTableView& view);

    // The height of an ordinary row, in twips.
    int StandardHeight() const { return standardHeight_; }

    // Bring the view into line with the document.
    void ApplyColumnWidth(int column);
    void ApplyColumnWidths();
    void ApplyRowHeights();

    // Stores the widths that the user has dragged. Returns the columns concerned.
    std::vector<int> TestForColumWidthChange();

  private:
    std::int32_t& DocumentWidth(int column);

    FsmDocument& document_;
    QTableView& view_;
    int standardHeight_;
    std::array<int, kTableColumns> widthCache_{}; // pixels, as last laid out or seen
};

} // namespace orvane
