// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/BacktrackList.h"

#include <QWidget>

class QTableWidget;

namespace orvane {

// Lists the transitions that lead into one state. A click on the state that one comes from asks to go back
// there.
class frmBackTrack : public QWidget {
    Q_OBJECT

  public:
    explicit frmBackTrack(QWidget* parent = nullptr);

    // Fills the list for the state, 1..100, and shows the window.
    void BackTrack(const FsmDocument& document, StateNumber state);

    // Fills the list anew after the document has changed. Nothing while the window is not shown.
    void RefreshBackTrack(const FsmDocument& document);

  Q_SIGNALS:
    // The user walks backwards through the machine.
    void StateChosen(orvane::StateNumber state);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void BuildGrid();
    void Fill(const FsmDocument& document);
    void FillGrid();
    void AddBacktrackLine(int row, const BacktrackLine& line);
    void FitColumns();
    void Choose(int row, int column);

    QTableWidget* MSFlexGrid1 = nullptr;
    StateNumber backtrackState_ = kNoState;
    std::vector<BacktrackLine> lines_; // what the grid shows
};

} // namespace orvane
