// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// Makes a document of a file in another form. May throw what the engine throws.
Outcome RunImport(const Arguments& arguments, const TestFiles& files);

} // namespace orvane::cli
