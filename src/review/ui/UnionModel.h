// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/ComparedVersions.h"

#include <QAbstractTableModel>

#include <memory>

namespace orvane {

// The table of both versions. Its rows and columns are those of review::UnionTable, the first of each being
// what states and events are beside their transitions.
class UnionModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    // None while nothing can be shown.
    void Show(std::shared_ptr<const review::ComparedVersions> versions);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::shared_ptr<const review::ComparedVersions> versions_;
};

} // namespace orvane
