// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/WhenIdle.h"

#include <QApplication>
#include <QKeyEvent>

namespace orvane {

WhenIdle::WhenIdle(QObject* parent) : QObject(parent) {
    quiet_.setSingleShot(true);
    quiet_.setInterval(kQuiet);
    connect(&quiet_, &QTimer::timeout, this, &WhenIdle::LookAgain);
    qApp->installEventFilter(this);
    quiet_.start();
}

bool WhenIdle::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        keysDown_.insert(static_cast<QKeyEvent*>(event)->key());
        quiet_.start();
        break;
    case QEvent::KeyRelease:
        keysDown_.remove(static_cast<QKeyEvent*>(event)->key());
        quiet_.start();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        quiet_.start();
        break;
    case QEvent::ApplicationDeactivate: // another program gets the releases
        keysDown_.clear();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WhenIdle::LookAgain() {
    if (!keysDown_.isEmpty() || QApplication::mouseButtons() != Qt::NoButton ||
        QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) {
        quiet_.start();
        return;
    }
    qApp->removeEventFilter(this);
    Q_EMIT Idle();
}

} // namespace orvane
