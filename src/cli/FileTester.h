// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "cli/TestArguments.h"
#include "cli/TestFiles.h"
#include "cli/TestedFile.h"

#include <string>

namespace orvane::cli {

// One file of tests: read, brought up to date when that is asked for, and run. The outcome has the lines for
// the streams; with --json the tests' own lines are left to the report. Never throws.
TestedFile TestOneFile(const std::string& name, const TestArguments& arguments, const TestFiles& files,
                       Outcome& outcome) noexcept;

} // namespace orvane::cli
