// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QHash>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

namespace orvane {

// Which widgets have been painted since this was made, how often, and which part of them.
class SeenPaints : public QObject {
  public:
    SeenPaints() {
        Settle();
        qApp->installEventFilter(this);
    }

    int Times(const QWidget& widget) {
        Settle();
        return times_.value(&widget);
    }
    QRegion Part(const QWidget& widget) {
        Settle();
        return parts_.value(&widget);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++times_[watched];
            parts_[watched] += dynamic_cast<const QPaintEvent&>(*event).region();
        }
        return false;
    }

  private:
    // A layout in a layout is told of a change one turn of the event loop after the inner one.
    static void Settle() {
        for (int turn = 0; turn < 8; ++turn)
            QApplication::processEvents();
    }

    QHash<const QObject*, int> times_;
    QHash<const QObject*, QRegion> parts_;
};

} // namespace orvane
