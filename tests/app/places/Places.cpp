// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/places/Places.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabBar>
#include <QTableView>

#include <algorithm>

namespace orvane::test {

namespace {

QRect OnScreen(const QWidget& widget, const QRect& part) {
    return {widget.mapToGlobal(part.topLeft()), part.size()};
}

// The window itself or what it holds.
template <typename Thing>
Thing* Find(QWidget& window, const QString& name) {
    auto* thing = qobject_cast<Thing*>(&window);
    return thing != nullptr && thing->objectName() == name ? thing : window.findChild<Thing*>(name);
}

bool CanBePressed(const QWidget* widget) {
    return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

// Options and checks take a press on their mark and text, not on what is empty beside these.
QRect PartToPress(const QWidget& widget) {
    QRect part = widget.rect();
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr ||
        qobject_cast<const QCheckBox*>(&widget) != nullptr)
        part.setWidth(std::min(part.width(), widget.sizeHint().width()));
    return part;
}

// Menus stand in a bar or in another menu under the action that opens them.
QRect PlaceOfItem(QWidget& window, const QString& name) {
    for (QAction* item : window.actions()) {
        const bool named =
            item->objectName() == name || (item->menu() != nullptr && item->menu()->objectName() == name);
        if (!named || !item->isVisible() || !item->isEnabled())
            continue;
        if (const auto* menu = qobject_cast<const QMenu*>(&window))
            return OnScreen(*menu, menu->actionGeometry(item));
        if (const auto* bar = qobject_cast<const QMenuBar*>(&window))
            return OnScreen(*bar, bar->actionGeometry(item));
    }
    return {};
}

QRect PlaceOfMenuItem(QWidget& window, const QString& name) {
    QRect place = PlaceOfItem(window, name);
    if (auto* bar = window.findChild<QMenuBar*>(); place.isEmpty() && CanBePressed(bar))
        place = PlaceOfItem(*bar, name);
    return place;
}

QRect PlaceOfTab(QWidget& window, const QString& name, const QString& caption) {
    const auto* tabs = Find<QTabWidget>(window, name);
    if (!CanBePressed(tabs))
        return {};
    for (int tab = 0; tab < tabs->count(); ++tab) {
        if (tabs->tabText(tab) == caption && tabs->isTabVisible(tab))
            return OnScreen(*tabs->tabBar(), tabs->tabBar()->tabRect(tab));
    }
    return {};
}

QRect PlaceOfCell(QWidget& window, const QString& name, int row, int column) {
    auto* table = Find<QTableView>(window, name);
    QRect cell;
    if (CanBePressed(table))
        QMetaObject::invokeMethod(table, "CellRect", Q_RETURN_ARG(QRect, cell), Q_ARG(int, row),
                                  Q_ARG(int, column));
    return cell.isEmpty() ? cell : OnScreen(*table->viewport(), cell);
}

QRect PlaceOfFocus(QWidget& window, const QString& name) {
    const auto* widget = Find<QWidget>(window, name);
    const QWidget* focus = QApplication::focusWidget();
    if (widget == nullptr || focus == nullptr || (focus != widget && !widget->isAncestorOf(focus)))
        return {};
    return OnScreen(*widget, widget->rect());
}

// Of a control that cannot be pressed, too: it is looked at.
QRect PlaceOfText(QWidget& window, const QString& name, const QString& text) {
    const auto* widget = Find<QWidget>(window, name);
    const bool shown = widget != nullptr && widget->isVisible() && widget->property("text") == text;
    return shown ? OnScreen(*widget, widget->rect()) : QRect();
}

QRect PlaceIn(QWidget& window, const QString& name) {
    if (const auto equals = name.indexOf(QLatin1Char('=')); equals > 0)
        return PlaceOfText(window, name.left(equals), name.mid(equals + 1));
    if (name.endsWith(QLatin1Char('*')))
        return PlaceOfFocus(window, name.chopped(1));
    if (const auto parts = name.split(QLatin1Char('#')); parts.size() == 2)
        return PlaceOfTab(window, parts[0], parts[1]);
    if (const auto parts = name.split(QLatin1Char('/')); parts.size() == 3)
        return PlaceOfCell(window, parts[0], parts[1].toInt(), parts[2].toInt());
    if (const QRect item = PlaceOfMenuItem(window, name); !item.isEmpty())
        return item;
    const auto* widget = Find<QWidget>(window, name);
    return CanBePressed(widget) ? OnScreen(*widget, PartToPress(*widget)) : QRect();
}

} // namespace

QRect PlaceOf(const QString& name) {
    QWidget* menu = QApplication::activePopupWidget();
    QWidget* front = menu != nullptr ? menu : QApplication::activeWindow();
    return front == nullptr ? QRect() : PlaceIn(*front, name);
}

} // namespace orvane::test
