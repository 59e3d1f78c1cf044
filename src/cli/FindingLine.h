// SPDX-License-Identifier: GPL-3.0-or-later
// The line of a document's file that somebody has to look at because of a finding.
#pragma once

#include "codegen/Report.h"
#include "core/FsmDocument.h"
#include "core/TextStarts.h"
#include "run/Advice.h"

#include <cstddef>

namespace orvane::cli {

// That of the field that is wrong where the file has it, else a line of the block of its state or event. What
// concerns the whole machine stands at its name, or in line 1 of a file without one.
std::size_t LineOf(const Finding& finding, const FsmDocument& document, const TextStarts& starts);
std::size_t LineOf(const run::Advice& advice, const TextStarts& starts);

} // namespace orvane::cli
