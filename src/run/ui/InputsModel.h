// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "kit/ListModel.h"
#include "run/LiveRun.h"

namespace orvane {

// The events that the machine tests, first those that have an effect in the state it is in.
class InputsModel : public ListModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    InputsModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // Of a valid index only.
    RowNumber EventAt(const QModelIndex& index) const { return events_[std::size_t(index.row())]; }
    // Where the event stands now; not valid when the machine does not test it any more.
    QModelIndex PlaceOf(RowNumber event) const;

    // The run is at another moment.
    void Refresh();

  protected:
    int Rows() const override { return int(events_.size()); }

  private:
    enum Column { Name, Present, LeadsTo };

    QString Text(RowNumber event, int column) const;
    bool HasEffect(RowNumber event) const;

    const FsmDocument& document_;
    const run::LiveRun& run_;
    std::vector<RowNumber> events_;
};

} // namespace orvane
