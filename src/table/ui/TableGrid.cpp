// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableGrid.h"

#include "session/Session.h"
#include "table/ui/CellEditor.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"
#include "table/ui/HoverHints.h"

#include <QEvent>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kGridLeft = 1; // pixels; 20 twips

void SetColumnWidth(FsmDocument& document, const DraggedWidth& dragged) {
    if (dragged.Column == kNoState)
        document.View.Col0Width = dragged.Width;
    else
        document.State(dragged.Column).ColWidth = dragged.Width;
}

} // namespace

TableGrid::TableGrid(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      MSFlexGrid1(new FsmGridView(this)),
      model_(new FsmGridModel(session.Document(), GridMeasurer(MSFlexGrid1->font()), this)) {
    MSFlexGrid1->setModel(model_);
    MSFlexGrid1->setCurrentIndex(IndexOf(*model_, {kEntryActionRow, StateNumbers().First()}));
    geometry_ = std::make_unique<GridGeometry>(session.Document(), *MSFlexGrid1);
    session_.SetStandardHeight(geometry_->StandardHeight());
    txtCellEdit = new CellEditor(*MSFlexGrid1);
    hints_ = new HoverHints(session.Document(), *model_, *MSFlexGrid1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kGridLeft, 0, 0, 0);
    layout->addWidget(MSFlexGrid1);
    connect(MSFlexGrid1, &FsmGridView::ColumnWidthDragged, this, &TableGrid::TestForColumWidthChange);
    connect(hints_, &HoverHints::CellEntered, this, &TableGrid::TestForColumWidthChange);
}

void TableGrid::Draw(const Touched& part) {
    switch (part.What) {
    case Touched::Extent::Nothing:
        break;
    case Touched::Extent::Column:
        PopulateStateColumn(part.State);
        break;
    case Touched::Extent::RowHeads:
        PopulateRowHeaders();
        break;
    case Touched::Extent::Everything:
        ApplyRowVisibility();
        [[fallthrough]];
    case Touched::Extent::AllColumns:
        PopulateAllStateColumns();
        break;
    }
}

void TableGrid::PopulateStateColumn(StateNumber column) {
    geometry_->ApplyColumnWidth(column);
    model_->ColumnChanged(column);
}

void TableGrid::PopulateAllStateColumns() {
    geometry_->ApplyColumnWidths();
    model_->AllChanged();
}

void TableGrid::PopulateRowHeaders() { model_->RowHeadsChanged(); }

void TableGrid::ApplyRowVisibility() { geometry_->ApplyRowHeights(); }

void TableGrid::TestForColumWidthChange() {
    for (const DraggedWidth& dragged : geometry_->TakeDraggedWidths()) {
        txtCellEdit->Abandon();
        const Touched drawn = dragged.Column == kNoState ? Touched{Touched::Extent::RowHeads, {}}
                                                         : Touched{Touched::Extent::Column, dragged.Column};
        session_.Edit({"column width", drawn, EditKind::View},
                      [&dragged](Editable open) { SetColumnWidth(open.Document, dragged); });
    }
}

// The standard height stays as it was when the window was made.
void TableGrid::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        model_->SetMeasurer(GridMeasurer(MSFlexGrid1->font()));
    QWidget::changeEvent(event);
}

} // namespace orvane
