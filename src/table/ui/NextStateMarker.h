// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace orvane {

// The small arrow that floats over the head of the state a transition leads to. Drawn, not a picture, so that
// it is sharp at every scale. The pointer goes through it.
class NextStateMarker : public QWidget {
    Q_OBJECT

  public:
    explicit NextStateMarker(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orvane
