// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/FsmGridModel.h"

#include "kit/AnsiString.h"
#include "table/CellColour.h"
#include "table/CellText.h"
#include "table/ui/CellIndex.h"

#include <utility>

namespace orvane {

FsmGridModel::FsmGridModel(const FsmDocument& document, std::unique_ptr<TextMeasurer> measure,
                           QObject* parent)
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
        return FromAnsi(CellText(document_, CellOf(index), *measure_));
    case Qt::BackgroundRole:
        return Background(CellOf(index));
    case Qt::ForegroundRole: // Every background is light, also on a dark desktop.
        return QColor(Qt::black);
    default:
        return {};
    }
}

void FsmGridModel::SetMeasurer(std::unique_ptr<TextMeasurer> measure) {
    measure_ = std::move(measure);
    AllChanged();
}

void FsmGridModel::ColumnChanged(StateNumber column) {
    Q_EMIT dataChanged(IndexOf(*this, {kHeadRow, column}), IndexOf(*this, {kLastRow, column}));
}

void FsmGridModel::AllChanged() { Q_EMIT dataChanged(index(0, 0), index(kLastRow, kStateCount)); }

void FsmGridModel::SetCurrentState(StateNumber state) {
    const StateNumber previous = std::exchange(currentState_, state);
    for (const StateNumber head : {previous, state}) {
        if (head != kNoState)
            BackgroundChanged({kHeadRow, head});
    }
}

void FsmGridModel::Highlight(Cell cell) {
    ClearHighlight();
    highlighted_ = cell;
    BackgroundChanged(cell);
}

void FsmGridModel::ClearHighlight() {
    if (const std::optional<Cell> cell = std::exchange(highlighted_, std::nullopt))
        BackgroundChanged(*cell);
}

QColor FsmGridModel::Background(Cell cell) const {
    Colour colour = CellColour(cell);
    if (highlighted_ == cell)
        colour = kNextStateColour;
    else if (currentState_ != kNoState && cell == Cell{kHeadRow, currentState_})
        colour = kCurrentStateColour;
    return {colour.Red, colour.Green, colour.Blue};
}

void FsmGridModel::BackgroundChanged(Cell cell) {
    const QModelIndex changed = IndexOf(*this, cell);
    Q_EMIT dataChanged(changed, changed, {Qt::BackgroundRole});
}

} // namespace orvane
