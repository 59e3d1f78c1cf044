// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/PlanModel.h"

#include "find/PlaceText.h"
#include "find/ui/ShownLine.h"
#include "kit/AnsiString.h"

#include <algorithm>
#include <utility>

namespace orvane {

PlanModel::PlanModel(const FsmDocument& document, QObject* parent)
    : ListModel({tr("Place"), tr("Before"), tr("After")}, parent), document_(document) {}

bool PlanModel::HasSamePlaces(const std::vector<find::TextChange>& changes) const {
    return std::equal(changes.begin(), changes.end(), changes_.begin(), changes_.end(),
                      [](const find::TextChange& a, const find::TextChange& b) {
                          return a.Place == b.Place && a.Start == b.Start && a.Length == b.Length;
                      });
}

void PlanModel::Show(std::vector<find::TextChange> changes, std::size_t fixed) {
    if (!changes.empty() && HasSamePlaces(changes) && fixed == fixed_) {
        changes_ = std::move(changes);
        Q_EMIT dataChanged(index(0, After), index(rowCount() - 1, After));
        return;
    }
    beginResetModel();
    changes_ = std::move(changes);
    fixed_ = fixed;
    chosen_.clear();
    for (const find::TextChange& change : changes_)
        chosen_.push_back(change.IsSure);
    endResetModel();
}

std::vector<find::TextChange> PlanModel::ChosenChanges() const {
    std::vector<find::TextChange> chosen;
    for (std::size_t i = 0; i < changes_.size(); ++i) {
        if (chosen_[i])
            chosen.push_back(changes_[i]);
    }
    return chosen;
}

void PlanModel::CheckAll(bool checked) {
    std::fill(chosen_.begin() + std::ptrdiff_t(fixed_), chosen_.end(), checked);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Place), index(rowCount() - 1, Place));
}

QVariant PlanModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const auto row = std::size_t(index.row());
    if (role == Qt::CheckStateRole && index.column() == Place)
        return chosen_[row] ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const find::TextChange& change = changes_[row];
    QString text;
    if (index.column() == Place)
        text = FromAnsi(find::PlaceTitle(document_, change.Place));
    else if (index.column() == Before)
        text = ShownLine(PreviewOf(document_, change).Before);
    else
        text = ShownLine(PreviewOf(document_, change).After);
    return role == Qt::ToolTipRole ? text.toHtmlEscaped() : text;
}

bool PlanModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const auto row = std::size_t(index.row());
    if (role != Qt::CheckStateRole || index.column() != Place || row < fixed_)
        return false;
    chosen_[row] = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags PlanModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool mayChoose = index.column() == Place && std::size_t(index.row()) >= fixed_;
    return mayChoose ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace orvane
