// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/UsesModel.h"

#include "find/PlaceText.h"
#include "find/Search.h"
#include "find/ui/ShownLine.h"
#include "kit/AnsiString.h"

#include <utility>

namespace orvane {

UsesModel::UsesModel(const FsmDocument& document, QObject* parent)
    : QAbstractTableModel(parent), document_(document) {}

void UsesModel::Show(std::vector<find::Use> uses) {
    beginResetModel();
    uses_ = std::move(uses);
    endResetModel();
}

int UsesModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(uses_.size()); }

int UsesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant UsesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const find::Use& use = UseAt(index.row());
    if (role == Qt::ToolTipRole && !use.Text)
        return {};
    if (role == Qt::ToolTipRole) // the line, which a list of uses has no column for
        return ShownLine(find::LineAt(TextAt(document_, use.Text->Place), use.Text->Start)).toHtmlEscaped();
    if (index.column() == What)
        return FromAnsi(use.What);
    return FromAnsi(use.Text ? find::PlaceTitle(document_, use.Text->Place)
                             : find::CellTitle(document_, use.At));
}

QVariant UsesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Place ? tr("Place") : tr("What");
}

} // namespace orvane
