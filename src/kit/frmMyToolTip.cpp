// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/frmMyToolTip.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kInterval = 50;   // milliseconds between two ticks
constexpr int kProseWidth = 60; // average characters
constexpr int kHintMargin = 4;  // pixels around the text
constexpr int kBelow = 22;      // pixels from the pointer's tip to a hint below: clear of the arrow
constexpr int kAbove = 6;
constexpr int kAside = 10;

} // namespace

frmMyToolTip::frmMyToolTip(QWidget* owner)
    : QFrame(owner, Qt::ToolTip | Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput),
      lblHint(new QLabel(this)),
      Timer1(new QTimer(this)),
      timing_(kInterval) {
    setObjectName(QStringLiteral("frmMyToolTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    lblHint->setObjectName(QStringLiteral("lblHint"));
    lblHint->setForegroundRole(QPalette::ToolTipText);
    lblHint->setTextFormat(Qt::PlainText);
    lblHint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblHint->setMargin(kHintMargin);
    lblHint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // a long text is cut
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(lblHint);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(kInterval);
    connect(Timer1, &QTimer::timeout, this, [this] { Handle('T'); });
    if (owner)
        owner->window()->installEventFilter(this);
}

void frmMyToolTip::Display(const QString& text, bool wrap, const QPoint& globalPlace) {
    if (text.isEmpty())
        return UnDisplay();
    text_ = text;
    wrap_ = wrap;
    place_ = globalPlace;
    Handle('D');
}

void frmMyToolTip::UnDisplay() { Handle('U'); }

void frmMyToolTip::Follow(const QString& text, bool wrap) {
    if (timing_.Current() == TooltipTiming::State::Hidden || text == text_)
        return;
    if (text.isEmpty())
        return UnDisplay();
    text_ = text;
    wrap_ = wrap;
    if (timing_.Current() == TooltipTiming::State::Shown)
        Show();
}

void frmMyToolTip::Handle(char event) {
    switch (timing_.Handle(event)) {
    case TooltipTiming::Effect::Show:
        Show();
        break;
    case TooltipTiming::Effect::Hide:
        hide();
        break;
    case TooltipTiming::Effect::None:
        break;
    }
    if (timing_.Current() != TooltipTiming::State::Waiting)
        Timer1->stop();
    else if (event == 'D')
        Timer1->start();
}

void frmMyToolTip::Show() {
    setPalette(QToolTip::palette()); // text and ground of one theme, dark or light
    setFont(QToolTip::font());
    lblHint->setWordWrap(wrap_);
    lblHint->setText(text_);
    const QScreen* screen = QGuiApplication::screenAt(place_);
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize size = SizeForText(area);
    QRect rect = HintRect(size, place_, area);
    if (rect.contains(QCursor::pos())) // the pointer has moved on while the delay ran
        rect = HintRect(size, QCursor::pos(), area);
    setGeometry(rect);
    show();
}

QSize frmMyToolTip::SizeForText(const QRect& screen) const {
    const QSize frame(2 * frameWidth(), 2 * frameWidth());
    if (!wrap_)
        return lblHint->sizeHint() + frame;
    const int widest =
        std::min(kProseWidth * fontMetrics().averageCharWidth(), screen.width() - frame.width());
    const int oneLine = fontMetrics().size(Qt::TextExpandTabs, text_).width() + 2 * kHintMargin;
    const int width = std::min(widest, oneLine);
    return QSize(width, lblHint->heightForWidth(width)) + frame;
}

bool frmMyToolTip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide)
        UnDisplay();
    return QFrame::eventFilter(watched, event);
}

QRect HintRect(QSize size, const QPoint& place, const QRect& screen) {
    size = size.boundedTo(screen.size());
    const int roomBelow = screen.bottom() + 1 - (place.y() + kBelow);
    const int roomAbove = place.y() - kAbove - screen.top();
    const bool below = size.height() <= roomBelow || (size.height() > roomAbove && roomBelow >= roomAbove);
    size.setHeight(std::min(size.height(), std::max(below ? roomBelow : roomAbove, 1)));
    const int top = below ? place.y() + kBelow : place.y() - kAbove - size.height();
    const int left = std::clamp(place.x() + kAside, screen.left(), screen.right() + 1 - size.width());
    return {QPoint(left, top), size};
}

} // namespace orvane
