// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/LiveRun.h"

#include <QAbstractTableModel>

namespace orvane {

// What has happened up to the moment shown, a row each. A run may have a million of them, so that rows come
// and go one by one and none is kept here.
class LogModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    LogModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Of a valid index only.
    run::LogEntry EntryAt(const QModelIndex& index) const;

    // The run is at another moment.
    void Refresh();
    // It is another run, or the table says otherwise.
    void RefreshAll();

  private:
    int Entries() const;

    const FsmDocument& document_;
    const run::LiveRun& run_;
    int rows_ = 0;
};

} // namespace orvane
