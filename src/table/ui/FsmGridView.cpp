// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/FsmGridView.h"

#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/GridPainter.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace orvane {

namespace {

PressButton ButtonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton)
        return PressButton::Left;
    return button == Qt::RightButton ? PressButton::Right : PressButton::Other;
}

PressModifiers ModifiersOf(Qt::KeyboardModifiers modifiers) {
    if (modifiers == Qt::NoModifier)
        return PressModifiers::None;
    return modifiers == Qt::ShiftModifier ? PressModifiers::Shift : PressModifiers::Other;
}

} // namespace

FsmGridView::FsmGridView(QWidget* parent) : QTableView(parent), borderDrag_(*this) {
    setObjectName(QStringLiteral("MSFlexGrid1"));
    setAccessibleName(tr("State machine table"));
    setFrameShape(NoFrame);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->hide();
        header->setMinimumSectionSize(0);
        connect(header, &QHeaderView::sectionResized, this, [this] {
            viewport()->update();
            Q_EMIT CellsMoved();
        });
    }
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(true);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
}

QSize FsmGridView::FrozenSize() const {
    // However wide column 0 is, some of the table is left to be seen beside it.
    return {std::min(columnWidth(0), viewport()->width() * 3 / 4), rowHeight(0)};
}

QRect FsmGridView::visualRect(const QModelIndex& index) const {
    if (!index.isValid() || isRowHidden(index.row()) || isColumnHidden(index.column()))
        return {};
    return {ColumnLeft(index.column()), RowTop(index.row()), columnWidth(index.column()),
            rowHeight(index.row())};
}

// Where a cell of this row and column can be seen in a viewport of this size: the heads cover the others.
QRect FsmGridView::AreaOf(const QModelIndex& index, const QSize& viewport) const {
    const QSize frozen = FrozenSize();
    QRect area(QPoint(), viewport);
    if (index.column() == 0)
        area.setWidth(std::min(frozen.width(), area.width()));
    else
        area.setLeft(frozen.width());
    if (index.row() == 0)
        area.setHeight(std::min(frozen.height(), area.height()));
    else
        area.setTop(frozen.height());
    return area;
}

QRect FsmGridView::VisibleRect(const QModelIndex& index) const {
    return visualRect(index).intersected(AreaOf(index, viewport()->size()));
}

QRect FsmGridView::CellRect(Cell cell) {
    if (model() == nullptr)
        return {};
    const QModelIndex index = IndexOf(*model(), cell);
    if (!index.isValid() || visualRect(index).isEmpty())
        return {};
    scrollTo(index);
    return VisibleRect(index);
}

QModelIndex FsmGridView::indexAt(const QPoint& position) const {
    if (model() == nullptr || !viewport()->rect().contains(position))
        return {};
    const QSize frozen = FrozenSize();
    const int row = position.y() < frozen.height() ? 0 : rowAt(position.y());
    const int column = position.x() < frozen.width() ? 0 : columnAt(position.x());
    return model()->index(row, column); // not valid for a row or column of -1
}

namespace {

// Moves the scroll bar as little as brings the stretch first..last (in the viewport) behind the head's end.
void BringIntoSight(QScrollBar& bar, int first, int last, int headEnd, int viewportEnd) {
    if (first < headEnd)
        bar.setValue(bar.value() - (headEnd - first));
    else if (last > viewportEnd)
        bar.setValue(bar.value() + std::min(last - viewportEnd, first - headEnd));
}

} // namespace

void FsmGridView::scrollTo(const QModelIndex& index, ScrollHint) {
    executeDelayedItemsLayout();
    const QRect cell = visualRect(index);
    if (cell.isEmpty())
        return;
    const QSize frozen = FrozenSize();
    if (index.column() > 0)
        BringIntoSight(*horizontalScrollBar(), cell.left(), cell.left() + cell.width(), frozen.width(),
                       viewport()->width());
    if (index.row() > 0)
        BringIntoSight(*verticalScrollBar(), cell.top(), cell.top() + cell.height(), frozen.height(),
                       viewport()->height());
}

bool FsmGridView::IsChosen(const QModelIndex& cell) const {
    return cell != currentIndex() && selectionModel()->isSelected(cell);
}

void FsmGridView::ShowChangesNow() { QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest); }

void FsmGridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    viewport()->update(); // The heads do not scroll along.
    Q_EMIT CellsMoved();
}

void FsmGridView::updateGeometries() {
    QTableView::updateGeometries();
    Q_EMIT CellsMoved();
}

bool FsmGridView::SeesCurrentCell(const QSize& viewport) const {
    return visualRect(currentIndex()).intersects(AreaOf(currentIndex(), viewport));
}

// A pane that opens beside the table takes room from it.
void FsmGridView::resizeEvent(QResizeEvent* event) {
    const bool wasSeen = SeesCurrentCell(event->oldSize());
    QTableView::resizeEvent(event);
    if (wasSeen)
        scrollTo(currentIndex());
}

void FsmGridView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                              const QList<int>& roles) {
    QTableView::dataChanged(topLeft, bottomRight, roles);
    // The base class takes the heads for cells that scroll along.
    const QSize frozen = FrozenSize();
    const int top = RowTop(topLeft.row());
    const int left = ColumnLeft(topLeft.column());
    if (topLeft.column() == 0)
        viewport()->update(0, top, frozen.width(),
                           RowTop(bottomRight.row()) + rowHeight(bottomRight.row()) - top);
    if (topLeft.row() == 0)
        viewport()->update(left, 0,
                           ColumnLeft(bottomRight.column()) + columnWidth(bottomRight.column()) - left,
                           frozen.height());
}

