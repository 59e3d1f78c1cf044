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

WorkListModel::WorkListModel(QObject* parent)
    : ListModel({tr("Document"), tr("Folder"), tr("Last change"), tr("Changes"), tr("Its file")}, parent) {}

void WorkListModel::Show(std::vector<WorkItem> items) { Replace(items_, std::move(items)); }

QVariant WorkListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const QString text = TextOf(Item(index.row()).Row, index.column());
    // What does not fit its column is read under the mouse; a path is plain text there, too.
    return role == Qt::ToolTipRole ? text.toHtmlEscaped() : text;
}

} // namespace orvane
