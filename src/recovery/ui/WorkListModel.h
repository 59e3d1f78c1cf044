// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recovery/ui/WorkList.h"

#include <QAbstractTableModel>

namespace orvane {

// One row a journal: document, folder, last change, changes, state of the file.
class WorkListModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Document, Folder, LastChange, Changes, File, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void Show(std::vector<WorkItem> items);
    const WorkItem& Item(int row) const { return items_[row]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::vector<WorkItem> items_;
};

} // namespace orvane
