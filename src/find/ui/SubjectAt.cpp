// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/SubjectAt.h"

#include "core/TimingMode.h"
#include "find/WordBorders.h"
#include "kit/CodePane.h"
#include "session/Session.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMainWindow>

namespace orvane {

// The table's model has the rows and columns of the document, heads included.
Cell ChosenCell(const QMainWindow& window, const Session& session) {
    const auto* table = window.centralWidget()->findChild<QAbstractItemView*>(QStringLiteral("MSFlexGrid1"));
    const QModelIndex index = table != nullptr ? table->currentIndex() : QModelIndex();
    return index.isValid() ? Cell{index.row(), index.column()} : session.Pressed();
}

find::Subject ChosenSubject(const QMainWindow& window, const Session& session) {
    if (const auto* pane = qobject_cast<const CodePane*>(QApplication::focusWidget())) {
        const std::string text = pane->Text();
        if (const std::string_view word = find::WordAt(text, pane->Caret()); !word.empty())
            return find::OfWord{std::string(word)};
    }
    return SubjectAt(session.Document(), ChosenCell(window, session));
}

find::Subject SubjectAt(const FsmDocument& document, Cell cell) {
    if (cell.State == kNoState) {
        if (EventRows().Contains(cell.Row))
            return find::OfEvent{cell.Row};
        return find::OfMachine{};
    }
    const StateRecord& state = document.State(cell.State);
    if (cell.Row == kTimingModeRow && state.TimingMode != kNoTiming)
        return find::OfTimer{state.TimerId};
    if (cell.Row >= kFirstCellRow && state.Targets[cell.Row] != kNoState)
        return find::OfState{state.Targets[cell.Row]};
    return find::OfState{cell.State};
}

} // namespace orvane
