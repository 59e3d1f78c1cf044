// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <utility>

namespace orvane {

// A list with a head over each column, whose texts are made when they are shown: there may be thousands of
// rows, and a screenful is seen.
class ListModel : public QAbstractTableModel {
  public:
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : Rows(); }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(heads_.size());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        const bool isHead = orientation == Qt::Horizontal && role == Qt::DisplayRole;
        return isHead ? heads_.value(section) : QVariant();
    }

  protected:
    ListModel(QStringList heads, QObject* parent) : QAbstractTableModel(parent), heads_(std::move(heads)) {}

    virtual int Rows() const = 0;

    // Other rows take the place of those that were there.
    template <typename Items>
    void Replace(Items& shown, Items items) {
        beginResetModel();
        shown = std::move(items);
        endResetModel();
    }

  private:
    QStringList heads_;
};

} // namespace orvane
