// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/HitsModel.h"

#include "find/PlaceText.h"
#include "find/ui/ShownLine.h"
#include "kit/AnsiString.h"

#include <utility>

namespace orvane {

HitsModel::HitsModel(const FsmDocument& document, QObject* parent)
    : QAbstractTableModel(parent), document_(document) {}

void HitsModel::Show(std::vector<find::Hit> hits) {
    beginResetModel();
    hits_ = std::move(hits);
    endResetModel();
}

int HitsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(hits_.size()); }

int HitsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant HitsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    const find::Hit& hit = HitAt(index.row());
    if (index.column() == Place)
        return FromAnsi(find::PlaceTitle(document_, hit.Place));
    return ShownLine(find::LineAt(TextAt(document_, hit.Place), hit.Start));
}

QVariant HitsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Place ? tr("Place") : tr("Text");
}

} // namespace orvane
