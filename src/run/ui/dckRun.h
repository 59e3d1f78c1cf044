// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Pane.h"
#include "run/LiveRun.h"
#include "run/ui/RunWish.h"

class QBoxLayout;
class QCheckBox;
class QLabel;
class QTableView;
class QVBoxLayout;

namespace orvane {

class InputsModel;
class InputsView;
class LogModel;
class RunPlayer;
class TimersModel;
class timRun;
class fraLimit;
class fraRunButtons;
class fraWay;

// The pane beside the table in which the machine is run. It shows a run and tells what the user wants done
// to it; it does nothing to it itself.
class dckRun : public Pane {
    Q_OBJECT

  public:
    // Document and run outlive the pane.
    dckRun(const FsmDocument& document, const run::LiveRun& run, QWidget* parent);

    // The run is at another moment; anew when what has happened is another than before.
    void ShowRun(bool anew);
    // The run is being played again on an edited table, and came further.
    void ShowReplay();
    bool ShowsCounts() const;
    // How long a unit of time is, as typed; empty where that is not known.
    QString Unit() const;
    // Time passes by itself no more.
    void StopTime();
    QPixmap TimelinePicture() const;
    // A way to a state is being looked for.
    void ShowSearch(bool on);
    // Behind the lists, above the last row of buttons.
    void AddBelow(QWidget* widget);

  Q_SIGNALS:
    void Wanted(orvane::RunWish wish);
    void PulseWanted(orvane::RowNumber event);
    void HoldWanted(orvane::RowNumber event);
    void TimePassed(orvane::run::Units units);
    void TimeWanted(orvane::run::Units time);
    void LimitGiven(orvane::run::Units units);
    void WayWanted(orvane::StateNumber to);
    void SearchUnwanted();

  private:
    void MakeTop(QVBoxLayout& layout);
    void MakeLists(QVBoxLayout& layout);
    QWidget* MakeTimeline(QWidget* parent);
    void AddButton(QBoxLayout& row, const char* name, const QString& caption, const QString& hint,
                   RunWish wish);
    void MakeBottom(QVBoxLayout& layout);
    void AddKeys();
    void AddKey(const QKeySequence& key, RunWish wish);
    void ConnectInputs();
    void PressInput(const QModelIndex& index, bool holds);
    QString WhereText() const;
    QString NoticeText() const;

    const FsmDocument& document_;
    const run::LiveRun& run_;
    QWidget* body_;
    fraRunButtons* buttons_;
    fraWay* way_;
    RunPlayer* player_;
    QLabel* lblWhere;
    QLabel* lblNotice;
    fraLimit* fraLimit_;
    InputsModel* inputs_;
    TimersModel* timers_;
    LogModel* log_;
    InputsView* lstInputs;
    QTableView* lstTimers;
    QTableView* lstLog;
    timRun* timRun_;
    QVBoxLayout* below_;
    QCheckBox* chkCounts;
};

} // namespace orvane
