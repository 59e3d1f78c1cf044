// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TableCommands.h"

#include "app/TableMenus.h"
#include "kit/UserMessageBox.h"
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
    ConnectRefusable("mnuInsertEvent", Redraw::Extent::Everything,
                     [this] { return Done(InsertEvent(document_, clipboard_, pressed_.Row)); });
    ConnectRefusable("mnuDeleteEvent", Redraw::Extent::Everything, [this] {
        return DeleteEvent(document_, clipboard_, pressed_.Row, [this](const UserMessage& question) {
            return Show(window_, question) == QMessageBox::Yes;
        });
    });
    ConnectRefusable("mnuInsertState", Redraw::Extent::AllColumns,
                     [this] { return Done(InsertState(document_, clipboard_, pressed_.Column)); });
    ConnectChange("mnuDeleteState", Redraw::Extent::AllColumns,
                  [this] { DeleteState(document_, clipboard_, pressed_.Column); });
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
    // The cell shows that its action is gone when its column is next drawn.
    ConnectChange("mnuCutEntryAction", Redraw::Extent::Nothing,
                  [this] { CutEntryAction(document_, clipboard_, pressed_.Column); });
    ConnectChange("mnuDeleteEntryAction", Redraw::Extent::Everything,
                  [this] { DeleteEntryAction(document_, pressed_.Column); });
    ConnectChange("mnuCutTransAct", Redraw::Extent::Everything,
                  [this] { CutTransitionAction(document_, clipboard_, pressed_.Row, pressed_.Column); });
    ConnectChange("mnuCutTransition", Redraw::Extent::Everything,
                  [this] { CutTransition(document_, clipboard_, pressed_.Row, pressed_.Column); });
}

void TableCommands::ConnectPastes() {
    ConnectChange("mnuPasteState", Redraw::Extent::Everything,
                  [this] { PasteState(document_, clipboard_, pressed_.Column); });
    ConnectChange("mnuPasteEvent", Redraw::Extent::Everything,
                  [this] { PasteEvent(document_, clipboard_, pressed_.Row); });
    ConnectChange("mnuPasteEntryAction", Redraw::Extent::Everything,
                  [this] { PasteEntryAction(document_, clipboard_, pressed_.Column); });
    ConnectChange("mnuPasteTransAct", Redraw::Extent::Everything,
                  [this] { PasteTransitionAction(document_, clipboard_, pressed_.Row, pressed_.Column); });
    // The cell shows its new content when its column is next drawn.
    ConnectChange("mnuPasteTransition", Redraw::Extent::Nothing,
                  [this] { PasteTransition(document_, clipboard_, pressed_.Row, pressed_.Column); });
}

void TableCommands::ConnectChange(const char* item, Redraw::Extent drawn,
                                  const std::function<void()>& change) {
    ConnectRefusable(item, drawn, [change] {
        change();
        return true;
    });
}

void TableCommands::ConnectRefusable(const char* item, Redraw::Extent drawn,
                                     const std::function<bool()>& change) {
    menus_.Connect(item, [this, drawn, change] {
        run_([drawn, &change] { return change() ? std::optional(Redraw{drawn}) : std::nullopt; });
        EnablePasteItems(); // a cut fills the clipboard, a column that moves can empty it
    });
}

bool TableCommands::Done(const std::optional<UserMessage>& refusal) {
    if (refusal)
        Show(window_, *refusal);
    return !refusal;
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
