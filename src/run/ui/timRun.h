// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/LiveRun.h"
#include "run/Timeline.h"

#include <QTimer>
#include <QWidget>

namespace orvane {

// The run over its time. A press goes to that moment, the wheel zooms where the pointer is; the moment shown
// is a line through all lanes.
class timRun : public QWidget {
    Q_OBJECT

  public:
    // Both outlive the widget.
    timRun(const FsmDocument& document, const run::LiveRun& run, QWidget* parent);

    // The run is at another moment; anew when it is another run, or on another table.
    void Refresh(bool anew);

    // Where a time stands, in pixels from the left; it may lie outside when only a part is shown.
    Q_INVOKABLE int XOf(qint64 time) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  Q_SIGNALS:
    void TimeWanted(orvane::run::Units time);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool IsLong() const;
    void RefreshLanes();
    void MakeLanes();
    void KeepMomentInSight();
    run::Units TimeAt(double x) const;
    double PixelsPerUnit() const;
    int LaneHeight() const;
    int Lanes() const;

    const FsmDocument& document_;
    const run::LiveRun& run_;
    QTimer tmrLanes; // of a long run
    run::Timeline timeline_;
    double first_ = 0;  // the time at the left end
    double length_ = 0; // how much time is shown; 0 for the whole run
};

} // namespace orvane
