// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/RunTrace.h"

#include <string>

namespace orvane::run {

// A row of the trace for people, in the words of a test, UTF-8 without a line end:
//   "100  => 1:Idle  via Timeout  runs "stop action""
// `before` is the row above it, or null.
std::string TraceLine(const RunTrace& trace, const TraceRow& row, const TraceRow* before,
                      const FsmDocument& document);

// The code on one line: line ends as blanks, runs of blanks as one, UTF-8.
std::string CodeOnOneLine(const std::string& code);

} // namespace orvane::run
