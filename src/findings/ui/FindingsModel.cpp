// SPDX-License-Identifier: GPL-3.0-or-later
#include "findings/ui/FindingsModel.h"

#include "findings/FindingList.h"
#include "kit/AnsiString.h"

namespace orvane {

FindingsModel::FindingsModel(const FsmDocument& document, const std::vector<DesignFinding>& findings,
                             QObject* parent)
    : ListModel({tr("Severity"), tr("Place"), tr("What there is to be told")}, parent),
      document_(document),
      findings_(findings) {}

void FindingsModel::Refresh() {
    beginResetModel();
    endResetModel();
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
    const bool isText = role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() != kSeverity);
    if (!isText || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        std::size_t(index.row()) >= findings_.size())
        return {};
    const DesignFinding& finding = findings_[std::size_t(index.row())];
    switch (index.column()) {
    case kSeverity:
        return FromAnsi(LevelWord(finding.Level));
    case kPlace:
        return FromAnsi(findings::PlaceText(document_, finding.Place)).simplified();
    default:
        return FromAnsi(finding.Text);
    }
}

} // namespace orvane
