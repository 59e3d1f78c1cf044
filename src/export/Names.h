// SPDX-License-Identifier: GPL-3.0-or-later
// What states and events are called outside of Orvane.
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::exports {

// Those with anything in them, and those that something leads to.
std::vector<StateNumber> UsedStates(const FsmDocument& document);

// The rows with an event, a target or an action; 4 and 5 without an event of their own.
std::vector<RowNumber> UsedRows(const FsmDocument& document);

// "1:Idle", on one line.
std::string StateText(const FsmDocument& document, StateNumber state);

// The event's name on one line, "e6" for one without, "timeout" and "ELSE".
std::string RowText(const FsmDocument& document, RowNumber row);

// How long a state waits, in words: "timeout 30", "timeout, variable".
std::string TimeoutText(const StateRecord& state);

// Line ends and tabs as blanks, without blanks at the ends.
std::string OneLine(std::string_view text);

// The text in UTF-8 with LF line ends.
std::string Utf8Lines(std::string_view ansi);

// "s3_Idle": letters, digits and "_" alone, so that it is a name everywhere.
std::string Identifier(char kind, int number, std::string_view name);

} // namespace orvane::exports
