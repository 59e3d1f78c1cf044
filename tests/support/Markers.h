// SPDX-License-Identifier: GPL-3.0-or-later
// User texts that a walk can follow. A marker is one instruction that no generator emits:
//
//   <tab>Do<tab>action_3_7     is logged when it is run (entry code, actions, exit code, segments)
//   <tab>Test<tab>7            sets the condition flag when the event of row 7 is present
//   <tab>Load<tab>3            loads the variable time limit of state 3 into the accumulator
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::test {

inline constexpr std::string_view kDo = "Do";
inline constexpr std::string_view kTest = "Test";
inline constexpr std::string_view kLoad = "Load";

// The same machine with a marker in place of every user text that is there and a small number in place of
// every constant limit. Absent texts stay absent.
FsmDocument WithMarkers(FsmDocument document);

// The operands of the Do markers in a user text.
std::vector<std::string> MarkersIn(std::string_view userText);

} // namespace orvane::test
