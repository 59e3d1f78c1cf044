// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/TimersModel.h"

#include "run/Present.h"
#include "run/RunWords.h"
#include "run/ui/StateText.h"

namespace orvane {

TimersModel::TimersModel(const FsmDocument& document, const run::LiveRun& run, QObject* parent)
    : ListModel({tr("Timer"), tr("Runs for"), tr("Limit"), tr("Left"), tr("Leads to")}, parent),
      document_(document),
      run_(run) {}

QVariant TimersModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return Text(std::size_t(index.row()), index.column());
}

QString TimersModel::Text(std::size_t timer, int column) const {
    const run::Machine* machine = run_.Built();
    if (machine == nullptr || timer >= machine->Timers().size())
        return {};
    if (column == Name)
        return QString::fromStdString(run::TimerName(document_, *machine, timer));
    if (run_.State() == kNoState)
        return {};
    const run::Config& where = run_.Past()->Now().Where();
    const run::Units started = where.Started[timer];
    if (column == RunsFor)
        return started == run::kNever ? tr("never started") : QString::number(where.Now - started);
    const run::RunState& state = machine->State(run_.State());
    return state.Limit != run::LimitKind::None && state.Timer == timer ? TextOfLookedAt(column) : QString();
}

QString TimersModel::TextOfLookedAt(int column) const {
    const run::Clock& now = run_.Past()->Now();
    const StateNumber state = run_.State();
    if (column == LeadsTo)
        return StateText(document_, document_.State(state).Targets[kTimeoutRow]);
    if (column == Left) {
        const std::optional<run::Units> left = run::TimeLeft(now);
        return left ? QString::number(*left) : QString();
    }
    const run::RunState& looked = run_.Built()->State(state);
    const bool variable = looked.Limit == run::LimitKind::Variable;
    const run::Units limit =
        variable ? now.Surroundings().Limits[IndexIn(TableColumns(), state)] : looked.LimitUnits;
    return limit == run::kNotGiven ? tr("not given") : QString::number(limit);
}

int TimersModel::Timers() const { return run_.Built() != nullptr ? int(run_.Built()->Timers().size()) : 0; }

void TimersModel::Refresh() {
    if (Timers() != rows_) {
        beginResetModel();
        rows_ = Timers();
        endResetModel();
    } else if (rows_ > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
    }
}

} // namespace orvane
