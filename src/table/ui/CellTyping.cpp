// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellTyping.h"

#include "kit/AnsiString.h"
#include "kit/UserMessageBox.h"
#include "session/Session.h"
#include "table/CellEdit.h"
#include "table/ui/CellEditor.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/TableGrid.h"

namespace orvane {

CellTyping::CellTyping(Session& session, TableGrid& grid, QWidget& window)
    : session_(session), grid_(grid), window_(window) {
    session_.AddDraftSource(*this);
}

CellTyping::~CellTyping() { session_.RemoveDraftSource(*this); }

void CellTyping::BeginCellEdit(Cell cell) {
    if (grid_.Editor().IsOpen())
        CommitCellEdit();
    if (cell.Row < kFirstCellRow || cell.State == kNoState || !CanEditCell(session_.Document(), cell.Row))
        return;
    if (grid_.View().CellRect(cell).isEmpty())
        return;
    grid_.View().setCurrentIndex(IndexOf(grid_.Model(), cell));
    grid_.Editor().Begin(cell, FromAnsi(CellEditText(session_.Document(), cell)));
}

// A number that is refused changes nothing in the cell; the rest of an edit happens all the same.
void CellTyping::CommitCellEdit() {
    CellEditor& editor = grid_.Editor();
    const Cell cell = editor.EditedCell();
    const std::string typed = ToAnsi(editor.text()).Text;
    const std::optional<UserMessage> refusal = RefusalOfTarget(typed);
    if (refusal)
        Show(&window_, *refusal);
    editor.Abandon();
    session_.Edit({"transition", {Touched::Extent::Column, cell.State}},
                  [&](Editable open) { StoreTypedTarget(open.Document, cell, typed); });
}

void CellTyping::Finish() {
    CellEditor& editor = grid_.Editor();
    if (editor.isModified() && editor.IsOpen())
        CommitCellEdit();
    else
        editor.Abandon();
}

void CellTyping::Abandon() { grid_.Editor().Abandon(); }

std::optional<Draft> CellTyping::CurrentDraft() const {
    const CellEditor& editor = grid_.Editor();
    if (!editor.IsOpen() || !editor.isModified())
        return std::nullopt;
    return Draft{editor.EditedCell(), TypedTarget{ToAnsi(editor.text()).Text}};
}

} // namespace orvane
