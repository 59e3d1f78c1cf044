// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DesignFinding.h"
#include "core/FsmDocument.h"

#include <QAbstractTableModel>

#include <vector>

namespace orvane {

// Severity, place and text of each finding.
class FindingsModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    FindingsModel(const FsmDocument& document, const std::vector<DesignFinding>& findings, QObject* parent);

    // The findings, or the names of what they are about, are others.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const FsmDocument& document_;
    const std::vector<DesignFinding>& findings_;
};

} // namespace orvane
