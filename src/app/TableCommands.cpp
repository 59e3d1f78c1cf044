// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TableCommands.h"

#include "app/TableMenus.h"
#include "core/ui/UserMessageBox.h"
#include "table/StructuralEdits.h"

#include <QAction>

namespace orvane {

TableCommands::TableCommands(FsmDocument& document, const GridCell& pressed, TableMenus& menus,
                             QWidget* window)
    : QObject(window), document_(document), pressed_(pressed), menus_(menus), window_(window) {}

void TableCommands::Connect(const CommandRunner& run) {
    run_ = run;
    ConnectStructure();
    ConnectCopies();
    ConnectCuts();
    ConnectPastes();
    EnablePasteItems();
}

void TableCommands::ConnectStructure() {
    ConnectChange("mnuInsertEvent", [this] { Refuse(InsertEvent(document_, clipboard_, pressed_.Row)); });
    ConnectChange("mnuDeleteEvent", [this] {
        DeleteEvent(document_, clipboard_, pressed_.Row, [this](const UserMessage& question) {
            return Show(window_, question) == QMessageBox::Yes;
        });
    });
    ConnectChange("mnuInsertState", [this] { Refuse(InsertState(document_, clipboard_, pressed_.Column)); });
    ConnectChange("mnuDeleteState", [this] { DeleteState(document_, clipboard_, pressed_.Column); });
}

void TableCommands::ConnectCopies() {
    menus_.Connect("mnuCopyState", [this] { CopyState(document_, clipboard_, pressed_.Column); });
    menus_.Connect("mnuCopyEvent", [this] { CopyEvent(document_, clipboard_, pressed_.Row); });
    menus_.Connect("mnuCopyEntryAction", [this] { CopyEntryAction(document_, clipboard_, pressed_.Column); });
    menus_.Connect("mnuCopyTransAct",
                   [this] { CopyTransitionAction(document_, clipboard_, pressed_.Row, pressed_.Column); });
    menus_.Connect("mnuCopyTransition",
                   [this] { CopyTransition(document_, clipboard_, pressed_.Row, pressed_.Column); });
}

void TableCommands::ConnectCuts() {
    ConnectChange("mnuCutEntryAction", [this] { CutEntryAction(document_, clipboard_, pressed_.Column); });
    ConnectChange("mnuDeleteEntryAction", [this] { DeleteEntryAction(document_, pressed_.Column); });
    ConnectChange("mnuCutTransAct",
                  [this] { CutTransitionAction(document_, clipboard_, pressed_.Row, pressed_.Column); });
    ConnectChange("mnuCutTransition",
                  [this] { CutTransition(document_, clipboard_, pressed_.Row, pressed_.Column); });
}

void TableCommands::ConnectPastes() {
    ConnectChange("mnuPasteState", [this] { PasteState(document_, clipboard_, pressed_.Column); });
    ConnectChange("mnuPasteEvent", [this] { PasteEvent(document_, clipboard_, pressed_.Row); });
    ConnectChange("mnuPasteEntryAction",
                  [this] { PasteEntryAction(document_, clipboard_, pressed_.Column); });
    ConnectChange("mnuPasteTransAct",
                  [this] { PasteTransitionAction(document_, clipboard_, pressed_.Row, pressed_.Column); });
    ConnectChange("mnuPasteTransition",
                  [this] { PasteTransition(document_, clipboard_, pressed_.Row, pressed_.Column); });
}

void TableCommands::ConnectChange(const char* item, const std::function<void()>& change) {
    menus_.Connect(item, [this, change] {
        run_([&change] {
            change();
            return Redraw{Redraw::Extent::Everything};
        });
        EnablePasteItems();
    });
}

void TableCommands::Refuse(const std::optional<UserMessage>& message) {
    if (message)
        Show(window_, *message);
}

void TableCommands::EnablePasteItems() {
    QAction* state = menus_.Item("mnuPasteState");
    QAction* event = menus_.Item("mnuPasteEvent");
    QAction* entryAction = menus_.Item("mnuPasteEntryAction");
    QAction* transition = menus_.Item("mnuPasteTransition");
    QAction* transitionAction = menus_.Item("mnuPasteTransAct");
    const PasteItems items = orvane::EnablePasteItems(
        clipboard_.Kind, {state->isEnabled(), event->isEnabled(), entryAction->isEnabled(),
                          transition->isEnabled(), transitionAction->isEnabled()});
    state->setEnabled(items.State);
    event->setEnabled(items.Event);
    entryAction->setEnabled(items.EntryAction);
    transition->setEnabled(items.Transition);
    transitionAction->setEnabled(items.TransitionAction);
}

} // namespace orvane
