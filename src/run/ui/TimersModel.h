// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "kit/ListModel.h"
#include "run/LiveRun.h"

namespace orvane {

// The timers of the machine; of the one that the present state looks at, what is left and where that leads.
class TimersModel : public ListModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    TimersModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // The run is at another moment.
    void Refresh();

  protected:
    int Rows() const override { return rows_; }

  private:
    enum Column { Name, RunsFor, Limit, Left, LeadsTo };

    int Timers() const;
    QString Text(std::size_t timer, int column) const;
    QString TextOfLookedAt(int column) const;

    const FsmDocument& document_;
    const run::LiveRun& run_;
    int rows_ = 0;
};

} // namespace orvane
