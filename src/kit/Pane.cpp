// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/Pane.h"

#include "kit/CloseKeys.h"
#include "kit/OpenInDesktop.h"

namespace orvane {

Pane::Pane(const char* name, const QString& title, int helpPage, QWidget* parent)
    : QDockWidget(title, parent), helpPage_(helpPage) {
    setObjectName(QLatin1String(name));
    AddCloseKeys(*this);
}

bool Pane::event(QEvent* event) { return TakesHelpKey(*event, helpPage_) || QDockWidget::event(event); }

} // namespace orvane
