// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandMenus.h"

#include "session/CommandState.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace orvane {

namespace {

QString Latin1(std::string_view text) { return QLatin1String(QByteArrayView(text)); }

} // namespace

CommandMenus::CommandMenus(QMainWindow& window) : QObject(&window), window_(window) {
    QMenu* menu = nullptr;
    QMenu* subMenu = nullptr;
    for (const CommandEntry& entry : kCommands) {
        switch (entry.Kind) {
        case EntryKind::BarMenu:
            menu = AddMenu(nullptr, entry);
            window_.menuBar()->addMenu(menu);
            break;
        case EntryKind::PopUpMenu:
            menu = AddMenu(nullptr, entry);
            break;
        case EntryKind::SubMenu:
            subMenu = AddMenu(menu, entry);
            break;
        case EntryKind::Divider:
            menu->addSeparator()->setObjectName(Latin1(entry.Name));
            break;
        case EntryKind::Item:
        case EntryKind::Toggle:
            AddItem(menu, entry);
            break;
        case EntryKind::SubItem:
            AddItem(subMenu, entry);
            break;
        }
    }
    AddMenuKeys();
}

// Alt and the first letter of its caption opens a menu, F10 the first one, though no letter is marked.
void CommandMenus::AddMenuKeys() {
    const auto open = [this](const QKeySequence& keys, QAction* menu) {
        auto* shortcut = new QShortcut(keys, &window_);
        connect(shortcut, &QShortcut::activated, this,
                [this, menu] { window_.menuBar()->setActiveAction(menu); });
    };
    for (const CommandEntry& entry : kCommands) {
        if (entry.Kind == EntryKind::BarMenu)
            open(QKeySequence(Qt::ALT | Qt::Key(entry.Caption.front())), Item(entry.Id));
    }
    open(Qt::Key_F10, Item(Command::FileMenu));
}

QMenu* CommandMenus::AddMenu(QMenu* parent, const CommandEntry& entry) {
    const QString caption = Latin1(entry.Caption);
    QMenu* menu = parent != nullptr ? parent->addMenu(caption) : new QMenu(caption, &window_);
    menu->setObjectName(Latin1(entry.Name));
    menu->menuAction()->setObjectName(Latin1(entry.Name));
    Item(entry.Id) = menu->menuAction();
    return menu;
}

void CommandMenus::AddItem(QMenu* menu, const CommandEntry& entry) {
    QAction* item = menu->addAction(Latin1(entry.Caption));
    item->setObjectName(Latin1(entry.Name));
    item->setCheckable(entry.Kind == EntryKind::Toggle);
    item->setShortcut(QKeySequence::fromString(Latin1(entry.Keys), QKeySequence::PortableText));
    if (entry.Where == HeardIn::TheTable)
        item->setShortcutContext(Qt::WidgetShortcut);
    connect(item, &QAction::triggered, this, [this, id = entry.Id] { Q_EMIT Chosen(id); });
    Item(entry.Id) = item;
}

QMenu& CommandMenus::Menu(Command menu) const { return *items_[IndexOf(menu)]->menu(); }

void CommandMenus::PopUp(Command menu, const QPoint& globalPosition) const {
    Menu(menu).popup(globalPosition);
}

void CommandMenus::ShowState(const Session& session) {
    for (const CommandEntry& entry : kCommands) {
        if (entry.Needs != Need::Nothing)
            Item(entry.Id)->setEnabled(IsPossible(session, entry));
        if (entry.Kind == EntryKind::Toggle)
            Item(entry.Id)->setChecked(IsChecked(session, entry.Id));
    }
}

} // namespace orvane
