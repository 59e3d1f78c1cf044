// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace orvane {

// Ends the process as soon as the window has been painted for the first time.
class EndAtFirstPaint : public QObject {
  public:
    explicit EndAtFirstPaint(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched == &window_)
            QTimer::singleShot(0, [] { std::_Exit(0); }); // the rest of the window is painted in this turn
        return false;
    }

  private:
    QWidget& window_;
};

} // namespace orvane
