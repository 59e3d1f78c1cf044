// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridPainter.h"

#include "core/TableGeometry.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"
#include "table/ui/PaintedTexts.h"

namespace orvane {

namespace {

constexpr int kTextMargin = 3; // pixels left of a text
constexpr QRgb kLineColour = qRgb(176, 176, 176);
constexpr QRgb kCursorColour = qRgb(0, 0, 0);

} // namespace

GridPainter::GridPainter(FsmGridView& view, PaintedTexts& texts)
    : view_(view), texts_(texts), painter_(view.viewport()) {
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
    const QAbstractItemModel& model = *view_.model();
    const QSize frozen = view_.FrozenSize();
    const int lastRow = area.top() < frozen.height() ? 0 : kLastRow;
    const int lastColumn = area.left() < frozen.width() ? 0 : kStateCount;
    for (int row = first.row(); row <= lastRow; ++row) {
        for (int column = first.column(); column <= lastColumn; ++column) {
            const QRect rect = view_.visualRect(model.index(row, column));
            if (rect.left() > area.right() || rect.top() > area.bottom())
                break;
            if (!rect.isEmpty())
                PaintCell(model.index(row, column), rect);
        }
    }
    PaintLines();
}

// All at once, so that the pen is not set anew for every cell.
void GridPainter::PaintLines() {
    painter_.setPen(QPen(QColor(kLineColour), 0)); // one pixel of the screen, so that all are equal at 150 %
    painter_.drawLines(lines_);
    lines_.clear();
}

void GridPainter::PaintCell(const QModelIndex& cell, const QRect& area) {
    painter_.fillRect(area, cell.data(Qt::BackgroundRole).value<QColor>());
    lines_ << QLine(area.topRight(), area.bottomRight()) << QLine(area.bottomLeft(), area.bottomRight());
    const QString text = CellLine(cell.data().toString().left(area.width())); // no character takes no pixel
    if (!text.isEmpty()) {
        painter_.setPen(cell.data(Qt::ForegroundRole).value<QColor>());
        const QRect textArea = area.adjusted(kTextMargin, 0, -1, -1);
        texts_.Draw(painter_, textArea, text);
    }
    if (cell == view_.currentIndex()) {
        painter_.setPen(QPen(QColor(kCursorColour), 1, view_.hasFocus() ? Qt::SolidLine : Qt::DotLine));
        painter_.drawRect(area.adjusted(0, 0, -2, -2));
    }
}

} // namespace orvane
