// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// Tells what holds in all behaviours of a machine, or the shortest way from one of its states to another. May
// throw what the engine throws.
Outcome RunExplore(const Arguments& arguments, const TestFiles& files);

} // namespace orvane::cli
