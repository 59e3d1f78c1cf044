// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/ui/picDiagram.h"

#include "diagram/ui/PictureAccess.h"
#include "kit/PaneLook.h"
#include "kit/PicturePainter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

using diagram::Hit;

constexpr double kLeastZoom = 0.1;
constexpr double kMostZoom = 4;
constexpr double kReadableZoom = 0.7;
constexpr double kNotchZoom = 1.25; // for each notch of the wheel
constexpr double kWheelNotch = 120; // what a wheel tells for one notch
constexpr int kSightMargin = 12;    // pixels kept around what is brought into sight
constexpr int kLineReach = 5;       // pixels of the screen from a line

std::optional<diagram::Heading> HeadingOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return diagram::Heading::Left;
    case Qt::Key_Right:
        return diagram::Heading::Right;
    case Qt::Key_Up:
        return diagram::Heading::Up;
    case Qt::Key_Down:
        return diagram::Heading::Down;
    default:
        return std::nullopt;
    }
}

} // namespace

picDiagram::picDiagram(const diagram::LivePicture& picture, const PictureFonts& fonts, QWidget* parent)
    : QAbstractScrollArea(parent), picture_(picture), fonts_(fonts) {
    AddPictureAccess(); // before a name is given, which makes an interface that is kept
    setObjectName(QStringLiteral("picDiagram"));
    setAccessibleName(tr("Diagram"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 90);
    horizontalScrollBar()->setSingleStep(20);
    verticalScrollBar()->setSingleStep(20);
    viewport()->setToolTip(
        tr("Press: choose in the table. Double click: open. Ctrl+wheel: zoom. Middle button: move."));
}

void picDiagram::Refresh() {
    if (!IsShown(marks_.Focus))
        marks_.Focus = {};
    marks_.Current = marks_.Current == Hit() || IsShown(marks_.Current) ? marks_.Current : Hit();
    marks_.Taken.reset();
    SetRanges();
    viewport()->update();
    TellPictureChanged(*this);
}

void picDiagram::ShowMarks(const PictureMarks& marks) {
    const Hit focus = marks_.Focus;
    const bool isElsewhere = !(marks.Current == marks_.Current);
    const bool runsOn = marks.Running != marks_.Running && marks.Running;
    marks_ = marks;
    marks_.Focus = focus;
    if (isElsewhere)
        BringIntoSight(marks_.Current);
    if (runsOn)
        BringIntoSight({picture_.Shown().IndexOf(*marks_.Running), {}});
    viewport()->update();
}

void picDiagram::Fit() {
    const diagram::Rect& all = picture_.Places().Bounds;
    const double across = double(maximumViewportSize().width()) / std::max(all.Width, 1);
    const double down = double(maximumViewportSize().height()) / std::max(all.Height, 1);
    zoom_ = std::clamp(std::min({across, down, 1.0}), kLeastZoom, kMostZoom);
    SetRanges();
    GoToBegin();
    viewport()->update();
}

void picDiagram::FitReadable() {
    Fit();
    if (zoom_ < kReadableZoom)
        Magnify(kReadableZoom / zoom_, {});
    GoToBegin();
    BringIntoSight(IsShown(marks_.Current) ? marks_.Current : Hit{0, {}});
}

void picDiagram::Magnify(double factor, const QPointF& about) {
    const QPointF held = ToPicture(about);
    zoom_ = std::clamp(zoom_ * factor, kLeastZoom, kMostZoom);
    SetRanges();
    const QPointF corner = held * zoom_ - about;
    horizontalScrollBar()->setValue(int(std::lround(corner.x())));
    verticalScrollBar()->setValue(int(std::lround(corner.y())));
    viewport()->update();
}

// The scroll bars count in the picture's own places, so that what is in sight stays when the picture grows to
// the left or upwards. A picture that is smaller than the pane may lie anywhere in it.
void picDiagram::SetRanges() {
    const diagram::Rect& all = picture_.Places().Bounds;
    const auto set = [&](QScrollBar& bar, int begin, int end, int page) {
        const int first = int(std::floor(begin * zoom_));
        const int last = int(std::ceil(end * zoom_)) - page;
        bar.setRange(std::min(first, last), std::max(first, last));
        bar.setPageStep(page);
    };
    const auto policy = [](double length, int room) {
        return length > room ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    };
    setHorizontalScrollBarPolicy(policy(all.Width * zoom_, maximumViewportSize().width()));
    setVerticalScrollBarPolicy(policy(all.Height * zoom_, maximumViewportSize().height()));
    set(*horizontalScrollBar(), all.X, all.Right(), viewport()->width());
    set(*verticalScrollBar(), all.Y, all.Bottom(), viewport()->height());
}

void picDiagram::GoToBegin() {
    const auto go = [](QScrollBar& bar, Qt::ScrollBarPolicy policy) {
        const bool fits = policy == Qt::ScrollBarAlwaysOff;
        bar.setValue(fits ? (bar.minimum() + bar.maximum()) / 2 : bar.minimum());
    };
    go(*horizontalScrollBar(), horizontalScrollBarPolicy());
    go(*verticalScrollBar(), verticalScrollBarPolicy());
}

QPointF picDiagram::ToPicture(const QPointF& viewport) const {
    return (viewport + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value())) / zoom_;
}

