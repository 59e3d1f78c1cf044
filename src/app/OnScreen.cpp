// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OnScreen.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kTitleBar = 32; // pixels

// What surrounds the window is known only when it is shown; a title bar must find room above.
QRect RoomOn(const QRect& screen) { return screen.adjusted(0, kTitleBar, 0, 0); }

// The size that there is room for, also when the window does not become as small.
QSize ShrinkTo(const QRect& room, QWidget& window) {
    const QSize size = window.size().boundedTo(room.size());
    if (size != window.size())
        window.resize(size);
    return size;
}

} // namespace

void FitOnScreen(QWidget& window, const QRect& screen) {
    const QRect room = RoomOn(screen);
    const QSize size = ShrinkTo(room, window);
    const QPoint corner(std::clamp(window.x(), room.left(), room.right() + 1 - size.width()),
                        std::clamp(window.y(), screen.top(), room.bottom() + 1 - size.height()));
    if (corner != window.pos())
        window.move(corner);
}

OnScreen::OnScreen() { qApp->installEventFilter(this); }

// Before a window is seen. Its place is left to Qt and the desktop, which centre a dialog over its window.
bool OnScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show || event->spontaneous() || !watched->isWidgetType())
        return false;
    auto& widget = dynamic_cast<QWidget&>(*watched);
    if (widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog)
        ShrinkTo(RoomOn(widget.screen()->availableGeometry()), widget);
    return false;
}

} // namespace orvane
