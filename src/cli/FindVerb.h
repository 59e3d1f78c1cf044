// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "files/FileSystem.h"

namespace orvane::cli {

// Prints where the pattern stands in the documents, in their order, and returns the exit status: 0 when it
// was found in any, 1 in none, 2 for a pattern that cannot be, 3 when a document could not be read to its
// end.
int RunFind(const Arguments& arguments, FileSystem& files);

} // namespace orvane::cli
