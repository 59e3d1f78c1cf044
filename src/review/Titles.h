// SPDX-License-Identifier: GPL-3.0-or-later
// Parts of a document as the texts about two versions call them: UTF-8 on one line, control characters shown
// as \xNN.
#pragma once

#include "core/FsmDocument.h"
#include "review/StoredFields.h"

#include <string>
#include <string_view>

namespace orvane::review {

std::string OneLine(std::string_view documentText);

// A line of code: the same, but with its tabs.
std::string CodeLine(std::string_view documentText);

// 4:Run, or 4 without a name.
std::string NumberedTitle(int number, std::string_view name);

// The same of a state; "none" for no state.
std::string StateTitle(const FsmDocument& document, StateNumber state);

// 6:Start, or 6 without a name.
std::string EventTitle(const FsmDocument& document, RowNumber row);

// The row of a cell: the event's name, "row 6" without one, "Timeout" or "ELSE".
std::string RowTitle(const FsmDocument& document, RowNumber row);

// What stands in a field; targets need the document. "empty", "yes" and "no" for what has no text of its own.
std::string ValueTitle(const FsmDocument& document, const FieldValue& value);

// Whether the field holds code, of any number of lines, rather than a word or a number.
bool IsCode(std::string_view tag);

} // namespace orvane::review
