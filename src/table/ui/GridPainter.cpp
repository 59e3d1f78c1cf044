// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridPainter.h"

#include "core/TableGeometry.h"
#include "kit/PaneLook.h"
#include "table/ui/CellPictures.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"

namespace orvane {

namespace {

constexpr int kActionMark = 7; // pixels at its sides

// Of a running machine. Each mark has a form of its own, so that none is told by its colour alone.
constexpr int kLastTakenWidth = 3;
constexpr int kNoteMargin = 2;
constexpr QChar kTimes(0xD7); // behind a count; what was never taken is what one looks for

constexpr int kErrorBadness = 4; // as kFindingRole gives it
constexpr int kWarningBadness = 3;
constexpr int kErrorMark = 9; // pixels of the window
constexpr int kOtherMark = 7;

QColor HalfWay(const QColor& from, QRgb to) {
    return {(from.red() + qRed(to)) / 2, (from.green() + qGreen(to)) / 2, (from.blue() + qBlue(to)) / 2};
}

// A table at the limit shows hundreds of them; to copy one takes a tenth of the time of drawing it.
QPixmap ActionMark(int side, qreal scale, QRgb colour) {
    QPixmap mark(QSize(side, side) * scale);
    mark.setDevicePixelRatio(scale);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(colour));
    painter.drawPolygon(QPolygonF({QPointF(side, 0), QPointF(0, 0), QPointF(side, side)}));
    return mark;
}

} // namespace

QRect FindingMark(const QRect& cell, int badness) {
    const int size =
        std::min({badness == kErrorBadness ? kErrorMark : kOtherMark, cell.width(), cell.height() - 1});
    return {cell.left(), cell.bottom() - size, size, size}; // clear of the line below
}

GridPainter::GridPainter(FsmGridView& view, CellPictures& pictures)
    : view_(view),
      pictures_(pictures),
      look_(IsDark(view.palette()) ? kDarkLook : kLightLook),
      painter_(view.viewport()) {
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
                          QColor(look_.Line));
    for (const Stretch& row : rows)
        painter_.fillRect(QRectF{qreal(left), row.End() - pixel, qreal(columns.last().End() - left), pixel},
                          QColor(look_.Line));
}

void GridPainter::PaintCell(const QModelIndex& cell, const QRect& area) {
    QColor background = cell.data(Qt::BackgroundRole).value<QColor>();
    if (view_.IsChosen(cell))
        background = HalfWay(background, look_.Chosen);
    const int marks = cell.data(kRunMarkRole).toInt();
    painter_.fillRect(area, background);
    const QString text = CellLine(cell.data().toString().left(area.width())); // no character takes no pixel
    if (!text.isEmpty()) {
        painter_.setPen(cell.data(Qt::ForegroundRole).value<QColor>());
        if ((marks & kTrueInput) != 0)
            pictures_.DrawBold(painter_, area, text, background.rgb());
        else
            pictures_.Draw(painter_, area, text, background.rgb());
    }
    if (cell.data(kHasActionRole).toBool())
        PaintActionMark(area);
    if (marks != 0)
        PaintRunMarks(cell, area, marks);
    if (const int badness = cell.data(kFindingRole).toInt(); badness != 0)
        PaintFinding(area, badness);
    if (cell == view_.currentIndex())
        PaintFrame(view_.VisibleRect(cell)); // whole, also where a part has scrolled beneath the heads
}

void GridPainter::PaintFrame(const QRect& area) {
    painter_.setPen(QPen(QColor(look_.Cursor), 1, view_.hasFocus() ? Qt::SolidLine : Qt::DotLine));
    painter_.drawRect(QRectF(area).adjusted(0.5, 0.5, -1.5, -1.5)); // the pen stays inside at every scale
}

// A triangle in the upper right corner, clear of the lines between the cells.
void GridPainter::PaintActionMark(const QRect& area) {
    const int side = std::min({kActionMark, area.width() - 2, area.height() - 2});
    if (side <= 0)
        return;
    if (actionMark_.deviceIndependentSize().width() != side)
        actionMark_ = ActionMark(side, painter_.device()->devicePixelRatioF(), look_.Action);
    painter_.drawPixmap(area.x() + area.width() - 1 - side, area.y() + 1, actionMark_);
}

// What can be taken is outlined, dashed; what would be taken is filled and its outline is whole; what was
// taken last has a thick frame.
void GridPainter::PaintRunMarks(const QModelIndex& cell, const QRect& area, int marks) {
    const QRectF inside = QRectF(area).adjusted(0.5, 0.5, -1.5, -1.5);
    if ((marks & kHasNote) != 0)
        PaintNote(area, cell.data(kRunNoteRole).toString());
    if ((marks & kTakeable) != 0) {
        painter_.setPen(
            QPen(QColor(look_.Takeable), 1, (marks & kNextTaken) != 0 ? Qt::SolidLine : Qt::DashLine));
        painter_.drawRect(inside.adjusted(1, 1, -1, -1));
    }
    if ((marks & kLastTaken) != 0) {
        QPen frame(QColor(look_.LastTaken), kLastTakenWidth);
        frame.setJoinStyle(Qt::MiterJoin);
        painter_.setPen(frame);
        painter_.drawRect(inside.adjusted(1, 1, -1, -1));
    }
}

// A triangle in the lower left corner, where the text is not: filled for errors and warnings, of which errors
// have the larger one, and hollow for the rest.
void GridPainter::PaintFinding(const QRect& area, int badness) {
    const QRect mark = FindingMark(area, badness);
    const bool filled = badness >= kWarningBadness;
    const QColor colour = badness == kErrorBadness     ? QColor(look_.Error)
                          : badness == kWarningBadness ? QColor(look_.Warning)
                                                       : QColor(look_.Advice);
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(colour, 1));
    painter_.setBrush(filled ? QBrush(colour) : QBrush(QColor(look_.Hollow)));
    painter_.drawPolygon(QPolygonF{QPointF(mark.left(), mark.top()),
                                   QPointF(mark.left(), mark.top() + mark.height()),
                                   QPointF(mark.left() + mark.width(), mark.top() + mark.height())});
    painter_.restore();
}

void GridPainter::PaintNote(const QRect& area, const QString& note) {
    const QFontMetrics metrics = painter_.fontMetrics();
    QRect place = area.adjusted(0, 2, -4, -3);
    place.setLeft(std::max(area.left(), place.right() - metrics.horizontalAdvance(note) - 2 * kNoteMargin));
    const bool isUsualCount = note.endsWith(kTimes) && note != QLatin1Char('0') + QString(kTimes);
    painter_.fillRect(place, QColor(isUsualCount ? look_.QuietNote : look_.Note));
    painter_.setPen(QColor(isUsualCount ? look_.QuietNoteText : look_.NoteText));
    painter_.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, note);
}

} // namespace orvane
