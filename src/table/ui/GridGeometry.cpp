// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridGeometry.h"

#include "table/TextFitting.h"
#include "table/ui/GridMeasurer.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHeaderView>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr Pixels kRowPadding = 6; // above and below the text together

} // namespace

GridGeometry::GridGeometry(const FsmDocument& document, QTableView& view)
    : document_(document),
      view_(view),
      scale_(FontPercent(view.font())),
      standardHeight_(TwipsFromPixels(QFontMetrics(view.font()).height() + kRowPadding).Count() * 100 /
                      scale_) {
    SetScale(scale_);
    connect(view_.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int pixels) { ColumnResized(column, pixels); });
}

// A width or height of the document may be any number.
Pixels GridGeometry::Shown(Twips length) const {
    const Pixels pixels = PixelsFromTwips(std::clamp(length, Twips(0), kWidestColumn));
    return (pixels.Count() * scale_ + 50) / 100;
}

void GridGeometry::SetScale(int percent) {
    scale_ = percent;
    view_.verticalHeader()->setDefaultSectionSize(Shown(standardHeight_).Count());
    view_.horizontalHeader()->setMaximumSectionSize(Shown(kWidestColumn).Count());
}

void GridGeometry::ApplyColumnWidth(StateNumber column) {
    const Pixels width = Shown(DocumentWidth(column));
    laidOut_[IndexIn(TableColumns(), column)] = width;
    dragged_.erase(column);
    if (view_.columnWidth(column.Number()) != width)
        view_.setColumnWidth(column.Number(), width.Count());
}

void GridGeometry::ApplyColumnWidths() {
    for (const StateNumber column : TableColumns())
        ApplyColumnWidth(column);
}

void GridGeometry::ApplyRowHeights() {
    const RowHeights& heights = document_.View.RowVisible;
    for (const auto& [row, twips] :
         {std::pair{kExitActionRow, heights.ExitAction}, std::pair{kTimingModeRow, heights.TimingMode},
          std::pair{kTimeoutRow, heights.TimeTarget}, std::pair{kElseRow, heights.Else}}) {
        const Pixels height = Shown(twips);
        view_.setRowHidden(row, height == 0);
        if (height != 0)
            view_.setRowHeight(row, height.Count());
    }
}

// The view tells of every change of a width, our own ones too.
void GridGeometry::ColumnResized(StateNumber column, Pixels width) {
    if (width == laidOut_[IndexIn(TableColumns(), column)])
        dragged_.erase(column);
    else
        dragged_[column] = width;
}

std::vector<DraggedWidth> GridGeometry::TakeDraggedWidths() {
    std::vector<DraggedWidth> widths;
    if (dragged_.empty() || QApplication::activeModalWidget() != nullptr)
        return widths;
    for (const auto& [column, width] : std::exchange(dragged_, {})) {
        laidOut_[IndexIn(TableColumns(), column)] = width;
        widths.push_back({column, TwipsFromPixels(width).Count() * 100 / scale_});
    }
    return widths;
}

Twips GridGeometry::DocumentWidth(StateNumber column) const {
    return column == kNoState ? document_.View.Col0Width : document_.State(column).ColWidth;
}

} // namespace orvane
