// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/FsmGridModel.h"

#include "kit/AnsiString.h"
#include "table/CellChoice.h"
#include "table/CellColour.h"
#include "table/CellName.h"
#include "table/CellText.h"
#include "table/ui/CellIndex.h"
#include "table/ui/ToQColor.h"
#include "text/Ordinal.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t IndexOfCell(Cell cell) {
    return IndexIn(TableColumns(), cell.State) * kTableRows + IndexIn(TableRows(), cell.Row);
}

// 1 for advice up to 4 for an error.
constexpr unsigned char Badness(FindingLevel level) {
    return static_cast<unsigned char>(Ordinal(FindingLevel::Advice) + 1 - Ordinal(level));
}

} // namespace

FsmGridModel::FsmGridModel(const FsmDocument& document, std::unique_ptr<TextMeasurer> measure,
                           QObject* parent)
    : QAbstractTableModel(parent), document_(document), measure_(std::move(measure)) {}

int FsmGridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kTableRows; }

int FsmGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kTableColumns;
}

QVariant FsmGridModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return FromAnsi(CellText(document_, CellOf(index), *measure_));
    case Qt::BackgroundRole:
        return ToQColor(Background(CellOf(index)));
    case Qt::ForegroundRole:
        return TextColour(CellOf(index));
    case Qt::AccessibleTextRole:
        return FromAnsi(CellName(document_, CellOf(index)));
    case kHasActionRole:
        return HasAction(CellOf(index));
    case kRunMarkRole:
        return run_ ? MarkFlags(CellOf(index)) : QVariant();
    case kRunNoteRole:
        return run_ ? FromAnsi(Mark(CellOf(index)).Note) : QVariant();
    case kFindingRole:
        return int(findingOf_[IndexOfCell(CellOf(index))]);
    case kFindingTextRole:
    case Qt::AccessibleDescriptionRole:
        return FindingTexts(CellOf(index));
    default:
        return {};
    }
}

// The view has no headers; a screen reader that asks for one gets the head that is a cell.
QVariant FsmGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    const bool isColumn = orientation == Qt::Horizontal;
    return data(isColumn ? index(kHeadRow, section) : index(section, 0), Qt::AccessibleTextRole);
}

bool FsmGridModel::HasAction(Cell cell) const {
    return HasTransition(cell) && !document_.State(cell.State).Actions[cell.Row].empty();
}

void FsmGridModel::SetMeasurer(std::unique_ptr<TextMeasurer> measure) {
    measure_ = std::move(measure);
    AllChanged();
}

void FsmGridModel::SetDark(bool dark) {
    if (std::exchange(isDark_, dark) != dark)
        AllChanged();
}

void FsmGridModel::ColumnChanged(StateNumber column) {
    Q_EMIT dataChanged(IndexOf(*this, {kHeadRow, column}), IndexOf(*this, {kLastRow, column}));
}

void FsmGridModel::AllChanged() { Q_EMIT dataChanged(index(0, 0), index(kLastRow, kStateCount)); }

void FsmGridModel::SetCurrentState(StateNumber state) {
    const StateNumber previous = std::exchange(currentState_, state);
    for (const StateNumber head : {previous, state}) {
        if (head != kNoState)
            BackgroundChanged({kHeadRow, head});
    }
}

void FsmGridModel::ShowRun(const std::optional<RunPicture>& run) {
    if (run_ == run)
        return;
    const std::optional<RunPicture> before = std::exchange(run_, run);
    RunChanged(before.value_or(RunPicture()), run_.value_or(RunPicture()));
}

// Only what looks another way is drawn again: a machine that runs fast changes many times a second.
void FsmGridModel::RunChanged(const RunPicture& before, const RunPicture& after) {
    if (before.Counts != after.Counts)
        return AllChanged();
    for (const StateNumber state : {before.State, after.State}) {
        if (state != kNoState)
            ColumnChanged(state);
    }
    for (const std::optional<Cell>& last : {before.Last, after.Last}) {
        if (last && before.Last != after.Last)
            BackgroundChanged(*last);
    }
    if (before.TrueInputs != after.TrueInputs)
        RowHeadsChanged();
}

// An edit judges the whole design anew and changes little of what was said: only that is drawn again.
void FsmGridModel::ShowFindings(const std::vector<DesignFinding>& findings) {
    findings_ = findings;
    const auto before = std::exchange(findingOf_, {});
    for (const DesignFinding& finding : findings_) {
        unsigned char& mark = findingOf_[IndexOfCell(finding.Place)];
        mark = std::max(mark, Badness(finding.Level));
    }
    for (int row = kHeadRow; row <= kLastRow; ++row) {
        for (int column = 0; column <= kStateCount; ++column) {
            const QModelIndex cell = index(row, column);
            const std::size_t place = IndexOfCell(CellOf(cell));
            if (findingOf_[place] != before[place])
                Q_EMIT dataChanged(cell, cell, {kFindingRole});
        }
    }
}

QString FsmGridModel::FindingTexts(Cell cell) const {
    QStringList texts;
    for (const DesignFinding& finding : findings_) {
        if (finding.Place == cell)
            texts += FromAnsi(finding.Text);
    }
    return texts.join(QLatin1Char('\n'));
}

RunMark FsmGridModel::Mark(Cell cell) const {
    bool leadsSomewhere = false;
    if (cell.State != kNoState && cell.Row == RowNumber(kHeadRow))
        leadsSomewhere = !IsEmpty(document_.State(cell.State));
    else if (cell.State != kNoState && CellRows().Contains(cell.Row))
        leadsSomewhere = document_.State(cell.State).Targets[cell.Row] != kNoState;
    return MarkOf(*run_, cell, leadsSomewhere);
}

QVariant FsmGridModel::MarkFlags(Cell cell) const {
    const RunMark mark = Mark(cell);
    return (mark.Takeable ? kTakeable : 0) | (mark.Next ? kNextTaken : 0) | (mark.Last ? kLastTaken : 0) |
           (mark.TrueInput ? kTrueInput : 0) | (mark.Note.empty() ? 0 : kHasNote);
}

void FsmGridModel::Highlight(Cell cell) {
    ClearHighlight();
    highlighted_ = cell;
    BackgroundChanged(cell);
}

void FsmGridModel::ClearHighlight() {
    if (const std::optional<Cell> cell = std::exchange(highlighted_, std::nullopt))
        BackgroundChanged(*cell);
}

Colour FsmGridModel::Background(Cell cell) const {
    Colour colour = CellColour(cell);
    if (highlighted_ == cell)
        colour = kNextStateColour;
    else if (currentState_ != kNoState && cell == Cell{kHeadRow, currentState_})
        colour = kCurrentStateColour;
    else if (run_ && Mark(cell).Next)
        colour = kNextTakenColour;
    return isDark_ ? OnDark(colour) : colour;
}

// Every light background has black text, the red one too.
QColor FsmGridModel::TextColour(Cell cell) const {
    const bool isBlack = !isDark_ || TakesBlackText(Background(cell));
    return isBlack ? QColor(Qt::black) : ToQColor(kLightText);
}

void FsmGridModel::BackgroundChanged(Cell cell) {
    const QModelIndex changed = IndexOf(*this, cell);
    Q_EMIT dataChanged(changed, changed, {Qt::BackgroundRole});
}

} // namespace orvane
