// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// The verbs that give a document another form. Never throws.
Outcome RunExportVerb(const Arguments& arguments, const TestFiles& files) noexcept;

// To where the arguments say, which is standard output unless a file is named.
void WriteOutput(const Arguments& arguments, const TestFiles& files, std::string bytes, Outcome& outcome);

} // namespace orvane::cli
