// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableGrid.h"

#include "kit/PaneLook.h"
#include "kit/Settings.h"
#include "session/Session.h"
#include "table/FittingWidth.h"
#include "table/ui/CellEditor.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/GridMeasurer.h"
#include "table/ui/HoverHints.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace orvane {

namespace {

constexpr int kGridLeft = 1; // pixels; 20 twips

constexpr auto kZooms =
    std::to_array({50, 60, 70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300}); // percent
constexpr std::ptrdiff_t kNormalZoom = 5;                                        // its place among them

QString ZoomKey() { return QStringLiteral("TableZoom"); }

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
      measure_(GridMeasurer(MSFlexGrid1->font(), FontPercent(font()))),
      model_(new FsmGridModel(session.Document(), GridMeasurer(MSFlexGrid1->font(), FontPercent(font())),
                              this)) {
    MSFlexGrid1->setModel(model_);
    model_->SetDark(IsDark(palette()));
    MSFlexGrid1->setCurrentIndex(IndexOf(*model_, {kEntryActionRow, StateNumbers().First()}));
    geometry_ = std::make_unique<GridGeometry>(session.Document(), *MSFlexGrid1);
    session_.SetStandardHeight(geometry_->StandardHeight());
    txtCellEdit = new CellEditor(*MSFlexGrid1);
    hints_ = new HoverHints(session.Document(), *model_, *MSFlexGrid1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kGridLeft, 0, 0, 0);
    layout->addWidget(MSFlexGrid1);
    setFocusProxy(MSFlexGrid1);
    if (const int zoom = Settings().value(ZoomKey(), zoom_).toInt();
        zoom != zoom_ && std::find(kZooms.begin(), kZooms.end(), zoom) != kZooms.end())
        SetZoom(zoom);
    connect(MSFlexGrid1, &FsmGridView::ColumnWidthDragged, this, &TableGrid::TestForColumWidthChange);
    connect(MSFlexGrid1, &FsmGridView::FitWanted, this, &TableGrid::FitColumn);
    connect(MSFlexGrid1, &FsmGridView::ZoomWanted, this, &TableGrid::Zoom);
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

void TableGrid::FitColumn(StateNumber column) {
    txtCellEdit->Abandon();
    const Touched drawn = column == kNoState ? Touched{Touched::Extent::RowHeads, {}}
                                             : Touched{Touched::Extent::Column, column};
    session_.Edit({"column width", drawn, EditKind::View}, [&](Editable open) {
        SetColumnWidth(open.Document, {column, FittingWidth(open.Document, column, *measure_)});
    });
}

void TableGrid::FitColumns() {
    txtCellEdit->Abandon();
    session_.Edit({"column widths", {Touched::Extent::AllColumns, {}}, EditKind::View}, [&](Editable open) {
        for (const StateNumber column : TableColumns())
            SetColumnWidth(open.Document, {column, FittingWidth(open.Document, column, *measure_)});
    });
}

void TableGrid::Zoom(int steps) {
    const auto now = std::find(kZooms.begin(), kZooms.end(), zoom_);
    const std::ptrdiff_t at = now == kZooms.end() ? kNormalZoom : now - kZooms.begin();
    const std::ptrdiff_t last = std::ssize(kZooms) - 1;
    const std::ptrdiff_t next = steps == 0 ? kNormalZoom : std::clamp<std::ptrdiff_t>(at + steps, 0, last);
    if (kZooms[std::size_t(next)] == zoom_)
        return;
    SetZoom(kZooms[std::size_t(next)]);
    Settings().setValue(ZoomKey(), zoom_);
}

// What is being typed stays where its cell is. Larger cells leave room for fewer.
void TableGrid::SetZoom(int percent) {
    const bool wasSeen = MSFlexGrid1->SeesCurrentCell();
    zoom_ = percent;
    QFont larger = font();
    if (larger.pointSizeF() > 0)
        larger.setPointSizeF(larger.pointSizeF() * percent / 100);
    else
        larger.setPixelSize(std::max(larger.pixelSize() * percent / 100, 1));
    geometry_->SetScale(Scale());
    MSFlexGrid1->setFont(larger);
    Measure();
    Draw({Touched::Extent::Everything, {}});
    if (wasSeen)
        MSFlexGrid1->scrollTo(MSFlexGrid1->currentIndex());
}

void TableGrid::Measure() {
    measure_ = GridMeasurer(MSFlexGrid1->font(), Scale());
    model_->SetMeasurer(GridMeasurer(MSFlexGrid1->font(), Scale()));
}

// A larger font of the desktop makes rows and columns larger with the texts in them.
int TableGrid::Scale() const { return zoom_ * FontPercent(font()) / 100; }

// The standard height stays as it was when the window was made.
void TableGrid::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange && geometry_ != nullptr)
        SetZoom(zoom_);
    else if (event->type() == QEvent::PaletteChange)
        model_->SetDark(IsDark(palette()));
    QWidget::changeEvent(event);
}

} // namespace orvane