void FsmGridView::paintEvent(QPaintEvent* event) {
    GridPainter painter(*this, pictures_);
    for (const QRect& dirty : event->region())
        painter.Paint(dirty);
}

bool FsmGridView::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        // Sent to the view itself, as a script does that knows it only by name.
        return viewportEvent(event);
    case QEvent::FontChange:
    case QEvent::StyleChange:
        viewport()->update();
        break;
    default:
        break;
    }
    return QTableView::event(event);
}

bool FsmGridView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave)
        Q_EMIT PointerLeft();
    if (event->type() == QEvent::ToolTip)
        return ShowFinding(dynamic_cast<const QHelpEvent&>(*event));
    if (event->type() == QEvent::LayoutRequest)
        return true; // the in-place editor came or went: the base class would paint both scroll bars anew
    return QTableView::viewportEvent(event);
}

// The texts of a mark show where the pointer is on it; hints of the cell are another thing.
bool FsmGridView::ShowFinding(const QHelpEvent& event) {
    const QModelIndex cell = indexAt(event.pos());
    const int badness = cell.data(kFindingRole).toInt();
    const QRect mark = FindingMark(visualRect(cell), badness);
    if (badness == 0 || !mark.adjusted(0, -2, 2, 1).contains(event.pos()))
        QToolTip::hideText();
    else
        QToolTip::showText(
            event.globalPos(),
            Qt::convertFromPlainText(cell.data(kFindingTextRole).toString(), Qt::WhiteSpaceNormal),
            viewport(), mark);
    return true;
}

void FsmGridView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
        borderDrag_.Begin(event->position().toPoint()))
        return;
    lastPressed_ = indexAt(event->position().toPoint());
    PressCell(*event);
    sinceLastPress_.start();
}

// The second press of a double click has been dealt with by the first one: what that opened is open. Stepping
// with Shift takes every press.
void FsmGridView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    const bool isSecondHalf = event->modifiers() == Qt::NoModifier && cell.isValid() &&
                              cell == lastPressed_ && sinceLastPress_.isValid() &&
                              sinceLastPress_.elapsed() < QApplication::doubleClickInterval();
    const std::optional<StateNumber> border = borderDrag_.ColumnAt(event->position().toPoint());
    event->accept();
    if (border && event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier)
        Q_EMIT FitWanted(*border);
    else if (!isSecondHalf)
        mousePressEvent(event);
    lastPressed_ = {};
}

void FsmGridView::PressCell(const QMouseEvent& event) {
    const QModelIndex cell = indexAt(event.position().toPoint());
    if (!cell.isValid())
        return;
    if (event.button() == Qt::LeftButton)
        setCurrentIndex(cell);
    Q_EMIT CellPressed({CellOf(cell), ButtonOf(event.button()), ModifiersOf(event.modifiers()),
                        event.globalPosition().toPoint()});
}

void FsmGridView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const QPoint position = event->position().toPoint();
    if (DragBorder(*event))
        return;
    viewport()->setCursor(borderDrag_.ColumnAt(position) ? Qt::SplitHCursor : Qt::ArrowCursor);
    const QModelIndex cell = indexAt(position);
    if (cell.isValid())
        Q_EMIT PointerMoved(CellOf(cell));
    else
        Q_EMIT PointerLeft();
}

void FsmGridView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier)
        return QTableView::wheelEvent(event);
    event->accept();
    if (const int turned = event->angleDelta().y(); turned != 0)
        Q_EMIT ZoomWanted(turned > 0 ? 1 : -1);
}

void FsmGridView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    DragBorder(*event);
    borderDrag_.End();
}

bool FsmGridView::DragBorder(const QMouseEvent& event) {
    if (!borderDrag_.IsActive())
        return false;
    if (borderDrag_.MoveTo(event.position().toPoint()))
        Q_EMIT ColumnWidthDragged();
    return true;
}

void FsmGridView::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    Q_EMIT KeyPressed(event);
    if (event->isAccepted())
        return;
    switch (event->key()) {
    case Qt::Key_Shift:
        Q_EMIT ShiftChanged(true);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        Q_EMIT EnterPressed();
        return;
    case Qt::Key_F6: // Tab goes to the next cell
        QWidget::focusNextPrevChild(event->modifiers() != Qt::ShiftModifier);
        return;
    case Qt::Key_Menu:
        PressCurrentCell();
        return;
    case Qt::Key_F10:
        if (event->modifiers() != Qt::ShiftModifier)
            break;
        PressCurrentCell();
        return;
    default:
        break;
    }
    QTableView::keyPressEvent(event);
}

void FsmGridView::PressCurrentCell() {
    const QModelIndex cell = currentIndex();
    if (!cell.isValid())
        return;
    scrollTo(cell);
    const QPoint middle = VisibleRect(cell).center();
    Q_EMIT CellPressed(
        {CellOf(cell), PressButton::Right, PressModifiers::None, viewport()->mapToGlobal(middle)});
}

void FsmGridView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Shift)
        Q_EMIT ShiftChanged(false);
    QTableView::keyReleaseEvent(event);
}

// The focus shows in the frame of the current cell alone. The base class would paint the whole table anew
// each time the in-place editor closes.
void FsmGridView::focusInEvent(QFocusEvent*) { update(currentIndex()); }

// The key may be released where nobody tells us.
void FsmGridView::focusOutEvent(QFocusEvent*) {
    Q_EMIT ShiftChanged(false);
    update(currentIndex());
}

} // namespace orvane
