// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/InputsModel.h"

#include "run/Present.h"
#include "run/StepCheck.h"
#include "run/ui/StateText.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace orvane {

InputsModel::InputsModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent)
    : ListModel({tr("Input"), tr("Now"), tr("Leads to")}, parent), document_(document), run_(run) {}

QVariant InputsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const RowNumber event = EventAt(index);
    QFont font;
    switch (role) {
    case Qt::DisplayRole:
        return Text(event, index.column());
    case Qt::FontRole:
        font.setBold(run_.IsTrue(event));
        return font;
    case Qt::ForegroundRole:
        return HasEffect(event) ? QVariant() : QGuiApplication::palette().color(QPalette::PlaceholderText);
    case Qt::ToolTipRole:
        return tr("Click: it happens for a moment. Ctrl+click: it is held, or let go.");
    default:
        return {};
    }
}

bool InputsModel::HasEffect(RowNumber event) const {
    return run_.Built() != nullptr && run::HasEffect(*run_.Built(), run_.State(), event);
}

QString InputsModel::Text(RowNumber event, int column) const {
    if (column == Name)
        return QString::fromStdString(run::RowText(document_, event));
    if (column == Present)
        return run_.IsTrue(event) ? tr("held") : QString();
    if (run_.State() == kNoState)
        return {};
    return HasEffect(event) ? StateText(document_, document_.State(run_.State()).Targets[event])
                            : tr("no effect now");
}

QModelIndex InputsModel::PlaceOf(RowNumber event) const {
    const auto found = std::find(events_.begin(), events_.end(), event);
    return found == events_.end() ? QModelIndex() : index(int(found - events_.begin()), 0);
}

void InputsModel::Refresh() {
    std::vector<RowNumber> events;
    if (run_.Built() != nullptr)
        events = run::InputsInOrder(*run_.Built(), run_.State());
    if (events.size() == events_.size()) {
        Q_EMIT layoutAboutToBeChanged();
        events_ = std::move(events);
        Q_EMIT layoutChanged();
        if (!events_.empty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    events_ = std::move(events);
    endResetModel();
}

} // namespace orvane
