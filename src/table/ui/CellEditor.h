// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <QLineEdit>

namespace orvane {

class FsmGridView;

// The box laid over a cell in which the number of a target state is typed. It takes digits, Delete, Enter and
// Escape and no other key, so that the commands of the window keep their shortcuts.
class CellEditor : public QLineEdit {
    Q_OBJECT

  public:
    // Lives in the view's viewport.
    explicit CellEditor(FsmGridView& view);

    // Opens over a cell that can be seen.
    void Begin(Cell cell, const QString& text);
    // As if typed.
    void Type(const QString& digits) { insert(digits); }
    // Hides and clears the box; what was typed is forgotten.
    void Abandon();

    bool IsOpen() const { return isVisibleTo(parentWidget()); }
    // The cell it was last opened over.
    Cell EditedCell() const { return cell_; }

  Q_SIGNALS:
    // What the box holds is to be stored: it was emptied by Delete, or ended by Enter.
    void CommitWanted();
    void EnterPressed();
    void OpenChanged(bool open);

  protected:
    bool event(QEvent* event) override;
    // Tab is another key that does nothing.
    bool focusNextPrevChild(bool) override { return false; }
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void CoverCell();

    FsmGridView& view_;
    Cell cell_;
};

} // namespace orvane
