// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/ui/TableFixture.h"

#include <functional>
#include <map>
#include <string_view>

class QMenu;

namespace orvane {

// Works through the menus that pop up over the table.
class PopUpFixture : public TableFixture {
  protected:
    // Presses the right button on the cell; whether the menu that comes up there offers the item.
    bool IsOffered(int row, int column, std::string_view item);

    // Presses the right button on the cell and picks the item, which must be offered there.
    void Choose(int row, int column, std::string_view item);

    // Which of the paste commands are offered, each in the menu that it stands in.
    std::map<std::string, bool> OfferedPastes();

    // The columns, 0 for the row heads, that are drawn again while the command runs.
    std::vector<int> DrawnBy(const std::function<void()>& command);

    // The document has changed and can be changed back by this many undo steps.
    int UndoSteps();

    // The item in the menu that comes up by a right press on the cell, and stays open; null when it has none.
    QAction* PopUpWith(int row, int column, std::string_view item);
};

} // namespace orvane
