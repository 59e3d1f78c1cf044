// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/UnionModel.h"

#include "review/ui/SignLook.h"

#include <utility>

namespace orvane {

namespace {

char SignOfHead(const review::UnionTable& table, int section, Qt::Orientation orientation) {
    if (section == 0)
        return ' ';
    return orientation == Qt::Horizontal ? table.Column(section).Sign : table.Row(section).Sign;
}

// Both numbers, and below them, or behind them in a row, the name.
QString HeadText(const review::UnionTable& table, int section, Qt::Orientation orientation) {
    const bool isColumn = orientation == Qt::Horizontal;
    const QString numbers =
        QString::fromStdString(isColumn ? table.ColumnNumbers(section) : table.RowNumbers(section));
    const QString name =
        QString::fromStdString(isColumn ? table.ColumnName(section) : table.RowName(section));
    if (numbers.isEmpty())
        return name;
    return numbers + (isColumn ? QLatin1Char('\n') : QLatin1Char(' ')) + name;
}

QString WholeText(const review::ComparedVersions& versions, review::UnionPlace place) {
    QStringList lines;
    for (const std::size_t change : versions.Table().ChangesAt(place))
        lines += QString::fromStdString(versions.Told()[change].Text);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void UnionModel::Show(std::shared_ptr<const review::ComparedVersions> versions) {
    beginResetModel();
    versions_ = std::move(versions);
    endResetModel();
}

int UnionModel::rowCount(const QModelIndex& parent) const {
    return versions_ && !parent.isValid() ? versions_->Table().RowCount() : 0;
}

int UnionModel::columnCount(const QModelIndex& parent) const {
    return versions_ && !parent.isValid() ? versions_->Table().ColumnCount() : 0;
}

QVariant UnionModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const review::UnionPlace place{index.row(), index.column()};
    const review::UnionTable& table = versions_->Table();
    const QColor ground = GroundOf(table.SignAt(place));
    switch (role) {
    case Qt::DisplayRole:
        return WithSign(table.SignAt(place), QString::fromStdString(table.TextAt(place)));
    case Qt::BackgroundRole:
        return ground.isValid() ? ground : QVariant();
    case Qt::ForegroundRole:
        return ground.isValid() ? InkOnGround() : QVariant();
    case Qt::ToolTipRole:
        return WholeText(*versions_, place);
    default:
        return {};
    }
}

QVariant UnionModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!versions_)
        return {};
    const review::UnionTable& table = versions_->Table();
    const QColor ground = GroundOf(SignOfHead(table, section, orientation));
    switch (role) {
    case Qt::DisplayRole:
        return HeadText(table, section, orientation);
    case Qt::BackgroundRole:
        return ground.isValid() ? ground : QVariant();
    case Qt::ForegroundRole:
        return ground.isValid() ? InkOnGround() : QVariant();
    case Qt::ToolTipRole:
        return HeadText(table, section, orientation);
    default:
        return {};
    }
}

} // namespace orvane
