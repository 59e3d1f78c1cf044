// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellTyping.h"

#include "kit/AnsiString.h"
#include "kit/UserMessageBox.h"
#include "session/Session.h"
#include "table/CellEdit.h"
#include "table/UsedPart.h"
#include "table/ui/CellEditor.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/TableGrid.h"
#include "text/NumberText.h"

namespace orvane {

CellTyping::CellTyping(Session& session, TableGrid& grid, QWidget& window)
    : session_(session), grid_(grid), window_(window) {
    session_.AddDraftSource(*this);
}

CellTyping::~CellTyping() { session_.RemoveDraftSource(*this); }

void CellTyping::BeginCellEdit(Cell cell, BegunBy begun) {
    if (grid_.Editor().IsOpen())
        CommitCellEdit();
    if (cell.Row < kFirstCellRow || cell.State == kNoState || !CanEditCell(session_.Document(), cell.Row))
        return;
    if (grid_.View().CellRect(cell).isEmpty())
        return;
    grid_.View().setCurrentIndex(IndexOf(grid_.Model(), cell));
    grid_.Editor().Begin(cell, FromAnsi(CellEditText(session_.Document(), cell)));
    begun_ = begun;
}

void CellTyping::BeginByTyping(Cell cell, const QString& digits) {
    BeginCellEdit(cell, BegunBy::Key);
    if (grid_.Editor().IsOpen())
        grid_.Editor().Type(digits);
}

// A number that is refused changes nothing in the cell; the rest of an edit happens all the same.
bool CellTyping::CommitCellEdit() {
    CellEditor& editor = grid_.Editor();
    const Cell cell = editor.EditedCell();
    const std::string typed = ToAnsi(editor.text()).Text;
    const std::optional<UserMessage> refusal = RefusalOfTarget(typed);
    if (refusal)
        Show(&window_, *refusal);
    editor.Abandon();
    session_.Edit({"transition", {Touched::Extent::Column, cell.State}},
                  [&](Editable open) { StoreTypedTarget(open.Document, cell, typed); });
    return !refusal;
}

void CellTyping::CommitByEnter() {
    const Cell cell = grid_.Editor().EditedCell();
    const bool isBegunByKey = begun_ == BegunBy::Key;
    if (CommitCellEdit() && isBegunByKey)
        GoBelow(cell);
}

void CellTyping::StoreTarget(Cell cell, StateNumber target) {
    const std::string typed = NumberText(target.Number());
    session_.Edit({"transition", {Touched::Extent::Column, cell.State}},
                  [&](Editable open) { StoreTypedTarget(open.Document, cell, typed); });
    GoBelow(cell);
}

void CellTyping::GoBelow(Cell cell) {
    const QModelIndex below = IndexOf(grid_.Model(), CellBelow(session_.Document(), cell));
    grid_.View().setCurrentIndex(below);
    grid_.View().scrollTo(below);
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
