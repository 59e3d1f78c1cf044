// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/Commands.h"

#include <QObject>

#include <array>

class QAction;
class QMainWindow;
class QMenu;

namespace orvane {

class Session;

// The catalogue of commands as menus: those of the menu bar and those that pop up over the table. Every menu
// and item carries its name.
class CommandMenus : public QObject {
    Q_OBJECT

  public:
    explicit CommandMenus(QMainWindow& window);

    QMenu& Menu(Command menu) const;
    void PopUp(Command menu, const QPoint& globalPosition) const;

    // Enables what is possible now and sets the check marks.
    void ShowState(const Session& session);

  Q_SIGNALS:
    void Chosen(orvane::Command command);

  private:
    void AddMenuKeys();
    QMenu* AddMenu(QMenu* parent, const CommandEntry& entry);
    void AddItem(QMenu* menu, const CommandEntry& entry);
    QAction*& Item(Command command) { return items_[IndexOf(command)]; }

    QMainWindow& window_;
    std::array<QAction*, kCommandCount> items_{}; // of menus, what stands for them in the menu above
};

} // namespace orvane
