// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/StatusPlace.h"

#include <QEvent>
#include <QLabel>

#include <utility>

namespace orvane {

StatusPlace::StatusPlace(QLabel& label, QWidget* parent) : QWidget(parent), label_(label) {
    label.setParent(this);
}

QSize StatusPlace::sizeHint() const {
    if (sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
        return minimumSizeHint();
    return label_.sizeHint().expandedTo(label_.minimumSize()).boundedTo(label_.maximumSize());
}

QSize StatusPlace::minimumSizeHint() const {
    return label_.minimumSizeHint().expandedTo(label_.minimumSize()).boundedTo(label_.maximumSize());
}

// The label asks its parent for a layout whenever it has another text. Of a text that comes while the place
// is hidden nobody is told.
bool StatusPlace::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
        const QSize wanted = sizeHint();
        if (std::exchange(told_, wanted) != wanted)
            updateGeometry();
    }
    return QWidget::event(event);
}

void StatusPlace::resizeEvent(QResizeEvent*) { label_.setGeometry(rect()); }

} // namespace orvane
