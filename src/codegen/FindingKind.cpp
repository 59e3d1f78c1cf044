// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/FindingKind.h"

namespace orvane {

std::string_view SeverityName(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        break;
    }
    return "error";
}

std::string_view KindName(FindingKind kind) {
    switch (kind) {
    case FindingKind::MissingPrefix:
        return "missing-prefix";
    case FindingKind::MissingEventCode:
        return "missing-event-code";
    case FindingKind::TimingModeWithoutTimeout:
        return "timing-mode-without-timeout";
    case FindingKind::MissingTimeConstant:
        return "missing-time-constant";
    case FindingKind::MissingVariableTime:
        return "missing-variable-time";
    case FindingKind::MissingTimingMode:
        return "missing-timing-mode";
    case FindingKind::DeadEnd:
        return "dead-end";
    case FindingKind::TimeoutAndElse:
        return "timeout-and-else";
    case FindingKind::UnreachableState:
        return "unreachable-state";
    case FindingKind::MergeConflict:
        break;
    }
    return "merge-conflict";
}

Severity SeverityOf(FindingKind kind) {
    switch (kind) {
    case FindingKind::TimingModeWithoutTimeout:
    case FindingKind::TimeoutAndElse:
        return Severity::Note;
    case FindingKind::DeadEnd:
    case FindingKind::UnreachableState:
    case FindingKind::MergeConflict:
        return Severity::Warning;
    case FindingKind::MissingPrefix:
    case FindingKind::MissingEventCode:
    case FindingKind::MissingTimeConstant:
    case FindingKind::MissingVariableTime:
    case FindingKind::MissingTimingMode:
        break;
    }
    return Severity::Error;
}

} // namespace orvane
