// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Redraw.h"
#include "core/FsmDocument.h"
#include "core/UserMessage.h"
#include "table/TableClipboard.h"

#include <QObject>

#include <optional>

class QWidget;

namespace orvane {

class TableMenus;

// A cell of the table, heads included.
struct GridCell {
    int Row = 0;
    int Column = 0;
};

// The commands of the pop-up menus that move, copy and paste whole pieces of the table. They act on the cell
// that was pressed last.
class TableCommands : public QObject {
    Q_OBJECT

  public:
    // All of them outlive this; questions are asked over the window.
    TableCommands(FsmDocument& document, const GridCell& pressed, TableMenus& menus, QWidget* window);

    // Connects the menu items; changes run through the runner.
    void Connect(const CommandRunner& run);

    // Enables what the clipboard's content can be pasted as.
    void EnablePasteItems();

  private:
    void ConnectStructure();
    void ConnectCopies();
    void ConnectCuts();
    void ConnectPastes();
    // An item whose command changes the document and then has this drawn again.
    void ConnectChange(const char* item, Redraw::Extent drawn, const std::function<void()>& change);
    // The same for a command that may be refused; it returns whether it was done.
    void ConnectRefusable(const char* item, Redraw::Extent drawn, const std::function<bool()>& change);
    bool Done(const std::optional<UserMessage>& refusal);

    FsmDocument& document_;
    const GridCell& pressed_;
    TableMenus& menus_;
    QWidget* window_;
    CommandRunner run_;
    TableClipboard clipboard_;
};

} // namespace orvane
