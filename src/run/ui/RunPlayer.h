// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Machine.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <optional>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace orvane {

// Lets time pass by itself: button, speed, and how long a unit of the machine's time is.
class RunPlayer : public QWidget {
    Q_OBJECT

  public:
    explicit RunPlayer(QWidget* parent);

    // How long a unit is, as it was typed ("0.1 s"); empty while that is not known or not understood.
    QString Unit() const;
    bool IsRunning() const { return tmrRun.isActive(); }

    void Toggle();
    void Stop();

  Q_SIGNALS:
    void TimePassed(orvane::run::Units units);
    void NextWanted(); // as fast as things happen: what comes next
    void UnitChanged();

  private:
    void Start();
    void Tick();
    double UnitsPerMillisecond() const;

    QTimer tmrRun;
    QElapsedTimer clock_;
    double owed_ = 0; // units, what did not make a whole one yet
    QPushButton* cmdRun;
    QComboBox* cboSpeed;
    QLineEdit* txtUnit;
};

} // namespace orvane
