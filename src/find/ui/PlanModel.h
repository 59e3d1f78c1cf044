// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/TextChange.h"
#include "kit/ListModel.h"

namespace orvane {

// Changes of texts before they are made, a row each: a check mark and the place, the line before and after.
class PlanModel : public ListModel {
    Q_OBJECT

  public:
    enum Column { Place, Before, After };

    // The document outlives the model.
    PlanModel(const FsmDocument& document, QObject* parent);

    // Of the document as it stands; the sure ones are checked. The first `fixed` are made in any case. Where
    // the places are those that are shown already the marks stay: only what comes after is another.
    void Show(std::vector<find::TextChange> changes, std::size_t fixed = 0);

    // A mark for each change.
    const std::vector<bool>& Chosen() const { return chosen_; }
    std::vector<find::TextChange> ChosenChanges() const;
    void CheckAll(bool checked);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  protected:
    int Rows() const override { return int(changes_.size()); }

  private:
    bool HasSamePlaces(const std::vector<find::TextChange>& changes) const;

    const FsmDocument& document_;
    std::vector<find::TextChange> changes_;
    std::vector<bool> chosen_;
    std::size_t fixed_ = 0;
};

} // namespace orvane
