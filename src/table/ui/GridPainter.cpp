// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridPainter.h"

#include "core/TableGeometry.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"

namespace orvane {

namespace {

constexpr int kTextMargin = 3; // pixels left of a text
constexpr QRgb kLineColour = qRgb(176, 176, 176);
constexpr QRgb kCursorColour = qRgb(0, 0, 0);

} // namespace

GridPainter::GridPainter(FsmGridView& view, const QRect& dirty)
    : view_(view), dirty_(dirty), painter_(view.viewport()) {
    painter_.setFont(view.font());
}

void GridPainter::PaintOutside() { painter_.fillRect(dirty_, view_.palette().color(QPalette::Window)); }

void GridPainter::PaintCells(const QRect& part) {
    const QRect area = part.intersected(dirty_);
    if (area.isEmpty())
        return;
    painter_.setClipRect(area);
    const QModelIndex first = view_.indexAt(area.topLeft());
    if (!first.isValid())
        return;
    const QAbstractItemModel& model = *view_.model();
    const QSize frozen = view_.FrozenSize();
    const int lastRow = part.top() < frozen.height() ? 0 : kLastRow;
    const int lastColumn = part.left() < frozen.width() ? 0 : kStateCount;
    for (int row = first.row(); row <= lastRow; ++row) {
        for (int column = first.column(); column <= lastColumn; ++column) {
            const QRect rect = view_.visualRect(model.index(row, column));
            if (rect.left() > area.right() || rect.top() > area.bottom())
                break;
            if (!rect.isEmpty())
                PaintCell(model.index(row, column), rect);
        }
    }
}

void GridPainter::PaintCell(const QModelIndex& cell, const QRect& area) {
    painter_.fillRect(area, cell.data(Qt::BackgroundRole).value<QColor>());
    painter_.setPen(QColor(kLineColour));
    painter_.drawLine(area.topRight(), area.bottomRight());
    painter_.drawLine(area.bottomLeft(), area.bottomRight());
    const QString text = CellLine(cell.data().toString());
    if (!text.isEmpty()) {
        painter_.setPen(cell.data(Qt::ForegroundRole).value<QColor>());
        const QRect textArea = area.adjusted(kTextMargin, 0, -1, -1);
        painter_.drawText(textArea, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    }
    if (cell == view_.currentIndex()) {
        painter_.setPen(QPen(QColor(kCursorColour), 1, view_.hasFocus() ? Qt::SolidLine : Qt::DotLine));
        painter_.drawRect(area.adjusted(0, 0, -2, -2));
    }
}

} // namespace orvane
