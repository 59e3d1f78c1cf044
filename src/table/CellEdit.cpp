// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellEdit.h"

#include "text/NumberText.h"

namespace orvane {

bool CanEditCell(const FsmDocument& document, int row) {
    return row < kFirstEventRow || !document.Event(row).Name.empty();
}

std::string CellEditText(const FsmDocument& document, int row, int state) {
    const int target = document.State(state).Targets[row];
    return target == kNoState ? "" : NumberText(target);
}

std::optional<UserMessage> RefusalOfTarget(std::string_view text) {
    if (TargetNumbers().Contains(ParseNumber(text)))
        return std::nullopt;
    return UserMessage{"The transition cell must point to a \r\n valid state column."};
}

std::optional<UserMessage> StoreTypedTarget(FsmDocument& document, int row, int state,
                                            std::string_view text) {
    if (std::optional<UserMessage> refusal = RefusalOfTarget(text))
        return refusal;
    const std::int64_t typed = ParseNumber(text);
    StateRecord& record = document.State(state);
    record.Targets[row] = static_cast<std::int16_t>(typed);
    if (typed == kNoState)
        record.Actions[row].clear();
    return std::nullopt;
}

int StepTarget(const FsmDocument& document, int currentState, int row) {
    if (row < kFirstCellRow || currentState == kNoState)
        return kNoState;
    return document.State(currentState).Targets[row];
}

} // namespace orvane
