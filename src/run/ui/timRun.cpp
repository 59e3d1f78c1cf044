// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/timRun.h"

#include "run/ui/TimelinePainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr double kZoomStep = 1.25;       // for each notch of the wheel
constexpr double kShortestShown = 10;    // units
constexpr int kLanePadding = 8;          // pixels
constexpr int kScaleEndCharacters = 5;   // at the right end, so that the last time has room
constexpr std::size_t kLongRun = 20'000; // steps and what they bring
constexpr int kLanesLater = 100;         // milliseconds
constexpr double kNotch = 120;           // what a wheel tells for one notch

} // namespace

timRun::timRun(const FsmDocument& document, const run::LiveRun& run, QWidget* parent)
    : QWidget(parent), document_(document), run_(run), tmrLanes(this) {
    tmrLanes.setObjectName(QStringLiteral("tmrLanes"));
    tmrLanes.setSingleShot(true);
    tmrLanes.setInterval(kLanesLater);
    connect(&tmrLanes, &QTimer::timeout, this, [this] {
        if (!run_.IsReplaying())
            RefreshLanes();
    });
    setObjectName(QStringLiteral("timRun"));
    setAccessibleName(tr("Timeline"));
    setToolTip(tr("Press: go to that moment. Wheel: zoom."));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

// The lanes are made of the whole run, which takes tens of milliseconds of one of a million steps: of a long
// one they follow a little later, and not at all while it is being played again.
void timRun::Refresh(bool anew) {
    const bool isReplaying = run_.IsReplaying();
    if (!isReplaying && !IsLong())
        return RefreshLanes();
    if (isReplaying || anew)
        timeline_ = {}; // lanes of another table would be wrong
    if (!isReplaying && !tmrLanes.isActive())
        tmrLanes.start();
    KeepMomentInSight();
    update();
}

bool timRun::IsLong() const {
    return run_.Past() != nullptr && run_.Past()->Steps().size() + run_.Past()->WholeLog().size() > kLongRun;
}

void timRun::RefreshLanes() {
    tmrLanes.stop();
    const int lanes = Lanes();
    MakeLanes();
    if (lanes != Lanes())
        updateGeometry();
    KeepMomentInSight();
    update();
}

void timRun::MakeLanes() {
    timeline_ = {};
    if (run_.Past() != nullptr)
        timeline_ = run::TimelineOf(*run_.Built(), *run_.Past(), run::Units(0.5 / PixelsPerUnit()));
}

void timRun::KeepMomentInSight() {
    if (length_ <= 0 || run_.Past() == nullptr)
        return;
    const auto now = double(run_.Past()->Now().Where().Now);
    if (now < first_ || now > first_ + length_)
        first_ = std::max(0.0, now - length_ * 0.75);
}

int timRun::Lanes() const { return int(1 + timeline_.Inputs.size() + timeline_.Timers.size()); }

int timRun::LaneHeight() const { return fontMetrics().height() + kLanePadding; }

// One lane more than there are, for the scale.
QSize timRun::sizeHint() const { return {200, LaneHeight() * (Lanes() + 1)}; }

double timRun::PixelsPerUnit() const {
    const auto end = run_.Past() != nullptr ? double(run_.Past()->EndTime()) : 0;
    const double shown = length_ > 0 ? length_ : std::max(end, kShortestShown);
    const int scaleEnd = fontMetrics().averageCharWidth() * kScaleEndCharacters;
    return std::max(1.0, double(width() - TimelineHeadWidth(*this) - scaleEnd)) / shown;
}

int timRun::XOf(qint64 time) const {
    return int(std::lround(TimelineHeadWidth(*this) + (double(time) - first_) * PixelsPerUnit()));
}

run::Units timRun::TimeAt(double x) const {
    const double time = first_ + (x - TimelineHeadWidth(*this)) / PixelsPerUnit();
    return std::max<run::Units>(0, std::llround(time));
}

void timRun::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    TimelinePainter(painter, *this, document_, {LaneHeight(), first_, PixelsPerUnit()})
        .Paint(timeline_, run_);
}

void timRun::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && event->position().x() >= TimelineHeadWidth(*this))
        Q_EMIT TimeWanted(TimeAt(event->position().x()));
}

void timRun::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0)
        Q_EMIT TimeWanted(TimeAt(std::max(event->position().x(), double(TimelineHeadWidth(*this)))));
}

// The time under the pointer stays there. Zoomed out beyond the run all of it is shown again.
void timRun::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / kNotch;
    if (notches == 0 || run_.Past() == nullptr)
        return event->ignore();
    const auto end = double(run_.Past()->EndTime());
    const double whole = std::max(end, kShortestShown);
    const double shown = length_ > 0 ? length_ : whole;
    const double x = event->position().x() - TimelineHeadWidth(*this);
    const double pointed = first_ + x / PixelsPerUnit();
    const double now = std::max(kShortestShown, shown * std::pow(kZoomStep, -notches));
    length_ = now >= whole ? 0 : now;
    first_ = length_ > 0 ? std::max(0.0, pointed - (pointed - first_) * now / shown) : 0;
    MakeLanes();
    update();
    event->accept();
}

void timRun::resizeEvent(QResizeEvent*) { MakeLanes(); }

} // namespace orvane
