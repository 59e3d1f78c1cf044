// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/ListModel.h"
#include "recovery/ui/WorkList.h"

namespace orvane {

// One row a journal: document, folder, last change, changes, state of the file.
class WorkListModel : public ListModel {
    Q_OBJECT

  public:
    enum Column { Document, Folder, LastChange, Changes, File };

    explicit WorkListModel(QObject* parent);

    void Show(std::vector<WorkItem> items);
    const WorkItem& Item(int row) const { return items_[row]; }

    QVariant data(const QModelIndex& index, int role) const override;

  protected:
    int Rows() const override { return int(items_.size()); }

  private:
    std::vector<WorkItem> items_;
};

} // namespace orvane
