// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DesignFinding.h"
#include "core/FsmDocument.h"
#include "kit/ListModel.h"

#include <vector>

namespace orvane {

// Severity, place and text of each finding.
class FindingsModel : public ListModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    FindingsModel(const FsmDocument& document, const std::vector<DesignFinding>& findings, QObject* parent);

    // The findings, or the names of what they are about, are others.
    void Refresh();

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  protected:
    int Rows() const override { return int(findings_.size()); }

  private:
    enum Column { kSeverity, kPlace, kText };

    const FsmDocument& document_;
    const std::vector<DesignFinding>& findings_;
};

} // namespace orvane
