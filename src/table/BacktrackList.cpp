// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/BacktrackList.h"

#include "core/StateLabel.h"

namespace orvane {

namespace {

BacktrackLine LineOfRow(const FsmDocument& document, RowNumber row) {
    switch (row.Number()) {
    case kTimeoutRow:
        return {"TimeOut", kTimeoutColour, kNoState, ""};
    case kElseRow:
        return {"ELSE", kElseColour, kNoState, ""};
    default:
        return {document.Event(row).Name, kEventColour, kNoState, ""};
    }
}

} // namespace

std::string BacktrackTitle(const FsmDocument& document, StateNumber state) {
    return "Backtracks for state: " + StateLabel(state, document.State(state).Name);
}

std::vector<BacktrackLine> BacktrackLines(const FsmDocument& document, StateNumber state) {
    std::vector<BacktrackLine> lines;
    for (const RowNumber row : CellRows()) {
        BacktrackLine line = LineOfRow(document, row);
        for (const StateNumber from : StateNumbers()) {
            if (document.State(from).Targets[row] != state)
                continue;
            line.From = from;
            line.FromText = StateLabel(from, document.State(from).Name);
            lines.push_back(line);
        }
    }
    return lines;
}

} // namespace orvane
