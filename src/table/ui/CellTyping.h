// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/Draft.h"

class QString;
class QWidget;

namespace orvane {

class Session;
class TableGrid;

enum class BegunBy { Press, Key };

// Typing the number of a target into a cell: from the box over the cell into the document.
class CellTyping final : public DraftSource {
  public:
    // All outlive this; what is refused is told over the window.
    CellTyping(Session& session, TableGrid& grid, QWidget& window);
    ~CellTyping();
    CellTyping(const CellTyping&) = delete;
    CellTyping& operator=(const CellTyping&) = delete;

    // Opens the box over a cell that can have a transition; what was being typed elsewhere is stored first.
    void BeginCellEdit(Cell cell, BegunBy begun = BegunBy::Press);
    // Opens it with this in the place of what the cell holds.
    void BeginByTyping(Cell cell, const QString& digits);
    // Stores what the box holds, closes it, and runs the generator, whatever it held. Returns whether it was
    // taken.
    bool CommitCellEdit();
    // The same; an edit that was begun by a key goes on to the cell below.
    void CommitByEnter();
    // Stores a target that was chosen, and goes on to the cell below.
    void StoreTarget(Cell cell, StateNumber target);
    // Before another command changes, moves or stores the cell: what was typed there is stored, and a cell
    // that was only opened stays as it is.
    void Finish();
    // Closes the box; what was typed is forgotten.
    void Abandon();

    std::optional<Draft> CurrentDraft() const override;

  private:
    void GoBelow(Cell cell);

    BegunBy begun_ = BegunBy::Press;
    Session& session_;
    TableGrid& grid_;
    QWidget& window_;
};

} // namespace orvane
