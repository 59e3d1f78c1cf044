// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "files/UnfinishedFiles.h"

namespace orvane::cli {

// Checks the documents of all programs that a builder script lists, and what these have in common. Prints
// what there is to tell, and returns the exit status, which advice does not change.
int RunOnProject(const Arguments& arguments, FileSystem& files, UnfinishedFiles& unfinished);

} // namespace orvane::cli
