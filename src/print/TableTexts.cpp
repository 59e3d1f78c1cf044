// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/TableTexts.h"

#include "core/TimingMode.h"
#include "export/Names.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace orvane::print {

namespace {

constexpr int kMostLines = 3; // of a cell
constexpr int kLeastWidth = 600;
// How wide a column may be at most: wide ones are read more easily, but narrow ones may save pages.
constexpr std::array<int, 4> kMostWidths{1900, 1500, 1200, 1000};

using Texts = std::vector<std::vector<std::string>>; // by row and column, heads included

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

Texts TextsOf(const FsmDocument& document) {
    const std::vector<StateNumber> states = exports::UsedStates(document);
    Texts rows;
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

int ColumnWidth(const Texts& texts, std::size_t column, int most, const Letters& letters) {
    int width = kLeastWidth;
    for (std::size_t row = 0; row < texts.size(); ++row)
        width = std::max(width, WidthOf(texts[row][column], FaceOf(row, column), letters) + 2 * kCellGap);
    return std::min(width, most);
}

PrintedTable Measured(const Texts& texts, int mostWidth, const Letters& letters) {
    PrintedTable table;
    for (std::size_t column = 0; column < texts.front().size(); ++column)
        table.Widths.push_back(ColumnWidth(texts, column, mostWidth, letters));
    for (std::size_t row = 0; row < texts.size(); ++row) {
        std::vector<CellLines> cells;
        std::size_t most = 1;
        for (std::size_t column = 0; column < texts[row].size(); ++column) {
            cells.push_back(Fitted(texts[row][column], table.Widths[column] - 2 * kCellGap, kMostLines,
                                   FaceOf(row, column), letters));
            most = std::max(most, cells.back().size());
            table.CutTexts += cells.back().back().ends_with(kDots) ? 1 : 0;
        }
        table.Heights.push_back(int(most) * letters.LineHeight(Face::Bold) + 2 * kCellGap);
        table.Cells.push_back(std::move(cells));
    }
    return table;
}

// About how many pages stand beside each other.
int PagesAcross(const PrintedTable& table, const Paper& paper) {
    const int all = std::accumulate(table.Widths.begin() + 1, table.Widths.end(), 0);
    const int room = std::max(paper.Width - table.Widths.front(), 1);
    return (all + room - 1) / room;
}

} // namespace

PrintedTable MeasuredTable(const FsmDocument& document, const Paper& paper, const Letters& letters) {
    const Texts texts = TextsOf(document);
    const int third = paper.Width / 3;
    PrintedTable best = Measured(texts, std::min(kMostWidths.front(), third), letters);
    for (const int width : kMostWidths) {
        PrintedTable narrower = Measured(texts, std::min(width, third), letters);
        const bool savesPages = PagesAcross(narrower, paper) < PagesAcross(best, paper);
        if (savesPages && narrower.CutTexts == best.CutTexts)
            best = std::move(narrower);
    }
    return best;
}

} // namespace orvane::print
