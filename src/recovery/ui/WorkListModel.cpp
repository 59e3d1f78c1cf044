// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/WorkListModel.h"

#include <utility>

namespace orvane {

namespace {

QString TextOf(const WorkRow& row, int column) {
    switch (column) {
    case WorkListModel::Document:
        return QString::fromStdString(row.Document);
    case WorkListModel::Folder:
        return QString::fromStdString(row.Folder);
    case WorkListModel::LastChange:
        return QString::fromStdString(row.LastChange);
    case WorkListModel::Changes:
        return QString::fromStdString(row.Changes);
    default:
        return QString::fromStdString(row.File);
    }
}

} // namespace

void WorkListModel::Show(std::vector<WorkItem> items) {
    beginResetModel();
    items_ = std::move(items);
    endResetModel();
}

int WorkListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

int WorkListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant WorkListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const QString text = TextOf(Item(index.row()).Row, index.column());
    // What does not fit its column is read under the mouse; a path is plain text there, too.
    return role == Qt::ToolTipRole ? text.toHtmlEscaped() : text;
}

QVariant WorkListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static const QStringList heads{tr("Document"), tr("Folder"), tr("Last change"), tr("Changes"),
                                   tr("Its file")};
    return heads.value(section);
}

} // namespace orvane
