// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Search.h"

#include <QAbstractTableModel>

namespace orvane {

// What a search has found, a row a hit: its place and its line. Texts are made when they are shown, because
// there may be thousands and a screenful is seen.
class HitsModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Place, Text, ColumnCount };

    // The document outlives the model.
    HitsModel(const FsmDocument& document, QObject* parent);

    // Of the document as it stands.
    void Show(std::vector<find::Hit> hits);
    const find::Hit& HitAt(int row) const { return hits_[std::size_t(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const FsmDocument& document_;
    std::vector<find::Hit> hits_;
};

} // namespace orvane
