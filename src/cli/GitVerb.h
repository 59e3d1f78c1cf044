// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "cli/Verbs.h"

namespace orvane::cli {

// Makes git compare and merge documents by this program, in this repository or for this user; shows what it
// is going to write, and asks on standard input unless that was answered on the command line.
Outcome EnableGit(const Run& run);

} // namespace orvane::cli
