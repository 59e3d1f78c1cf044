// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

namespace orvane {

enum class Severity { Note, Warning, Error };

// "note", "warning" or "error".
std::string_view SeverityName(Severity severity);

// What there is to be found in a design. Tools know the kinds by their words, so no word ever changes, and
// none is used again for something else.
enum class FindingKind {
    MissingPrefix,
    MissingEventCode,
    TimingModeWithoutTimeout,
    MissingTimeConstant,
    MissingVariableTime,
    MissingTimingMode,
    DeadEnd,
    TimeoutAndElse,
    UnreachableState,
    MergeConflict,
};

inline constexpr auto kFindingKinds =
    std::to_array({FindingKind::MissingPrefix, FindingKind::MissingEventCode,
                   FindingKind::TimingModeWithoutTimeout, FindingKind::MissingTimeConstant,
                   FindingKind::MissingVariableTime, FindingKind::MissingTimingMode, FindingKind::DeadEnd,
                   FindingKind::TimeoutAndElse, FindingKind::UnreachableState, FindingKind::MergeConflict});

// The word that tools know the kind by, such as "missing-time-constant".
std::string_view KindName(FindingKind kind);

// Every kind has one severity, whatever the design.
Severity SeverityOf(FindingKind kind);

} // namespace orvane
