// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/SceneLabels.h"

#include "core/TimingMode.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::diagram {

namespace {

constexpr int kWidestLine = 150; // pixels

std::string TimeoutName(const StateRecord& state) {
    const std::string_view limit = Trim(state.TimeConst);
    if (HasConstantLimit(state.TimingMode) && !limit.empty())
        return std::string(limit);
    return HasVariableLimit(state.TimingMode) ? "variable time" : "timeout";
}

} // namespace

std::string RowName(const FsmDocument& document, StateNumber state, RowNumber row) {
    if (row == kTimeoutRow)
        return TimeoutName(document.State(state));
    if (row == kElseRow)
        return "ELSE";
    const std::string_view name = Trim(document.Event(row).Name);
    return name.empty() ? "e" + NumberText(row.Number()) : std::string(name);
}

std::vector<LabelLine> LabelOf(const FsmDocument& document, StateNumber state,
                               const std::vector<RowNumber>& rows, const TextSizes& sizes) {
    const std::size_t named = rows.size() > kLabelLines ? kLabelLines - 1 : rows.size();
    std::vector<LabelLine> lines;
    for (std::size_t i = 0; i < named; ++i)
        lines.push_back({FittedLine(RowName(document, state, rows[i]), kWidestLine, TextRole::Line, sizes),
                         rows[i] == kTimeoutRow, false});
    if (named < rows.size())
        lines.push_back({"+" + NumberText(std::int64_t(rows.size() - named)) + " more", false, false});
    return lines;
}

std::string AllNames(const FsmDocument& document, StateNumber state, const std::vector<RowNumber>& rows) {
    std::string names;
    for (const RowNumber row : rows)
        names += (names.empty() ? "" : ", ") + std::string(row == kTimeoutRow ? "timeout " : "") +
                 RowName(document, state, row);
    return names;
}

} // namespace orvane::diagram
