// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "print/PageFlow.h"

namespace orvane::print {

// States with all their transitions, events, and what belongs to the machine as a whole: every text in full,
// code with the numbers of its lines.
void WriteListing(PageFlow& flow, const FsmDocument& document);

// Lines of code with their numbers; one that is too long for the page goes on below itself without a number.
void WriteCode(PageFlow& flow, std::string_view ansi);

} // namespace orvane::print
