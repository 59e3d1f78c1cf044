// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/BacktrackList.h"

#include "core/StateLabel.h"
#include "text/NumberText.h"

namespace orvane {

namespace {

BacktrackLine LineOfRow(const FsmDocument& document, int row) {
    switch (row) {
    case kTimeoutRow:
        return {"TimeOut", "", kTimeoutColour};
    case kElseRow:
        return {"ELSE", "", kElseColour};
    default:
        return {document.Event(row).Name, "", kEventColour};
    }
}

} // namespace

std::string BacktrackTitle(const FsmDocument& document, int state) {
    return "Backtracks for state: " + StateLabel(state, document.State(state).Name);
}

std::vector<BacktrackLine> BacktrackLines(const FsmDocument& document, int state) {
    std::vector<BacktrackLine> lines;
    for (const int row : CellRows()) {
        BacktrackLine line = LineOfRow(document, row);
        for (const int from : StateNumbers()) {
            if (document.State(from).Targets[row] != state)
                continue;
            line.FromText = StateLabel(from, document.State(from).Name);
            lines.push_back(line);
        }
    }
    return lines;
}

int BacktrackedState(std::string_view fromText) { return static_cast<int>(ParseNumber(fromText)); }

} // namespace orvane
