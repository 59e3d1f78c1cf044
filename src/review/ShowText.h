// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>

namespace orvane::review {

// The whole document as text in which names stand in place of numbers, so that putting in a state changes
// only the lines that say so. UTF-8, a line for each thing; what is as in a fresh document is left out. Only
// what has no name of its own has a number: #3.
std::string ShowText(const FsmDocument& document);

// The lines of that text about one state, and about one event with its cells, as document text.
std::string StateContent(const FsmDocument& document, StateNumber state);
std::string EventContent(const FsmDocument& document, RowNumber row);

} // namespace orvane::review