QRectF picDiagram::FromPicture(const diagram::Rect& rect) const {
    return {rect.X * zoom_ - horizontalScrollBar()->value(), rect.Y * zoom_ - verticalScrollBar()->value(),
            rect.Width * zoom_, rect.Height * zoom_};
}

bool picDiagram::IsShown(const Hit& hit) const {
    return (hit.State && *hit.State < picture_.Places().States.size()) ||
           (hit.Edge && *hit.Edge < picture_.Places().Edges.size());
}

const diagram::Rect& picDiagram::PlaceOf(const Hit& hit) const {
    return hit.State ? picture_.Places().States[*hit.State].Box : picture_.Places().Edges[*hit.Edge].Label;
}

QRect picDiagram::RectOf(const Hit& hit) const {
    return IsShown(hit) ? FromPicture(PlaceOf(hit)).toAlignedRect() : QRect();
}

void picDiagram::BringIntoSight(const Hit& hit) {
    if (!IsShown(hit))
        return;
    const auto bring = [](QScrollBar& bar, int begin, int end, int page) {
        if (end + kSightMargin > page)
            bar.setValue(bar.value() + std::min(end + kSightMargin - page, begin - kSightMargin));
        else if (begin - kSightMargin < 0)
            bar.setValue(bar.value() + begin - kSightMargin);
    };
    bring(*horizontalScrollBar(), RectOf(hit).left(), RectOf(hit).right(), viewport()->width());
    bring(*verticalScrollBar(), RectOf(hit).top(), RectOf(hit).bottom(), viewport()->height());
}

QRect picDiagram::StateRect(int state) {
    const Hit hit{picture_.Shown().IndexOf(state), {}};
    BringIntoSight(hit);
    return RectOf(hit);
}

QRect picDiagram::EdgeRect(int from, int to) {
    Hit hit;
    for (std::size_t i = 0; i < picture_.Shown().Edges.size(); ++i) {
        if (picture_.Shown().Edges[i].From == StateNumber(from) &&
            picture_.Shown().Edges[i].To == StateNumber(to))
            hit.Edge = i;
    }
    BringIntoSight(hit);
    return RectOf(hit);
}

Hit picDiagram::HitAtViewport(const QPoint& point) const {
    const QPointF at = ToPicture(point);
    return HitAt(picture_.Places(), {int(std::floor(at.x())), int(std::floor(at.y()))},
                 int(std::ceil(kLineReach / std::min(zoom_, 1.0))));
}

// Of a label the event that is pointed at, of a line all of them.
std::vector<Cell> picDiagram::CellsAt(const QPoint& point) const {
    const QPointF at = ToPicture(point);
    const diagram::Point place{int(std::floor(at.x())), int(std::floor(at.y()))};
    if (const auto cell = CellAtLabel(picture_.Shown(), picture_.Places(), fonts_, place))
        return {*cell};
    return CellsOf(picture_.Shown(), HitAtViewport(point));
}

void picDiagram::Focus(const Hit& hit) {
    marks_.Focus = hit;
    BringIntoSight(hit);
    viewport()->update();
    TellPictureFocus(*this);
}

void picDiagram::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    PictureLook look;
    look.Colours = IsDark(palette()) ? DarkPicture() : LightPicture();
    look.Marks = marks_;
    look.Zoom = zoom_;
    if (!hasFocus())
        look.Marks.Focus = {};
    painter.fillRect(event->rect(), look.Colours.Ground);
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    painter.scale(zoom_, zoom_);
    const QRectF part(ToPicture(event->rect().topLeft()), QSizeF(event->rect().size()) / zoom_);
    PaintPicture(painter, {picture_.Shown(), picture_.Places(), fonts_}, look, part);
}

