// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdlib>

namespace orvane {

// Ends the process as soon as the window has been painted for the first time, before anything that the
// program does after that.
class EndAtFirstPaint : public QObject {
  public:
    explicit EndAtFirstPaint(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint &&
            watched == &window_) // the rest of the window is painted in this turn
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        return false;
    }

    bool event(QEvent* event) override {
        if (event->type() == QEvent::User)
            std::_Exit(0);
        return QObject::event(event);
    }

  private:
    QWidget& window_;
};

} // namespace orvane
