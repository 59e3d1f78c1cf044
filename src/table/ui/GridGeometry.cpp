// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridGeometry.h"

#include "table/TextFitting.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHeaderView>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr int kLargestPixels = kWidestColumn / kTwipsPerPixel;
constexpr int kRowPadding = 6; // pixels above and below the text together

int PixelsFromTwips(std::int32_t twips) {
    return (std::clamp(twips, 0, kWidestColumn) + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

} // namespace

GridGeometry::GridGeometry(const FsmDocument& document, QTableView& view)
    : document_(document),
      view_(view),
      standardHeight_((QFontMetrics(view.font()).height() + kRowPadding) * kTwipsPerPixel) {
    view_.verticalHeader()->setDefaultSectionSize(PixelsFromTwips(standardHeight_));
    view_.horizontalHeader()->setMaximumSectionSize(kLargestPixels);
    connect(view_.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int pixels) { ColumnResized(column, pixels); });
}

void GridGeometry::ApplyColumnWidth(int column) {
    const int pixels = PixelsFromTwips(DocumentWidth(column));
    laidOut_[static_cast<std::size_t>(column)] = pixels;
    dragged_.erase(column);
    if (view_.columnWidth(column) != pixels)
        view_.setColumnWidth(column, pixels);
}

void GridGeometry::ApplyColumnWidths() {
    for (int column = 0; column < kTableColumns; ++column)
        ApplyColumnWidth(column);
}

void GridGeometry::ApplyRowHeights() {
    const RowHeights& heights = document_.View.RowVisible;
    for (const auto& [row, twips] :
         {std::pair{kExitActionRow, heights.ExitAction}, std::pair{kTimingModeRow, heights.TimingMode},
          std::pair{kTimeoutRow, heights.TimeTarget}, std::pair{kElseRow, heights.Else}}) {
        const int pixels = PixelsFromTwips(twips);
        view_.setRowHidden(row, pixels == 0);
        if (pixels != 0)
            view_.setRowHeight(row, pixels);
    }
}

// The view tells of every change of a width, our own ones too.
void GridGeometry::ColumnResized(int column, int pixels) {
    if (pixels == laidOut_[static_cast<std::size_t>(column)])
        dragged_.erase(column);
    else
        dragged_[column] = pixels;
}

std::vector<DraggedWidth> GridGeometry::TakeDraggedWidths() {
    std::vector<DraggedWidth> widths;
    if (dragged_.empty() || QApplication::activeModalWidget() != nullptr)
        return widths;
    for (const auto& [column, pixels] : std::exchange(dragged_, {})) {
        laidOut_[static_cast<std::size_t>(column)] = pixels;
        widths.push_back({column, pixels * kTwipsPerPixel});
    }
    return widths;
}

std::int32_t GridGeometry::DocumentWidth(int column) const {
    return column == 0 ? document_.View.Col0Width : document_.State(column).ColWidth;
}

} // namespace orvane
