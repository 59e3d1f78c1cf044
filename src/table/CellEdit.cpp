// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellEdit.h"

#include "text/NumberText.h"

namespace orvane {

bool CanEditCell(const FsmDocument& document, RowNumber row) {
    return row < kFirstEventRow || !document.Event(row).Name.empty();
}

std::string CellEditText(const FsmDocument& document, Cell cell) {
    const StateNumber target = document.State(cell.State).Targets[cell.Row];
    return target == kNoState ? "" : NumberText(target.Number());
}

std::optional<UserMessage> RefusalOfTarget(std::string_view text) {
    if (NumberIn(TargetNumbers(), ParseNumber(text)))
        return std::nullopt;
    return UserMessage{"The transition cell must point to a \r\n valid state column."};
}

std::optional<UserMessage> StoreTypedTarget(FsmDocument& document, Cell cell, std::string_view text) {
    const std::optional<StateNumber> typed = NumberIn(TargetNumbers(), ParseNumber(text));
    if (!typed)
        return RefusalOfTarget(text);
    StateRecord& record = document.State(cell.State);
    record.Targets[cell.Row] = *typed;
    if (*typed == kNoState)
        record.Actions[cell.Row].clear();
    return std::nullopt;
}

StateNumber StepTarget(const FsmDocument& document, Cell cell) {
    if (cell.Row < kFirstCellRow || cell.State == kNoState)
        return kNoState;
    return document.State(cell.State).Targets[cell.Row];
}

} // namespace orvane
