// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/CloseKeys.h"

#include <QDialog>
#include <QMainWindow>
#include <QShortcut>

namespace orvane {

void AddCloseKeys(QWidget& window) {
    const auto add = [&window](const QKeySequence& keys) {
        auto* shortcut = new QShortcut(keys, &window);
        if (!window.isWindow())
            shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, &window, [&window] { CloseByKey(window); });
    };
    add(Qt::CTRL | Qt::Key_W);
    if (qobject_cast<QDialog*>(&window) == nullptr)
        add(Qt::Key_Escape);
}

void CloseByKey(QWidget& window) {
    auto* main = qobject_cast<QMainWindow*>(window.parentWidget());
    const bool isPane = !window.isWindow() && main != nullptr;
    window.close();
    if (isPane && main->centralWidget() != nullptr)
        main->centralWidget()->setFocus();
}

} // namespace orvane
