// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLine>
#include <QList>
#include <QPainter>
#include <QRect>

namespace orvane {

class FsmGridView;
class PaintedTexts;

// Paints the table: the cells that have scrolled, and over them the heads that have not.
class GridPainter {
  public:
    GridPainter(FsmGridView& view, PaintedTexts& texts);

    // What lies in this rectangle of the viewport.
    void Paint(const QRect& dirty);

  private:
    void PaintCells(const QRect& area);
    void PaintLines();
    void PaintCell(const QModelIndex& cell, const QRect& area);

    FsmGridView& view_;
    PaintedTexts& texts_;
    QPainter painter_;
    QList<QLine> lines_; // the right and lower borders of the cells painted so far
};

} // namespace orvane
