// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/CellBlock.h"
#include "table/ui/SystemCells.h"

#include <QString>

#include <optional>

namespace orvane {

class Session;
enum class Command : unsigned char;

// Cut, copy, paste and clear of chosen cells; and what the commands of the pop-up menus mean for the
// desktop's clipboard. Each edit is one step.
class CellCommands {
  public:
    explicit CellCommands(Session& session) : session_(session) {}

    // Runs one of the four, and returns what is to be told, often nothing.
    QString Run(Command command, const CellChoice& choice);
    // Puts what the table's own clipboard has into the cells.
    QString PasteOwn(const CellChoice& choice);

    // A command of a pop-up menu is about to copy or cut this cell, or what belongs to it.
    void Follow(Command command, Cell pressed);

  private:
    QString Paste(const CellChoice& choice);
    QString PasteText(const CellChoice& choice, const QString& text);
    QString LayDown(const CellChoice& choice, const CellBlock& block);
    void Offer(const CellChoice& choice);

    Session& session_;
    SystemCells system_;
};

} // namespace orvane
