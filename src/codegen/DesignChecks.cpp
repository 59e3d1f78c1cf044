// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/DesignChecks.h"

#include "core/ConflictMark.h"
#include "core/RecordFields.h"
#include "core/StateLabel.h"
#include "core/TimingMode.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::string_view kMissingPrefix =
    "You must supply a distinguishing label prefix in the \"Name\"\r\n"
    "box of the General Code editor. This should be unique within your\r\n"
    "project as a whole. Typically this would be a 3-letter mnemonic for\r\n"
    "the overall function of this FSM, for example \"PMP\" for a pump\r\n"
    "control FSM";

Finding StateFinding(FindingKind kind, const FsmDocument& document, Cell place, std::string_view what) {
    return {kind, place, "State " + StateTitle(document, place.State) + std::string(what)};
}

template <typename Fields, typename Record>
bool HasConflictInText(const Fields& fields, const Record& record) {
    bool has = false;
    ForEachField(fields, [&](const auto& field) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(record.*field.Member)>, std::string>)
            has = has || HoldsConflict(record.*field.Member);
    });
    return has;
}

Finding ConflictFinding(Cell place, const std::string& where) {
    return {FindingKind::MergeConflict, place, where + " has a conflict of a merge that nobody has resolved"};
}

std::string CellTitle(const FsmDocument& document, Cell cell) {
    const std::string state = "State " + StateTitle(document, cell.State);
    if (cell.Row == kTimeoutRow || cell.Row == kElseRow)
        return state + (cell.Row == kElseRow ? ", the ELSE action," : ", the timeout action,");
    return state + ", the action in row " + NumberText(cell.Row.Number()) + ",";
}

} // namespace

std::string StateTitle(const FsmDocument& document, StateNumber state) {
    return StateLabel(state, document.State(state).Name);
}

std::optional<Finding> CheckPrefix(const FsmDocument& document) {
    if (!document.General.FsmName.empty())
        return std::nullopt;
    return Finding{FindingKind::MissingPrefix, {}, std::string(kMissingPrefix)};
}

std::optional<Finding> CheckEventCode(const FsmDocument& document, Cell cell) {
    const bool hasTransition = document.State(cell.State).Targets[cell.Row] != kNoState;
    if (!hasTransition || !document.Event(cell.Row).Code.empty())
        return std::nullopt;
    return Finding{FindingKind::MissingEventCode, cell,
                   "Missing event test code in row" + SignedNumberText(cell.Row.Number())};
}

std::optional<Finding> CheckTimeout(const FsmDocument& document, StateNumber state) {
    const StateRecord& record = document.State(state);
    const auto finding = [&](FindingKind kind, std::string_view what) {
        return StateFinding(kind, document, {kTimeoutRow, state}, what);
    };
    if (record.Targets[kTimeoutRow] == kNoState) {
        if (record.TimingMode == kNoTiming)
            return std::nullopt;
        return finding(FindingKind::TimingModeWithoutTimeout,
                       " has a timing mode specified but no timeout transition");
    }
    if (HasConstantLimit(record.TimingMode)) {
        if (Trim(record.TimeConst).empty())
            return finding(FindingKind::MissingTimeConstant, " needs a time constant");
    } else if (HasVariableLimit(record.TimingMode)) {
        if (Trim(record.TimingVar).empty())
            return finding(FindingKind::MissingVariableTime, " needs a variable time.");
    } else {
        return finding(FindingKind::MissingTimingMode,
                       " has a timeout transition but the timing mode is not specified");
    }
    return std::nullopt;
}

std::optional<Finding> CheckDeadEnd(const FsmDocument& document, StateNumber state) {
    const StateRecord& record = document.State(state);
    const auto leavesState = [&](RowNumber row) {
        return record.Targets[row] != kNoState && record.Targets[row] != state;
    };
    if (std::any_of(CellRows().begin(), CellRows().end(), leavesState))
        return std::nullopt;
    return StateFinding(FindingKind::DeadEnd, document, {kNoRow, state}, " is a dead end");
}

std::optional<Finding> CheckTimeoutAndElse(const FsmDocument& document, StateNumber state) {
    const StateRecord& record = document.State(state);
    if (record.Targets[kTimeoutRow] == kNoState || record.Targets[kElseRow] == kNoState)
        return std::nullopt;
    return StateFinding(FindingKind::TimeoutAndElse, document, {kElseRow, state},
                        " has both a timeout and an ELSE transition.");
}

std::optional<Finding> CheckUnreachable(const FsmDocument& document, const Reachability& reachability,
                                        StateNumber state) {
    if (state == StateNumbers().First() || reachability.Reached(state))
        return std::nullopt;
    const StateRecord& record = document.State(state);
    const auto hasTarget = [&](RowNumber row) { return record.Targets[row] != kNoState; };
    if (record.Name.empty() && std::none_of(CellRows().begin(), CellRows().end(), hasTarget))
        return std::nullopt;
    return StateFinding(FindingKind::UnreachableState, document, {kNoRow, state}, " is unreachable");
}

std::vector<Finding> CheckMergeConflicts(const FsmDocument& document) {
    std::vector<Finding> findings;
    if (HasConflictInText(kGeneralFields, document.General))
        findings.push_back(ConflictFinding({}, "The general code"));
    for (const RowNumber row : EventRows()) {
        if (HasConflictInText(kEventFields, document.Event(row)))
            findings.push_back(
                ConflictFinding({row, kNoState}, "The event in row " + NumberText(row.Number())));
    }
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& record = document.State(state);
        if (HasConflictInText(kStateFields, record))
            findings.push_back(ConflictFinding({kNoRow, state}, "State " + StateTitle(document, state)));
        for (const RowNumber row : CellRows()) {
            if (HoldsConflict(record.Actions[row]))
                findings.push_back(ConflictFinding({row, state}, CellTitle(document, {row, state})));
        }
    }
    return findings;
}

} // namespace orvane
