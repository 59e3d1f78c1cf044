// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/ui/GridLook.h"

#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QRect>

namespace orvane {

class FsmGridView;
class CellPictures;

// Where the mark of what there is to be told of a cell stands in it.
QRect FindingMark(const QRect& cell, int badness);

// Paints the table: the cells that have scrolled, and over them the heads that have not.
class GridPainter {
  public:
    GridPainter(FsmGridView& view, CellPictures& pictures);

    // What lies in this rectangle of the viewport.
    void Paint(const QRect& dirty);

  private:
    // What a row takes of the height, or a column of the width, in pixels of the viewport.
    struct Stretch {
        int Number = 0;
        int Begin = 0;
        int Size = 0;

        int End() const { return Begin + Size; }
    };

    void PaintCells(const QRect& area);
    QList<Stretch> RowsIn(const QRect& area, int first) const;
    QList<Stretch> ColumnsIn(const QRect& area, int first) const;
    void PaintLines(const QList<Stretch>& rows, const QList<Stretch>& columns);
    void PaintCell(const QModelIndex& cell, const QRect& area);
    void PaintActionMark(const QRect& area);
    void PaintFrame(const QRect& area);
    void PaintRunMarks(const QModelIndex& cell, const QRect& area, int marks);
    void PaintFinding(const QRect& area, int badness);
    void PaintNote(const QRect& area, const QString& note);

    FsmGridView& view_;
    CellPictures& pictures_;
    const GridLook& look_;
    QPainter painter_;
    QPixmap actionMark_; // of the cell before
};

} // namespace orvane
