// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Search.h"
#include "kit/ListModel.h"

namespace orvane {

// What a search has found, a row a hit: its place and its line. Texts are made when they are shown, because
// there may be thousands and a screenful is seen.
class HitsModel : public ListModel {
    Q_OBJECT

  public:
    enum Column { Place, Text };

    // The document outlives the model.
    HitsModel(const FsmDocument& document, QObject* parent);

    // Of the document as it stands.
    void Show(std::vector<find::Hit> hits);
    const find::Hit& HitAt(int row) const { return hits_[std::size_t(row)]; }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  protected:
    int Rows() const override { return int(hits_.size()); }

  private:
    const FsmDocument& document_;
    std::vector<find::Hit> hits_;
};

} // namespace orvane
