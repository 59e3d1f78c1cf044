// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ActionBlocks.h"

#include "codegen/Labels.h"
#include "core/TimingMode.h"
#include "text/AnsiText.h"

namespace orvane {

bool HasActionBlock(const FsmDocument& document, Cell cell) {
    const StateRecord& record = document.State(cell.State);
    if (record.Targets[cell.Row] == kNoState || record.Actions[cell.Row].empty())
        return false;
    if (cell.Row == kTimeoutRow)
        return HasConstantLimit(record.TimingMode) && !Trim(record.TimeConst).empty();
    return cell.Row != kElseRow && !document.Event(cell.Row).Code.empty();
}

std::vector<SkipLabel> SkipLabels(const FsmDocument& document, StateNumber state) {
    std::vector<SkipLabel> labels;
    const auto add = [&](RowNumber row) {
        if (HasActionBlock(document, {row, state}))
            labels.push_back({row, ActionSkipLabel(document, state, unsigned(labels.size()))});
    };
    for (const RowNumber row : EventRows())
        add(row);
    add(kTimeoutRow);
    return labels;
}

} // namespace orvane
