// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/ChangesModel.h"

#include "review/ui/SignLook.h"

#include <utility>

namespace orvane {

void ChangesModel::Show(std::shared_ptr<const review::ComparedVersions> versions) {
    beginResetModel();
    versions_ = std::move(versions);
    endResetModel();
}

int ChangesModel::rowCount(const QModelIndex& parent) const {
    return versions_ && !parent.isValid() ? int(versions_->Told().size()) : 0;
}

int ChangesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant ChangesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const review::ToldChange& told = versions_->Told()[std::size_t(index.row())];
    const bool isSign = index.column() == Sign;
    switch (role) {
    case Qt::DisplayRole:
        return isSign ? QString(QLatin1Char(told.Sign)) : QString::fromStdString(told.Text);
    case Qt::ToolTipRole:
        return QString::fromStdString(told.Text);
    case Qt::BackgroundRole:
        return isSign ? GroundOf(told.Sign) : QVariant();
    case Qt::ForegroundRole:
        return isSign ? InkOnGround() : QVariant();
    case Qt::TextAlignmentRole:
        return isSign ? QVariant(Qt::AlignCenter) : QVariant();
    default:
        return {};
    }
}

} // namespace orvane
