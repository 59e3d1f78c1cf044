// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/LiveRun.h"
#include "run/Timeline.h"

#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace orvane {

// What the names of the lanes take of the width, in pixels.
int TimelineHeadWidth(const QWidget& widget);

// Draws the lanes of a timeline one below the other, and the scale of the time under them.
class TimelinePainter {
  public:
    struct View {
        int LaneHeight = 0; // pixels
        double First = 0;   // the time at the left end
        double PixelsPerUnit = 1;
    };

    TimelinePainter(QPainter& painter, const QWidget& widget, const FsmDocument& document, const View& view);

    void Paint(const run::Timeline& timeline, const run::LiveRun& run);

  private:
    double X(run::Units time) const;
    QRectF Lane(int number) const;
    void PaintHead(int lane, const QString& name);
    void PaintStates(const run::Timeline& timeline);
    void PaintInput(int lane, const run::InputLane& input);
    void PaintTimer(int lane, const run::TimerLane& timer);
    void PaintScale(int lane);
    void PaintMoment(run::Units now, int lanes);

    QPainter& painter_;
    const QWidget& widget_;
    const FsmDocument& document_;
    View view_;
    int head_;
};

} // namespace orvane
