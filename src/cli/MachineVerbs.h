// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/TestFiles.h"

namespace orvane::cli {

// The verbs that look into the machine of one document. Never throws.
Outcome RunMachineVerb(const Arguments& arguments, const TestFiles& files) noexcept;

} // namespace orvane::cli
