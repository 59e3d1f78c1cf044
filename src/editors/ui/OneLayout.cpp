// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/OneLayout.h"

#include <QApplication>
#include <QLayout>
#include <QScrollArea>

namespace orvane {

OneLayout::OneLayout(QScrollArea& area) : area_(area), layouts_(area.findChildren<QLayout*>()) {
    Enable(false);
}

OneLayout::~OneLayout() {
    for (auto layout = layouts_.crbegin(); layout != layouts_.crend(); ++layout) {
        (*layout)->invalidate();
        (*layout)->parentWidget()->updateGeometry();
    }
    Enable(true);
    QEvent contentChanged(QEvent::LayoutRequest); // its size comes first
    QApplication::sendEvent(&area_, &contentChanged);
    for (QLayout* layout : layouts_)
        layout->activate();
    // What an inner one has told an outer one meanwhile is known already: no event has to bring it.
    for (auto layout = layouts_.crbegin(); layout != layouts_.crend(); ++layout)
        (*layout)->activate();
}

void OneLayout::Enable(bool enabled) const {
    for (QLayout* layout : layouts_)
        layout->setEnabled(enabled);
}

} // namespace orvane
