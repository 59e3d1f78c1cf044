// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

class QAction;
class QMainWindow;
class QMenu;

namespace orvane {

// The menus of the main window: four in its menu bar, four that pop up over the table. Every menu and item
// carries its name; an item that nothing has been connected to is disabled.
class TableMenus : public QObject {
    Q_OBJECT

  public:
    explicit TableMenus(QMainWindow* window);

    // Both must exist.
    QAction* Item(const char* name) const { return items_.value(QLatin1String(name)); }
    QMenu* Menu(const char* name) const { return menus_.value(QLatin1String(name)); }

    // Makes the item run the handler, and enables it.
    void Connect(const char* name, const std::function<void()>& handler);

  private:
    QMenu* AddMenu(QMenu* parent, const char* name, const char* caption);
    void AddItem(QMenu* menu, const char* name, const char* caption);
    void SetShortcuts();

    QHash<QString, QAction*> items_;
    QHash<QString, QMenu*> menus_;
};

} // namespace orvane
