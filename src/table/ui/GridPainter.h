// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>
#include <QRect>

namespace orvane {

class FsmGridView;

// Paints one rectangle of the table.
class GridPainter {
  public:
    // `dirty` is what has to be painted, in the viewport.
    GridPainter(FsmGridView& view, const QRect& dirty);

    // The ground on which the cells lie.
    void PaintOutside();
    // The cells in this part of the viewport, as far as they are dirty.
    void PaintCells(const QRect& part);

  private:
    void PaintCell(const QModelIndex& cell, const QRect& area);

    FsmGridView& view_;
    QRect dirty_;
    QPainter painter_;
};

} // namespace orvane
