// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "kit/ListModel.h"
#include "run/LiveRun.h"

namespace orvane {

// What has happened up to the moment shown, a row each. A run may have a million of them, so that rows come
// and go one by one and none is kept here.
class LogModel : public ListModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    LogModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // Of a valid index only.
    run::LogEntry EntryAt(const QModelIndex& index) const;

    // The run is at another moment.
    void Refresh();
    // It is another run, or the table says otherwise.
    void RefreshAll();

  protected:
    int Rows() const override { return rows_; }

  private:
    enum Column { When, What };

    int Entries() const;

    const FsmDocument& document_;
    const run::LiveRun& run_;
    int rows_ = 0;
};

} // namespace orvane
