// SPDX-License-Identifier: GPL-3.0-or-later
// What a running machine does, in words of UTF-8.
#pragma once

#include "core/FsmDocument.h"
#include "run/History.h"

#include <string>

namespace orvane::run {

// Where the last step has left the machine, when that is not rest: why nothing more can be done, or that it
// does the same at every scan. Empty at rest.
std::string OutcomeText(const FsmDocument& document, const History& history);

// "4:Open → 5:Closing by Button"
std::string EntryText(const FsmDocument& document, const LogEntry& entry);

// "Run", or "default timer": the timer as the table calls it, by its place in Machine::Timers().
std::string TimerName(const FsmDocument& document, const Machine& machine, std::size_t timer);

} // namespace orvane::run
