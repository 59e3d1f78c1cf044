// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/LogModel.h"

#include "run/RunWords.h"

#include <utility>

namespace orvane {

LogModel::LogModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent)
    : ListModel({tr("At"), tr("What happened")}, parent), document_(document), run_(run) {}

run::LogEntry LogModel::EntryAt(const QModelIndex& index) const {
    return run_.Past()->Log()[std::size_t(index.row())];
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        index.row() >= Entries())
        return {};
    const run::LogEntry entry = EntryAt(index);
    if (index.column() == When)
        return QString::number(entry.When);
    return QString::fromStdString(run::EntryText(document_, entry));
}

int LogModel::Entries() const { return run_.Past() != nullptr ? int(run_.Past()->Log().size()) : 0; }

void LogModel::Refresh() {
    const int entries = Entries();
    if (entries > rows_) {
        beginInsertRows({}, rows_, entries - 1);
        rows_ = entries;
        endInsertRows();
    } else if (entries < rows_) {
        beginRemoveRows({}, entries, rows_ - 1);
        rows_ = entries;
        endRemoveRows();
    }
}

void LogModel::RefreshAll() {
    beginResetModel();
    rows_ = Entries();
    endResetModel();
}

} // namespace orvane
