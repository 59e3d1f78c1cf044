// SPDX-License-Identifier: GPL-3.0-or-later
// Cells of the table as indexes of a model with 55 rows and 101 columns.
#pragma once

#include "core/Cell.h"

#include <QAbstractItemModel>

namespace orvane {

// Of a valid index only.
inline Cell CellOf(const QModelIndex& index) { return {index.row(), index.column()}; }

inline QModelIndex IndexOf(const QAbstractItemModel& model, Cell cell) {
    return model.index(cell.Row.Number(), cell.State.Number());
}

} // namespace orvane
