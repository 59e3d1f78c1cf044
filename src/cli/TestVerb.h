// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// Runs the tests that the arguments name and delivers what there is to say. The exit status.
int RunTests(const Arguments& arguments, const TestFiles& files);

} // namespace orvane::cli
