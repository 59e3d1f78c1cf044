// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/TimelinePainter.h"

#include "run/RunWords.h"
#include "run/StepCheck.h"
#include "run/ui/StateText.h"

#include <QCoreApplication>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr int kHeadCharacters = 14;
constexpr qreal kInset = 3;          // pixels above and below what stands in a lane
constexpr qreal kPulseWidth = 3;     // pixels; a pulse takes no time
constexpr double kTickDistance = 70; // pixels between two times of the scale, at least
constexpr qreal kFar = 1e6;          // pixels; nothing is drawn farther out
constexpr QRgb kMomentColour = qRgb(220, 0, 0);

// 1, 2 or 5 times a power of ten, in units.
double TickStep(double atLeast) {
    const double power = std::pow(10, std::floor(std::log10(std::max(atLeast, 1.0))));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (power * factor >= atLeast)
            return power * factor;
    }
    return power * 10;
}

} // namespace

int TimelineHeadWidth(const QWidget& widget) {
    return widget.fontMetrics().averageCharWidth() * kHeadCharacters;
}

TimelinePainter::TimelinePainter(QPainter& painter, const QWidget& widget, const FsmDocument& document,
                                 const View& view)
    : painter_(painter),
      widget_(widget),
      document_(document),
      view_(view),
      head_(TimelineHeadWidth(widget)) {}

double TimelinePainter::X(run::Units time) const {
    return std::clamp(head_ + (double(time) - view_.First) * view_.PixelsPerUnit, -kFar, kFar);
}

QRectF TimelinePainter::Lane(int number) const {
    return {qreal(head_), qreal(number * view_.LaneHeight), qreal(widget_.width() - head_),
            qreal(view_.LaneHeight)};
}

void TimelinePainter::Paint(const run::Timeline& timeline, const run::LiveRun& run) {
    painter_.fillRect(widget_.rect(), widget_.palette().color(QPalette::Base));
    painter_.setRenderHint(QPainter::Antialiasing);
    int lane = 0;
    PaintStates(timeline);
    for (const run::InputLane& input : timeline.Inputs)
        PaintInput(++lane, input);
    for (const run::TimerLane& timer : timeline.Timers) {
        PaintTimer(++lane, timer);
        PaintHead(lane, QString::fromStdString(run::TimerName(document_, *run.Built(), timer.Timer)));
    }
    PaintScale(++lane);
    if (run.Past() != nullptr)
        PaintMoment(run.Past()->Now().Where().Now, lane);
}

// Over what was drawn too far to the left.
void TimelinePainter::PaintHead(int lane, const QString& name) {
    const QRectF place(0, lane * view_.LaneHeight, head_, view_.LaneHeight);
    painter_.fillRect(place, widget_.palette().color(QPalette::Window));
    painter_.setPen(widget_.palette().color(QPalette::WindowText));
    painter_.drawText(place.adjusted(4, 0, -4, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      painter_.fontMetrics().elidedText(name, Qt::ElideRight, head_ - 8));
}

void TimelinePainter::PaintStates(const run::Timeline& timeline) {
    bool other = false;
    for (const run::StateStretch& stretch : timeline.States) {
        const QRectF lane = Lane(0);
        QRectF box(X(stretch.From), lane.top() + kInset, 0, lane.height() - 2 * kInset);
        box.setRight(std::max(X(stretch.To), box.left() + 1));
        other = !other;
        painter_.setPen(widget_.palette().color(QPalette::Text));
        painter_.setBrush(widget_.palette().color(other ? QPalette::AlternateBase : QPalette::Base));
        painter_.drawRect(box);
        const QRectF seen = box.intersected(lane).adjusted(3, 0, -1, 0);
        if (seen.width() > painter_.fontMetrics().averageCharWidth() * 2)
            painter_.drawText(seen, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                              painter_.fontMetrics().elidedText(StateText(document_, stretch.State),
                                                                Qt::ElideRight, int(seen.width())));
    }
    PaintHead(0, QCoreApplication::translate("TimelinePainter", "State"));
}

void TimelinePainter::PaintInput(int lane, const run::InputLane& input) {
    const QRectF place = Lane(lane);
    const QColor ink = widget_.palette().color(QPalette::Text);
    painter_.setPen(ink);
    painter_.drawLine(QPointF(place.left(), place.bottom() - kInset),
                      place.bottomRight() - QPointF(0, kInset));
    for (const run::TimeStretch& stretch : input.True) {
        const qreal from = X(stretch.From);
        const qreal to = std::max(X(stretch.To), from + kPulseWidth);
        painter_.fillRect(QRectF(QPointF(from, place.top() + kInset), QPointF(to, place.bottom() - kInset)),
                          widget_.palette().color(QPalette::Highlight));
    }
    PaintHead(lane, QString::fromStdString(run::RowText(document_, input.Event)));
}

// A ramp from each start; it reaches the upper end at the limit and stays there.
void TimelinePainter::PaintTimer(int lane, const run::TimerLane& timer) {
    const QRectF place = Lane(lane).adjusted(0, kInset, 0, -kInset);
    run::Units longest = 1;
    for (const run::TimeStretch& runs : timer.Runs)
        longest = std::max(longest, runs.To - runs.From);
    const run::Units full = std::max<run::Units>(timer.Limit.value_or(longest), 1);
    painter_.setPen(QPen(widget_.palette().color(QPalette::Mid), 1, Qt::DashLine));
    painter_.drawLine(place.topLeft(), place.topRight());
    painter_.setPen(QPen(widget_.palette().color(QPalette::Text), 1.5));
    for (const run::TimeStretch& runs : timer.Runs) {
        const run::Units up = std::min(runs.To, runs.From + full);
        const qreal height = place.height() * double(up - runs.From) / double(full);
        const QPointF start(X(runs.From), place.bottom());
        const QPointF top(X(up), place.bottom() - height);
        painter_.drawLine(start, top);
        painter_.drawLine(top, {X(runs.To), top.y()});
        painter_.drawLine(QPointF(X(runs.To), top.y()), QPointF(X(runs.To), place.bottom()));
    }
}

void TimelinePainter::PaintScale(int lane) {
    const QRectF place = Lane(lane);
    const double step = TickStep(kTickDistance / view_.PixelsPerUnit);
    const QColor ink = widget_.palette().color(QPalette::Text);
    painter_.setPen(ink);
    for (double time = std::ceil(view_.First / step) * step; X(run::Units(time)) < place.right();
         time += step) {
        const qreal x = X(run::Units(time));
        painter_.drawLine(QPointF(x, place.top()), QPointF(x, place.top() + kInset));
        painter_.drawText(QPointF(x + 2, place.bottom() - painter_.fontMetrics().descent()),
                          QString::number(run::Units(time)));
    }
    PaintHead(lane, QCoreApplication::translate("TimelinePainter", "Time"));
}

void TimelinePainter::PaintMoment(run::Units now, int lanes) {
    if (X(now) < head_)
        return;
    painter_.fillRect(
        QRect(int(std::lround(X(now))) - 1, 0, 2, std::max((lanes + 1) * view_.LaneHeight, widget_.height())),
        QColor(kMomentColour));
}

} // namespace orvane
