// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TableNumber.h"

#include <QPoint>

#include <optional>

namespace orvane {

class FsmGridView;

// Drags the right borders of columns in row 0, that of column 0 among them. A column that was dragged shut is
// opened again by dragging just right of where its border lies.
class BorderDrag {
  public:
    explicit BorderDrag(FsmGridView& view) : view_(view) {}

    // The column whose border is at this place of the viewport.
    std::optional<StateNumber> ColumnAt(const QPoint& position) const;

    // Takes hold of the border there. Returns whether there is one.
    bool Begin(const QPoint& position);
    bool IsActive() const { return column_.has_value(); }
    // Makes the column that is held as wide as the pointer says. Returns whether that changed its width.
    bool MoveTo(const QPoint& position);
    void End() { column_.reset(); }

  private:
    int BorderOf(StateNumber column) const;

    FsmGridView& view_;
    std::optional<StateNumber> column_; // whose border is held
    int grip_ = 0;                      // from the border to where it was taken hold of, pixels
};

} // namespace orvane
