// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridPainter.h"

#include "core/TableGeometry.h"
#include "table/ui/CellPictures.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"

namespace orvane {

namespace {

constexpr QRgb kLineColour = qRgb(176, 176, 176);
constexpr QRgb kCursorColour = qRgb(0, 0, 0);

} // namespace

GridPainter::GridPainter(FsmGridView& view, CellPictures& pictures)
    : view_(view), pictures_(pictures), painter_(view.viewport()) {
    painter_.setFont(view.font());
}

void GridPainter::Paint(const QRect& dirty) {
    painter_.setClipRect(dirty);
    painter_.fillRect(dirty, view_.palette().color(QPalette::Window));
    const QRect whole = view_.viewport()->rect();
    const QSize frozen = view_.FrozenSize();
    const QRect corner(QPoint(0, 0), frozen);
    const QRect stateHeads(frozen.width(), 0, whole.width() - frozen.width(), frozen.height());
    const QRect rowHeads(0, frozen.height(), frozen.width(), whole.height() - frozen.height());
    const QRect body = whole.adjusted(frozen.width(), frozen.height(), 0, 0);
    for (const QRect& part : {corner, stateHeads, rowHeads, body})
        PaintCells(part.intersected(dirty));
}

// The area lies in one of the four parts: the corner, a strip of heads, or the body.
void GridPainter::PaintCells(const QRect& area) {
    const QModelIndex first = area.isEmpty() ? QModelIndex() : view_.indexAt(area.topLeft());
    if (!first.isValid())
        return;
    painter_.setClipRect(area);
    const QList<Stretch> rows = RowsIn(area, first.row());
    const QList<Stretch> columns = ColumnsIn(area, first.column());
    for (const Stretch& row : rows) {
        for (const Stretch& column : columns)
            PaintCell(view_.model()->index(row.Number, column.Number),
                      {column.Begin, row.Begin, column.Size, row.Size});
    }
    PaintLines(rows, columns);
}

QList<GridPainter::Stretch> GridPainter::RowsIn(const QRect& area, int first) const {
    QList<Stretch> rows;
    const int last = first == kHeadRow ? kHeadRow : kLastRow;
    for (int row = first; row <= last && view_.RowTop(row) <= area.bottom(); ++row) {
        if (const int height = view_.rowHeight(row); height > 0)
            rows << Stretch{row, view_.RowTop(row), height};
    }
    return rows;
}

QList<GridPainter::Stretch> GridPainter::ColumnsIn(const QRect& area, int first) const {
    QList<Stretch> columns;
    const int last = first == 0 ? 0 : kStateCount;
    for (int column = first; column <= last && view_.ColumnLeft(column) <= area.right(); ++column) {
        if (const int width = view_.columnWidth(column); width > 0)
            columns << Stretch{column, view_.ColumnLeft(column), width};
    }
    return columns;
}

// The right borders of the columns and the lower ones of the rows. Each is one pixel of the screen wide, so
// that all are equal at 150 %.
void GridPainter::PaintLines(const QList<Stretch>& rows, const QList<Stretch>& columns) {
    if (rows.isEmpty() || columns.isEmpty())
        return;
    const qreal pixel = 1 / painter_.device()->devicePixelRatioF();
    const int top = rows.first().Begin;
    const int left = columns.first().Begin;
    for (const Stretch& column : columns)
        painter_.fillRect(QRectF{column.End() - pixel, qreal(top), pixel, qreal(rows.last().End() - top)},
                          QColor(kLineColour));
    for (const Stretch& row : rows)
        painter_.fillRect(QRectF{qreal(left), row.End() - pixel, qreal(columns.last().End() - left), pixel},
                          QColor(kLineColour));
}

void GridPainter::PaintCell(const QModelIndex& cell, const QRect& area) {
    const QColor background = cell.data(Qt::BackgroundRole).value<QColor>();
    painter_.fillRect(area, background);
    const QString text = CellLine(cell.data().toString().left(area.width())); // no character takes no pixel
    if (!text.isEmpty()) {
        painter_.setPen(cell.data(Qt::ForegroundRole).value<QColor>());
        pictures_.Draw(painter_, area, text, background.rgb());
    }
    if (cell == view_.currentIndex()) {
        painter_.setPen(QPen(QColor(kCursorColour), 1, view_.hasFocus() ? Qt::SolidLine : Qt::DotLine));
        painter_.drawRect(QRectF(area).adjusted(0.5, 0.5, -1.5, -1.5)); // the pen stays inside at every scale
    }
}

} // namespace orvane
