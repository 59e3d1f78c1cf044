// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/DesignChecks.h"

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

Finding StateFinding(Severity severity, const FsmDocument& document, int state, int row,
                     std::string_view what) {
    return {severity, state, row, "State " + StateTitle(document, state) + std::string(what)};
}

} // namespace

std::string StateTitle(const FsmDocument& document, int state) {
    return StateLabel(state, document.State(state).Name);
}

std::optional<Finding> CheckPrefix(const FsmDocument& document) {
    if (!document.General.FsmName.empty())
        return std::nullopt;
    return Finding{Severity::Error, 0, 0, std::string(kMissingPrefix)};
}

std::optional<Finding> CheckEventCode(const FsmDocument& document, int state, int row) {
    if (document.State(state).Targets[row] == kNoState || !document.Event(row).Code.empty())
        return std::nullopt;
    return Finding{Severity::Error, state, row, "Missing event test code in row" + SignedNumberText(row)};
}

std::optional<Finding> CheckTimeout(const FsmDocument& document, int state) {
    const StateRecord& record = document.State(state);
    const auto finding = [&](Severity severity, std::string_view what) {
        return StateFinding(severity, document, state, kTimeoutRow, what);
    };
    if (record.Targets[kTimeoutRow] == kNoState) {
        if (record.TimingMode == kNoTiming)
            return std::nullopt;
        return finding(Severity::Note, " has a timing mode specified but no timeout transition");
    }
    if (HasConstantLimit(record.TimingMode)) {
        if (Trim(record.TimeConst).empty())
            return finding(Severity::Error, " needs a time constant");
    } else if (HasVariableLimit(record.TimingMode)) {
        if (Trim(record.TimingVar).empty())
            return finding(Severity::Error, " needs a variable time.");
    } else {
        return finding(Severity::Error, " has a timeout transition but the timing mode is not specified");
    }
    return std::nullopt;
}

std::optional<Finding> CheckDeadEnd(const FsmDocument& document, int state) {
    const StateRecord& record = document.State(state);
    const auto leavesState = [&](int row) {
        return record.Targets[row] != kNoState && record.Targets[row] != state;
    };
    if (std::any_of(CellRows().begin(), CellRows().end(), leavesState))
        return std::nullopt;
    return StateFinding(Severity::Warning, document, state, 0, " is a dead end");
}

std::optional<Finding> CheckTimeoutAndElse(const FsmDocument& document, int state) {
    const StateRecord& record = document.State(state);
    if (record.Targets[kTimeoutRow] == kNoState || record.Targets[kElseRow] == kNoState)
        return std::nullopt;
    return StateFinding(Severity::Note, document, state, kElseRow,
                        " has both a timeout and an ELSE transition.");
}

std::optional<Finding> CheckUnreachable(const FsmDocument& document, const Reachability& reachability,
                                        int state) {
    if (state == StateNumbers().First() || reachability.Reached(state))
        return std::nullopt;
    const StateRecord& record = document.State(state);
    const auto hasTarget = [&](int row) { return record.Targets[row] != kNoState; };
    if (record.Name.empty() && std::none_of(CellRows().begin(), CellRows().end(), hasTarget))
        return std::nullopt;
    return StateFinding(Severity::Warning, document, state, 0, " is unreachable");
}

} // namespace orvane
