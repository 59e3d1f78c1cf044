// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/TableTexts.h"

#include "core/TimingMode.h"
#include "export/Names.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane::print {

namespace {

constexpr int kMostLines = 3; // of a cell
constexpr int kLeastWidth = 600;
constexpr int kMostWidth = 1900;

// As the table shows it.
std::string TimingText(const StateRecord& state) {
    if (state.TimingMode == kNoTiming || !IsKnownTimingMode(state.TimingMode))
        return "";
    return ToUtf8((StartsTiming(state.TimingMode) ? "Start " : "Cont ") + exports::OneLine(state.TimerId) +
                  "/" + (HasConstantLimit(state.TimingMode) ? exports::OneLine(state.TimeConst) : "Var"));
}

std::string TargetText(const FsmDocument& document, const StateRecord& state, RowNumber row) {
    const StateNumber target = state.Targets[row];
    const std::string text =
        target == kNoState ? std::string() : ToUtf8(exports::StateText(document, target));
    return state.Actions[row].empty() ? text : text + "*";
}

// The row of one thing that all states have, with its head.
template <typename TextOf>
std::vector<std::string> RowOf(std::string head, const FsmDocument& document,
                               const std::vector<StateNumber>& states, TextOf textOf) {
    std::vector<std::string> row = {std::move(head)};
    for (const StateNumber state : states)
        row.push_back(textOf(document.State(state)));
    return row;
}

std::vector<std::vector<std::string>> TextsOf(const FsmDocument& document) {
    const std::vector<StateNumber> states = exports::UsedStates(document);
    std::vector<std::vector<std::string>> rows;
    rows.push_back({ToUtf8(exports::OneLine(document.General.FsmName))});
    for (const StateNumber state : states)
        rows.back().push_back(ToUtf8(exports::StateText(document, state)));
    const auto add = [&](std::string head, auto textOf) {
        rows.push_back(RowOf(std::move(head), document, states, textOf));
    };
    add("Entry action", [](const StateRecord& state) { return state.EntryCode.empty() ? "" : "*"; });
    add("Exit action", [](const StateRecord& state) { return state.ExitCode.empty() ? "" : "*"; });
    add("Timeout mode", TimingText);
    for (const RowNumber row : exports::UsedRows(document))
        add(ToUtf8(exports::RowText(document, row)),
            [&](const StateRecord& state) { return TargetText(document, state, row); });
    return rows;
}

Face FaceOf(std::size_t row, std::size_t column) { return row == 0 || column == 0 ? Face::Bold : Face::Body; }

int ColumnWidth(const std::vector<std::vector<std::string>>& texts, std::size_t column, const Paper& paper,
                const Letters& letters) {
    int width = kLeastWidth;
    for (std::size_t row = 0; row < texts.size(); ++row)
        width = std::max(width, WidthOf(texts[row][column], FaceOf(row, column), letters) + 2 * kCellGap);
    return std::min({width, kMostWidth, paper.Width / 3});
}

} // namespace

PrintedTable MeasuredTable(const FsmDocument& document, const Paper& paper, const Letters& letters) {
    const std::vector<std::vector<std::string>> texts = TextsOf(document);
    PrintedTable table;
    for (std::size_t column = 0; column < texts.front().size(); ++column)
        table.Widths.push_back(ColumnWidth(texts, column, paper, letters));
    for (std::size_t row = 0; row < texts.size(); ++row) {
        std::vector<CellLines> cells;
        std::size_t most = 1;
        for (std::size_t column = 0; column < texts[row].size(); ++column) {
            cells.push_back(Fitted(texts[row][column], table.Widths[column] - 2 * kCellGap, kMostLines,
                                   FaceOf(row, column), letters));
            most = std::max(most, cells.back().size());
        }
        table.Heights.push_back(int(most) * letters.LineHeight(Face::Bold) + 2 * kCellGap);
        table.Cells.push_back(std::move(cells));
    }
    return table;
}

} // namespace orvane::print
