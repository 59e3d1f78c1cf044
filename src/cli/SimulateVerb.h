// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// Runs a machine through tests, or only switches it on, and tells what happens line by line. May throw what
// the engine throws.
Outcome RunSimulate(const Arguments& arguments, const TestFiles& files);

} // namespace orvane::cli
