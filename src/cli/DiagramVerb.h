// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// Draws a machine. May throw what the engine throws.
Outcome RunDiagram(const Arguments& arguments, const TestFiles& files);

} // namespace orvane::cli
