// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace orvane {

// Types any characters; QTest's own function knows Latin ones only.
inline void TypeAnyText(QWidget& field, const QString& text) {
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QApplication::sendEvent(&field, &press);
        QApplication::sendEvent(&field, &release);
    }
}

} // namespace orvane
