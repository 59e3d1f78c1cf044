// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/StateLabel.h"
#include "core/TimingMode.h"
#include "export/CsvText.h"
#include "export/CsvWords.h"
#include "export/Exports.h"
#include "export/Names.h"
#include "export/Titles.h"
#include "text/NumberText.h"

namespace orvane::exports {

namespace {

// As the table shows it.
std::string TimingText(const StateRecord& state) {
    if (state.TimingMode == kNoTiming || !IsKnownTimingMode(state.TimingMode))
        return "";
    return (StartsTiming(state.TimingMode) ? "Start " : "Cont ") + state.TimerId + "/" +
           (HasConstantLimit(state.TimingMode) ? state.TimeConst : "Var");
}

class GridWriter {
  public:
    GridWriter(const FsmDocument& document, Formulas formulas) : document_(document), formulas_(formulas) {
        const std::vector<StateNumber> states = UsedStates(document);
        const std::vector<RowNumber> rows = UsedRows(document);
        lastState_ = states.empty() ? StateNumber(kNoState) : states.back();
        lastRow_ = rows.empty() ? RowNumber(kElseRow) : rows.back();
    }

    std::string Write() {
        text_ = kUtf8Mark;
        Line(document_.General.FsmName,
             [&](StateNumber state) { return StateLabel(state, document_.State(state).Name); });
        Line(csv::kEntry, [&](StateNumber state) { return document_.State(state).EntryCode; });
        Line(csv::kExit, [&](StateNumber state) { return document_.State(state).ExitCode; });
        Line(csv::kMode, [&](StateNumber state) { return TimingText(document_.State(state)); });
        for (RowNumber row = kFirstCellRow; row < lastRow_ + 1 || row <= kElseRow; ++row)
            Line(RowHead(row), [&](StateNumber state) { return Target(state, row); });
        return std::move(text_);
    }

  private:
    template <typename Text>
    void Line(std::string_view head, Text text) {
        Cell(head);
        for (StateNumber state = 1; state <= lastState_; ++state) {
            text_ += ',';
            Cell(text(state));
        }
        text_ += "\r\n";
    }

    void Cell(std::string_view cell) {
        const bool isFormula =
            !cell.empty() && csv::kFormulaSigns.find(cell.front()) != std::string_view::npos;
        const bool isQuoted = isFormula && formulas_ == Formulas::Safe;
        text_ += CsvCell(isQuoted ? "'" + std::string(cell) : std::string(cell));
    }

    std::string RowHead(RowNumber row) const {
        if (row == kTimeoutRow)
            return std::string(csv::kTimeout);
        return row == kElseRow ? std::string(csv::kElse) : document_.Event(row).Name;
    }

    std::string Target(StateNumber state, RowNumber row) const {
        const StateRecord& record = document_.State(state);
        const StateNumber target = record.Targets[row];
        const std::string text = target == kNoState ? "" : StateLabel(target, document_.State(target).Name);
        return record.Actions[row].empty() ? text : text + "*";
    }

    const FsmDocument& document_;
    const Formulas formulas_;
    StateNumber lastState_;
    RowNumber lastRow_;
    std::string text_;
};

std::string LongRow(const FsmDocument& document, RowNumber row) {
    const std::string number = NumberText(row.Number()) + ":";
    return number + (row <= kElseRow ? RowText(document, row) : document.Event(row).Name);
}

} // namespace

std::string CsvGridOf(const FsmDocument& document, Formulas formulas) {
    return GridWriter(document, formulas).Write();
}

// States and events without a transition have lines of their own, so that none is lost.
std::string CsvLongOf(const FsmDocument& document) {
    std::string text = std::string(kUtf8Mark) + std::string(csv::kLongHead) + "\r\n";
    const Titles cells(
        [&](StateNumber state) {
            return CsvCell(NumberText(state.Number()) + ":" + document.State(state).Name);
        },
        [&](RowNumber row) { return CsvCell(LongRow(document, row)); });
    for (const RowNumber row : UsedRows(document)) {
        if (row >= kFirstEventRow)
            text += "," + cells.Of(row) + ",,\r\n";
    }
    for (const StateNumber state : UsedStates(document)) {
        const StateRecord& record = document.State(state);
        text += cells.Of(state) + ",,,\r\n";
        for (const RowNumber row : CellRows()) {
            const StateNumber target = record.Targets[row];
            if (target == kNoState && record.Actions[row].empty())
                continue;
            ((text += cells.Of(state)) += ',') += cells.Of(row);
            (text += ',') += target == kNoState ? std::string() : cells.Of(target);
            ((text += ',') += CsvCell(record.Actions[row])) += "\r\n";
        }
    }
    return text;
}

} // namespace orvane::exports
