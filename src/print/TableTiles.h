// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "print/PageFlow.h"

namespace orvane::print {

// The table as it is seen, over as many pages as it takes. Every page has the heads of its rows and columns,
// and a plan of all pages that shows where it is. A text that is too long for its cell ends in dots.
void WriteTable(PageFlow& flow, const FsmDocument& document);

} // namespace orvane::print
