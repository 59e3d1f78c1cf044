// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/WhereUsed.h"
#include "kit/ListModel.h"

namespace orvane {

// Where something is used, a row each: the place and what is there.
class UsesModel : public ListModel {
    Q_OBJECT

  public:
    enum Column { Place, What };

    // The document outlives the model.
    UsesModel(const FsmDocument& document, QObject* parent);

    // Of the document as it stands.
    void Show(std::vector<find::Use> uses);
    const find::Use& UseAt(int row) const { return uses_[std::size_t(row)]; }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  protected:
    int Rows() const override { return int(uses_.size()); }

  private:
    const FsmDocument& document_;
    std::vector<find::Use> uses_;
};

} // namespace orvane
