// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "table/PressTable.h"
#include "table/ui/BorderDrag.h"
#include "table/ui/CellPictures.h"

#include <QElapsedTimer>
#include <QTableView>

class QHelpEvent;

namespace orvane {

// A mouse button pressed on a cell, heads included.
struct GridPress {
    Cell Place;
    PressButton Button = PressButton::Other;
    PressModifiers Modifiers = PressModifiers::None;
    QPoint GlobalPosition;
};

// The table with row 0 and column 0 always in sight.
//
// There are no header widgets and no second view: the table scrolls as a whole, and the two heads are painted
// where the viewport begins, over what has scrolled beneath them. One viewport therefore receives every
// event, and every question of the kind "which cell is here", "where is this cell" is answered by indexAt()
// and visualRect(), which know about the heads. The view begins where its viewport begins, so that positions
// in the one are positions in the other.
class FsmGridView : public QTableView {
    Q_OBJECT

  public:
    explicit FsmGridView(QWidget* parent = nullptr);

    // Scrolls the cell into sight and returns the part of it that can be seen; empty for a cell that is
    // hidden or does not exist.
    Q_INVOKABLE QRect CellRect(int row, int col) { return CellRect(Cell{row, col}); }
    QRect CellRect(Cell cell);

    // Whether something of the current cell can be seen now. What takes room from the table takes it from
    // nobody who was looking at it; who has scrolled away from it is left where he is.
    bool SeesCurrentCell() const { return SeesCurrentCell(viewport()->size()); }

    // The part of the cell that can be seen now; empty when nothing can.
    QRect VisibleRect(const QModelIndex& index) const;

    // Where a row and a column begin in the viewport; the heads do not scroll along.
    int RowTop(RowNumber row) const { return row == kHeadRow ? 0 : rowViewportPosition(row.Number()); }
    int ColumnLeft(StateNumber column) const {
        return column == kNoState ? 0 : columnViewportPosition(column.Number());
    }

    // Where the cell would be if nothing cut it off.
    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& position) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    // A letter typed in the table looks for nothing.
    void keyboardSearch(const QString&) override {}

    // One of several cells that are chosen; the current one is not among them.
    bool IsChosen(const QModelIndex& cell) const;

    // Paints what has changed without waiting for the event loop.
    void ShowChangesNow();

    // How much the heads cover of the viewport.
    QSize FrozenSize() const;

    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QList<int>& roles = {}) override;

  Q_SIGNALS:
    void CellPressed(const orvane::GridPress& press);
    void PointerMoved(orvane::Cell cell);
    void PointerLeft(); // it is outside all cells
    void ColumnWidthDragged();
    void FitWanted(orvane::StateNumber column); // by a double click on its border
    void ShiftChanged(bool held);
    void ZoomWanted(int steps); // by Ctrl and the wheel
    void EnterPressed();
    // Before the view itself looks at the key; whoever has used it accepts it.
    void KeyPressed(QKeyEvent* key);
    // Cells may be somewhere else now.
    void CellsMoved();

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // What the right button does on the cell under the pointer, done on the current cell.
    void PressCurrentCell();
    QRect AreaOf(const QModelIndex& index, const QSize& viewport) const;
    bool SeesCurrentCell(const QSize& viewport) const;
    bool ShowFinding(const QHelpEvent& event);
    bool DragBorder(const QMouseEvent& event);
    void PressCell(const QMouseEvent& event);

    BorderDrag borderDrag_;
    CellPictures pictures_;
    QModelIndex lastPressed_; // what the first half of a double click has pressed
    QElapsedTimer sinceLastPress_;
};

} // namespace orvane
