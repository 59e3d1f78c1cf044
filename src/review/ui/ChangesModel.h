// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/ComparedVersions.h"

#include <QAbstractTableModel>

#include <memory>

namespace orvane {

// The list of changes, a row each: its sign and what was done.
class ChangesModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    // None while nothing can be shown.
    void Show(std::shared_ptr<const review::ComparedVersions> versions);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  private:
    enum Column { Sign, Text, ColumnCount };

    std::shared_ptr<const review::ComparedVersions> versions_;
};

} // namespace orvane