void picDiagram::resizeEvent(QResizeEvent*) { SetRanges(); }

void picDiagram::scrollContentsBy(int, int) { viewport()->update(); }

// Keys that the window has too mean the picture while the focus is here.
bool picDiagram::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = dynamic_cast<QKeyEvent*>(event);
        if (key != nullptr && IsOwnKey(*key)) {
            event->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

bool picDiagram::IsOwnKey(const QKeyEvent& key) const {
    const int code = key.key();
    if (key.modifiers().testFlag(Qt::ControlModifier))
        return code == Qt::Key_0 || code == Qt::Key_Plus || code == Qt::Key_Minus;
    return HeadingOf(code) || code == Qt::Key_Return || code == Qt::Key_Enter ||
           (code == Qt::Key_A && key.modifiers() == Qt::NoModifier);
}

bool picDiagram::ZoomBy(const QKeyEvent& key) {
    if (!key.modifiers().testFlag(Qt::ControlModifier))
        return false;
    const QPointF middle = QRectF(viewport()->rect()).center();
    if (key.key() == Qt::Key_0)
        Fit();
    else if (key.key() == Qt::Key_Plus)
        Magnify(kNotchZoom, middle);
    else if (key.key() == Qt::Key_Minus)
        Magnify(1 / kNotchZoom, middle);
    else
        return false;
    return true;
}

void picDiagram::keyPressEvent(QKeyEvent* event) {
    if (ZoomBy(*event))
        return;
    if (!IsOwnKey(*event))
        return event->ignore(); // Escape closes the pane, other keys are the window's
    if (const auto heading = HeadingOf(event->key()))
        Focus(StepFrom(picture_.Shown(), picture_.Places(), marks_.Focus, *heading));
    else if (event->key() == Qt::Key_A)
        Q_EMIT AllWanted();
    else if (IsShown(marks_.Focus))
        Q_EMIT JumpWanted(CellsOf(picture_.Shown(), marks_.Focus));
}

// Tab goes through the states, and on to the next widget behind the last.
bool picDiagram::focusNextPrevChild(bool next) {
    const std::size_t states = picture_.Shown().States.size();
    std::optional<std::size_t> state = marks_.Focus.State;
    if (marks_.Focus.Edge)
        state = picture_.Shown().IndexOf(picture_.Shown().Edges[*marks_.Focus.Edge].From);
    if (states == 0 || !state || (next ? *state + 1 >= states : *state == 0)) {
        marks_.Focus = {};
        return QAbstractScrollArea::focusNextPrevChild(next);
    }
    Focus({next ? *state + 1 : *state - 1, {}});
    return true;
}

void picDiagram::focusInEvent(QFocusEvent* event) {
    const bool isByTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    const std::size_t states = picture_.Shown().States.size();
    if (isByTab && states > 0)
        Focus({event->reason() == Qt::TabFocusReason ? 0 : states - 1, {}});
    else if (!IsShown(marks_.Focus))
        Focus(IsShown(marks_.Current) ? marks_.Current : states > 0 ? Hit{0, {}} : Hit());
    viewport()->update();
}

void picDiagram::focusOutEvent(QFocusEvent*) { viewport()->update(); }

void picDiagram::mousePressEvent(QMouseEvent* event) {
    dragged_ = event->pos();
    if (event->button() != Qt::LeftButton)
        return;
    if (const Hit hit = HitAtViewport(event->pos()); IsShown(hit)) {
        Focus(hit);
        Q_EMIT CellsChosen(CellsAt(event->pos()));
    }
}

void picDiagram::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && IsShown(HitAtViewport(event->pos())))
        Q_EMIT CellsOpened(CellsAt(event->pos()));
}

void picDiagram::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::MiddleButton))
        return;
    const QPoint moved = event->pos() - dragged_;
    dragged_ = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

void picDiagram::mouseReleaseEvent(QMouseEvent*) { viewport()->unsetCursor(); }

void picDiagram::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        Magnify(std::pow(kNotchZoom, turned.y() / kWheelNotch), event->position());
    } else {
        const bool isAcross = event->modifiers().testFlag(Qt::ShiftModifier);
        const int across = isAcross && turned.x() == 0 ? turned.y() : turned.x();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - across / 2);
        verticalScrollBar()->setValue(verticalScrollBar()->value() - (isAcross ? 0 : turned.y() / 2));
    }
    event->accept();
}

} // namespace orvane
