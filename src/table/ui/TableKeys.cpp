// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableKeys.h"

#include "session/Session.h"
#include "table/UsedPart.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridView.h"

#include <QItemSelectionModel>
#include <QKeyEvent>

#include <algorithm>
#include <optional>

namespace orvane {

namespace {

using Select = QItemSelectionModel::SelectionFlag;

// The next row of transitions that is shown, this one where there is none.
RowNumber Neighbour(const FsmDocument& document, RowNumber row, int key) {
    const std::vector<RowNumber> rows = ShownRowsFrom(document, kFirstCellRow);
    auto at = std::find(rows.begin(), rows.end(), row);
    if (key == Qt::Key_Up && at != rows.begin())
        --at;
    else if (key == Qt::Key_Down && at + 1 != rows.end())
        ++at;
    return *at;
}

// The cell that the arrow leads to; none for another key.
std::optional<Cell> Neighbour(const FsmDocument& document, Cell cell, int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        return Cell{Neighbour(document, cell.Row, key), cell.State};
    case Qt::Key_Left:
        return Cell{cell.Row, std::max(cell.State - 1, StateNumbers().First())};
    case Qt::Key_Right:
        return Cell{cell.Row, std::min(cell.State + 1, StateNumbers().Last())};
    default:
        return std::nullopt;
    }
}

// The end that Home or End leads to, with Ctrl a corner; none for another key.
std::optional<Cell> EndOf(const FsmDocument& document, Cell cell, const QKeyEvent& key) {
    const bool isCorner = key.modifiers().testFlag(Qt::ControlModifier);
    if (key.key() == Qt::Key_Home)
        return isCorner ? FirstCell(document) : Cell{cell.Row, FirstUsedState(document)};
    if (key.key() == Qt::Key_End)
        return isCorner ? LastUsedCell(document) : Cell{cell.Row, LastUsedState(document)};
    return std::nullopt;
}

// The longest run of neighbours from this place on.
template <typename Number>
std::size_t EndOfRun(const std::vector<Number>& numbers, std::size_t begin) {
    std::size_t end = begin + 1;
    while (end < numbers.size() && numbers[end] == numbers[end - 1] + 1)
        ++end;
    return end;
}

QItemSelection SelectionOf(const QAbstractItemModel& model, const CellChoice& choice) {
    QItemSelection selection;
    for (std::size_t row = 0; row < choice.Rows.size();) {
        const std::size_t lastRow = EndOfRun(choice.Rows, row);
        for (std::size_t state = 0; state < choice.States.size();) {
            const std::size_t lastState = EndOfRun(choice.States, state);
            selection.append({IndexOf(model, {choice.Rows[row], choice.States[state]}),
                              IndexOf(model, {choice.Rows[lastRow - 1], choice.States[lastState - 1]})});
            state = lastState;
        }
        row = lastRow;
    }
    return selection;
}

} // namespace

TableKeys::TableKeys(Session& session, FsmGridView& view) : QObject(&view), session_(session), view_(view) {
    connect(&view, &FsmGridView::KeyPressed, this, [this](QKeyEvent* key) { Take(*key); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (!current.isValid())
                    return;
                if (!extending_) {
                    anchor_ = CellOf(current);
                    choice_ = {};
                }
                session_.SetCurrentCell(CellOf(current));
            });
    anchor_ = CellOf(view.currentIndex());
    session_.SetCurrentCell(anchor_);
}

CellChoice TableKeys::Choice() const {
    if (!choice_.IsEmpty())
        return choice_;
    const Cell cell = session_.CurrentCell();
    return ChoiceBetween(session_.Document(), cell, cell);
}

void TableKeys::Forget() {
    choice_ = {};
    anchor_ = session_.CurrentCell();
    view_.selectionModel()->select(view_.currentIndex(), Select::ClearAndSelect);
}

void TableKeys::Take(QKeyEvent& key) {
    if (key.matches(QKeySequence::SelectAll))
        ChooseAll();
    else if (key.key() == Qt::Key_Escape && !choice_.IsEmpty())
        Forget();
    else if (!Extend(key) && !GoToEnd(key) && !BeginEdit(key))
        return;
    key.accept();
}

bool TableKeys::Extend(const QKeyEvent& key) {
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const Cell cell = session_.CurrentCell();
    if (modifiers != Qt::ShiftModifier || !HasTransition(cell) || !IsShown(session_.Document(), cell.Row))
        return false;
    const std::optional<Cell> end = Neighbour(session_.Document(), cell, key.key());
    if (end)
        ExtendTo(*end);
    return end.has_value();
}

bool TableKeys::GoToEnd(const QKeyEvent& key) {
    const std::optional<Cell> end = EndOf(session_.Document(), session_.CurrentCell(), key);
    if (!end)
        return false;
    if (key.modifiers().testFlag(Qt::ShiftModifier) && HasTransition(session_.CurrentCell()))
        ExtendTo(*end);
    else
        GoTo(*end);
    return true;
}

// A letter or a digit alone. What other keys bring as text, the view has no use for.
bool TableKeys::BeginEdit(const QKeyEvent& key) {
    const Cell cell = session_.CurrentCell();
    if (key.key() == Qt::Key_F2 && (key.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier) {
        Q_EMIT EditWanted(cell,
                          key.modifiers() == Qt::NoModifier ? PressModifiers::None : PressModifiers::Shift);
        return true;
    }
    const QString text = key.text();
    const bool isTyped = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier &&
                         text.size() == 1 && text.front().isLetterOrNumber();
    if (!isTyped || !HasTransition(cell))
        return false;
    Q_EMIT Typed(cell, text);
    return true;
}

void TableKeys::ExtendTo(Cell end) {
    CellChoice choice = ChoiceBetween(session_.Document(), anchor_, end);
    if (choice.IsEmpty())
        return GoTo(end);
    extending_ = true;
    view_.selectionModel()->setCurrentIndex(IndexOf(*view_.model(), end), Select::NoUpdate);
    extending_ = false;
    Choose(std::move(choice));
    view_.scrollTo(IndexOf(*view_.model(), end));
}

void TableKeys::ChooseAll() {
    if (CellChoice all = WholeChoice(session_.Document()); !all.IsEmpty())
        Choose(std::move(all));
}

void TableKeys::Choose(CellChoice choice) {
    choice_ = std::move(choice);
    view_.selectionModel()->select(SelectionOf(*view_.model(), choice_), Select::ClearAndSelect);
}

void TableKeys::GoTo(Cell cell) {
    view_.setCurrentIndex(IndexOf(*view_.model(), cell));
    view_.scrollTo(IndexOf(*view_.model(), cell));
}

} // namespace orvane
