// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableGrid.h"

#include "table/RowVisibility.h"
#include "table/ui/CellEditor.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"
#include "table/ui/HoverHints.h"

#include <QEvent>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kGridLeft = 1; // pixels; 20 twips

} // namespace

TableGrid::TableGrid(FsmDocument& document, QWidget* parent)
    : QWidget(parent),
      document_(document),
      MSFlexGrid1(new FsmGridView(this)),
      model_(new FsmGridModel(document, GridMeasurer(MSFlexGrid1->font()), this)) {
    MSFlexGrid1->setModel(model_);
    MSFlexGrid1->setCurrentIndex(model_->index(kEntryActionRow, StateNumbers().First()));
    geometry_ = std::make_unique<GridGeometry>(document, *MSFlexGrid1);
    txtCellEdit = new CellEditor(*MSFlexGrid1);
    hints_ = new HoverHints(document, *model_, *MSFlexGrid1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kGridLeft, 0, 0, 0);
    layout->addWidget(MSFlexGrid1);
    connect(MSFlexGrid1, &FsmGridView::ColumnWidthDragged, this, &TableGrid::TestForColumWidthChange);
    connect(hints_, &HoverHints::CellEntered, this, &TableGrid::TestForColumWidthChange);
}

void TableGrid::PopulateStateColumn(int column) {
    if (ForceRowsForState(document_, column, StandardHeight())) {
        ApplyRowVisibility();
        Q_EMIT RowsForced();
    }
    geometry_->ApplyColumnWidth(column);
    model_->ColumnChanged(column);
}

void TableGrid::PopulateAllStateColumns() {
    if (ForceRowsForContents(document_, StandardHeight())) {
        ApplyRowVisibility();
        Q_EMIT RowsForced();
    }
    geometry_->ApplyColumnWidths();
    model_->AllChanged();
}

void TableGrid::PopulateRowHeaders() { model_->RowHeadsChanged(); }

void TableGrid::RefreshGrid() {
    ApplyRowVisibility();
    PopulateAllStateColumns();
}

void TableGrid::ApplyRowVisibility() { geometry_->ApplyRowHeights(); }

void TableGrid::TestForColumWidthChange() {
    for (const int column : geometry_->TestForColumWidthChange()) {
        txtCellEdit->Abandon();
        if (column == 0)
            PopulateRowHeaders();
        else
            PopulateStateColumn(column);
    }
}

// The standard height stays as it was when the window was made.
void TableGrid::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        model_->SetMeasurer(GridMeasurer(MSFlexGrid1->font()));
    QWidget::changeEvent(event);
}

} // namespace orvane
