// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/CellChoice.h"
#include "table/PressTable.h"

#include <QObject>

class QKeyEvent;

namespace orvane {

class FsmGridView;
class Session;

// What keys do in the table beyond moving the frame by one cell: choosing several cells, going to the ends,
// and beginning to edit where the frame is. A press of the mouse keeps its own meaning.
class TableKeys : public QObject {
    Q_OBJECT

  public:
    // Both outlive this.
    TableKeys(Session& session, FsmGridView& view);

    // The cells that a command works on: those chosen, else the current one; empty on a head.
    CellChoice Choice() const;
    // The current cell alone is chosen.
    void Forget();

  Q_SIGNALS:
    // The user begins to edit the current cell: by F2, or by typing this digit or letter. With Shift F2 is
    // what a press with Shift is.
    void EditWanted(orvane::Cell cell, orvane::PressModifiers modifiers);
    void Typed(orvane::Cell cell, const QString& text);

  private:
    void Take(QKeyEvent& key);
    bool Extend(const QKeyEvent& key);
    bool GoToEnd(const QKeyEvent& key);
    bool BeginEdit(const QKeyEvent& key);
    void ExtendTo(Cell end);
    void ChooseAll();
    void Choose(CellChoice choice);
    void GoTo(Cell cell);

    Session& session_;
    FsmGridView& view_;
    Cell anchor_; // the corner of the choice that stays
    CellChoice choice_;
    bool extending_ = false; // the frame moves, and the choice with it
};

} // namespace orvane
