// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TableMenus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <utility>

namespace orvane {

namespace {

enum class Kind { BarMenu, PopUpMenu, SubMenu, Item, Toggle, SubItem, Separator };

struct Entry {
    Kind What;
    const char* Name;
    const char* Caption = "";
};

// In menu order. An item belongs to the menu above it, a sub-item to the submenu above it.
constexpr auto kTree = std::to_array<Entry>({
    {Kind::BarMenu, "mnuFile", "File"},
    {Kind::Item, "mnuFNew", "New"},
    {Kind::Item, "mnuFOpen", "Open"},
    {Kind::Item, "mnuFSave", "Save"},
    {Kind::Item, "mnuFSaveAs", "Save &As"},
    {Kind::BarMenu, "mnuEdit", "Edit"},
    {Kind::Item, "mnuUndo", "Undo"},
    {Kind::Item, "mnuRedo", "Redo"},
    {Kind::BarMenu, "mnuCode", "Code"},
    {Kind::Item, "mnuGeneralCode", "Edit general code"},
    {Kind::Item, "mnuCodeGenerate", "Generate"},
    {Kind::Separator, "div3"},
    {Kind::Item, "mnuBuilder", "Builder script"},
    {Kind::Item, "mnuBuildAndTest", "Build and Test"},
    {Kind::BarMenu, "mnuPref", "Preferences"},
    {Kind::Toggle, "mnuShowExitAction", "Show exit action row"},
    {Kind::Toggle, "mnuShowElse", "Show Else row"},
    {Kind::Separator, "div2"},
    {Kind::Toggle, "mnuShowTimingMode", "Show timeout mode"},
    {Kind::Toggle, "mnuShowTimeTarget", "Show timeout target"},
    {Kind::Separator, "div4"},
    {Kind::Toggle, "mnuPolytask", "Polytask"},
    {Kind::PopUpMenu, "mnuColumnHead", "ColumnHead"},
    {Kind::Item, "mnuCopyState", "Copy state"},
    {Kind::Item, "mnuPasteState", "Paste state"},
    {Kind::Item, "mnuInsertState", "Insert state"},
    {Kind::Item, "mnuDeleteState", "Delete state"},
    {Kind::Separator, "div1"},
    {Kind::Item, "mnuCurrentState", "Set current state"},
    {Kind::Item, "mnuBacktrack", "Backtrack"},
    {Kind::PopUpMenu, "mnuEventLabel", "EventLabel"},
    {Kind::Item, "mnuInsertEvent", "Insert Event"},
    {Kind::Item, "mnuDeleteEvent", "Delete event"},
    {Kind::Item, "mnuCopyEvent", "Copy event"},
    {Kind::Item, "mnuPasteEvent", "Paste event"},
    {Kind::PopUpMenu, "mnuTranCell", "TransitionCell"},
    {Kind::SubMenu, "mnuTransAct", "Action ..."},
    {Kind::SubItem, "mnuEditTransAct", "Edit"},
    {Kind::SubItem, "mnuCopyTransAct", "Copy"},
    {Kind::SubItem, "mnuCutTransAct", "Cut"},
    {Kind::SubItem, "mnuPasteTransAct", "Paste"},
    {Kind::SubMenu, "mnuWholeTransition", "Action + Transition ..."},
    {Kind::SubItem, "mnuCopyTransition", "Copy"},
    {Kind::SubItem, "mnuCutTransition", "Cut"},
    {Kind::SubItem, "mnuPasteTransition", "Paste"},
    {Kind::PopUpMenu, "mnuEntryAction", "EntryAction"},
    {Kind::Item, "mnuCopyEntryAction", "Copy entry action"},
    {Kind::Item, "mnuPasteEntryAction", "Paste entry action"},
    {Kind::Item, "mnuDeleteEntryAction", "Delete entry action"},
    {Kind::Item, "mnuCutEntryAction", "Cut entry action"},
});

} // namespace

TableMenus::TableMenus(QMainWindow* window) : QObject(window) {
    QMenu* menu = nullptr;
    QMenu* subMenu = nullptr;
    for (const Entry& entry : kTree) {
        switch (entry.What) {
        case Kind::BarMenu:
        case Kind::PopUpMenu:
            menu = AddMenu(nullptr, entry.Name, entry.Caption);
            if (entry.What == Kind::BarMenu)
                window->menuBar()->addMenu(menu);
            break;
        case Kind::SubMenu:
            subMenu = AddMenu(menu, entry.Name, entry.Caption);
            break;
        case Kind::Separator:
            menu->addSeparator()->setObjectName(QLatin1String(entry.Name));
            break;
        default:
            AddItem(entry.What == Kind::SubItem ? subMenu : menu, entry.Name, entry.Caption);
            Item(entry.Name)->setCheckable(entry.What == Kind::Toggle);
            break;
        }
    }
    SetShortcuts();
}

QMenu* TableMenus::AddMenu(QMenu* parent, const char* name, const char* caption) {
    const QString title = QLatin1String(caption);
    auto* menu = parent != nullptr ? parent->addMenu(title)
                                   : new QMenu(title, qobject_cast<QMainWindow*>(QObject::parent()));
    menu->setObjectName(QLatin1String(name));
    menu->menuAction()->setObjectName(QLatin1String(name));
    menus_.insert(QLatin1String(name), menu);
    return menu;
}

void TableMenus::AddItem(QMenu* menu, const char* name, const char* caption) {
    QAction* item = menu->addAction(QLatin1String(caption));
    item->setObjectName(QLatin1String(name));
    item->setEnabled(false);
    items_.insert(QLatin1String(name), item);
}

void TableMenus::SetShortcuts() {
    for (const auto& [name, keys] : {std::pair{"mnuFNew", Qt::CTRL | Qt::Key_N},
                                     {"mnuFOpen", Qt::CTRL | Qt::Key_O},
                                     {"mnuFSave", Qt::CTRL | Qt::Key_S},
                                     {"mnuFSaveAs", Qt::CTRL | Qt::SHIFT | Qt::Key_S},
                                     {"mnuUndo", Qt::CTRL | Qt::Key_Z},
                                     {"mnuRedo", Qt::CTRL | Qt::Key_Y}})
        Item(name)->setShortcut(QKeySequence(keys));
}

void TableMenus::Connect(const char* name, const std::function<void()>& handler) {
    QAction* item = Item(name);
    connect(item, &QAction::triggered, this, [handler] { handler(); });
    item->setEnabled(true);
}

} // namespace orvane
