// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/FsmGridModel.h"

#include "kit/AnsiString.h"
#include "table/CellColour.h"
#include "table/CellText.h"

#include <utility>

namespace orvane {

FsmGridModel::FsmGridModel(const FsmDocument& document, TextMeasurer measure, QObject* parent)
    : QAbstractTableModel(parent), document_(document), measure_(std::move(measure)) {}

int FsmGridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kTableRows; }

int FsmGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kTableColumns;
}

QVariant FsmGridModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return FromAnsi(CellText(document_, index.row(), index.column(), measure_));
    case Qt::BackgroundRole:
        return Background(index.row(), index.column());
    case Qt::ForegroundRole: // Every background is light, also on a dark desktop.
        return QColor(Qt::black);
    default:
        return {};
    }
}

void FsmGridModel::SetMeasurer(TextMeasurer measure) {
    measure_ = std::move(measure);
    AllChanged();
}

void FsmGridModel::ColumnChanged(int column) {
    Q_EMIT dataChanged(index(0, column), index(kLastRow, column));
}

void FsmGridModel::AllChanged() { Q_EMIT dataChanged(index(0, 0), index(kLastRow, kStateCount)); }

void FsmGridModel::SetCurrentState(int state) {
    const int previous = std::exchange(currentState_, state);
    for (const int head : {previous, state}) {
        if (head != kNoState)
            CellChanged(index(kHeadRow, head));
    }
}

void FsmGridModel::Highlight(int row, int column) {
    ClearHighlight();
    highlighted_ = index(row, column);
    CellChanged(highlighted_);
}

void FsmGridModel::ClearHighlight() {
    if (highlighted_.isValid())
        CellChanged(std::exchange(highlighted_, {}));
}

QColor FsmGridModel::Background(int row, int column) const {
    Colour colour = CellColour(row, column);
    if (highlighted_ == index(row, column))
        colour = kNextStateColour;
    else if (row == kHeadRow && column != 0 && column == currentState_)
        colour = kCurrentStateColour;
    return {colour.Red, colour.Green, colour.Blue};
}

void FsmGridModel::CellChanged(const QModelIndex& cell) {
    Q_EMIT dataChanged(cell, cell, {Qt::BackgroundRole});
}

} // namespace orvane
