// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/BorderDrag.h"

#include "core/TableGeometry.h"
#include "table/ui/FsmGridView.h"

#include <algorithm>
#include <cstdlib>

namespace orvane {

namespace {

constexpr int kBorderReach = 3; // pixels at either side of a border

// In a narrow column the borders reach less far, so that its middle stays a place to press.
int ReachIn(const FsmGridView& view, const QPoint& position) {
    const QModelIndex cell = view.indexAt(position);
    return cell.isValid() ? std::clamp(view.columnWidth(cell.column()) / 4, 1, kBorderReach) : kBorderReach;
}

} // namespace

std::optional<StateNumber> BorderDrag::ColumnAt(const QPoint& position) const {
    const QSize frozen = view_.FrozenSize();
    if (position.y() < 0 || position.y() >= frozen.height())
        return std::nullopt;
    const int reach = ReachIn(view_, position);
    std::optional<StateNumber> nearest;
    for (const StateNumber column : TableColumns()) {
        const int border = BorderOf(column);
        if (column != kNoState && border < frozen.width())
            continue;
        const int distance = std::abs(position.x() - border);
        if (distance > reach)
            continue;
        // Of borders in one place, the pointer at the right takes the last one: that column was dragged shut.
        const bool behind = nearest && BorderOf(*nearest) == border && position.x() >= border;
        if (!nearest || behind || distance < std::abs(position.x() - BorderOf(*nearest)))
            nearest = column;
    }
    return nearest;
}

bool BorderDrag::Begin(const QPoint& position) {
    column_ = ColumnAt(position);
    grip_ = column_ ? position.x() - BorderOf(*column_) : 0;
    return IsActive();
}

bool BorderDrag::MoveTo(const QPoint& position) {
    if (!column_)
        return false;
    const int width = std::max(position.x() - grip_ - view_.ColumnLeft(*column_), 0);
    if (width == view_.columnWidth(column_->Number()))
        return false;
    view_.setColumnWidth(column_->Number(), width);
    return true;
}

int BorderDrag::BorderOf(StateNumber column) const {
    if (column == kNoState)
        return view_.FrozenSize().width();
    return view_.ColumnLeft(column) + view_.columnWidth(column.Number());
}

} // namespace orvane
