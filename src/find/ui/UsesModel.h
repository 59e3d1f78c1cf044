// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/WhereUsed.h"

#include <QAbstractTableModel>

namespace orvane {

// Where something is used, a row each: the place and what is there.
class UsesModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Place, What, ColumnCount };

    // The document outlives the model.
    UsesModel(const FsmDocument& document, QObject* parent);

    // Of the document as it stands.
    void Show(std::vector<find::Use> uses);
    const find::Use& UseAt(int row) const { return uses_[std::size_t(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const FsmDocument& document_;
    std::vector<find::Use> uses_;
};

} // namespace orvane
