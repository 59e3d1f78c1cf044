// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellEditor.h"

#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpressionValidator>

namespace orvane {

CellEditor::CellEditor(FsmGridView& view) : QLineEdit(view.viewport()), view_(view) {
    setObjectName(QStringLiteral("txtCellEdit"));
    setToolTip(QStringLiteral("Enter only the column number of the target state."));
    setAccessibleName(QStringLiteral("Target state"));
    setFrame(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    hide();
    connect(&view, &FsmGridView::CellsMoved, this, &CellEditor::CoverCell);
}

void CellEditor::Begin(Cell cell, const QString& text) {
    cell_ = cell;
    setText(text);
    show();
    CoverCell();
    raise();
    selectAll();
    setFocus();
}

void CellEditor::Abandon() {
    const bool hadFocus = hasFocus();
    clear();
    hide();
    if (hadFocus)
        view_.setFocus();
}

// Follows its cell when the table scrolls, and stays open where the cell cannot be seen.
void CellEditor::CoverCell() {
    if (!IsOpen())
        return;
    const QRect area = view_.VisibleRect(IndexOf(*view_.model(), cell_));
    setGeometry(area.isEmpty() ? QRect(-1, -1, 1, 1) : area);
}

bool CellEditor::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->ignore();
        return false;
    }
    return QLineEdit::event(event);
}

void CellEditor::showEvent(QShowEvent* event) {
    QLineEdit::showEvent(event);
    Q_EMIT OpenChanged(true);
}

void CellEditor::hideEvent(QHideEvent* event) {
    QLineEdit::hideEvent(event);
    Q_EMIT OpenChanged(false);
}

// A frame of its own, because it lies over the lines of the table.
void CellEditor::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1));
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
    event->accept();
    switch (event->key()) {
    case Qt::Key_Delete:
        clear();
        Q_EMIT CommitWanted();
        return;
    case Qt::Key_Escape:
        Abandon();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT EnterPressed();
        return;
    default:
        break;
    }
    const QString typed = event->text();
    if (typed.size() == 1 && typed[0] >= QLatin1Char('0') && typed[0] <= QLatin1Char('9'))
        QLineEdit::keyPressEvent(event);
}

// The middle button would paste.
void CellEditor::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton)
        QLineEdit::mouseReleaseEvent(event);
}

} // namespace orvane
