// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "builder/ProjectAdvice.h"
#include "cli/BuildArguments.h"
#include "cli/DocumentVerbs.h"

#include <string>
#include <vector>

namespace orvane::cli {

// What there is to be told of the script beside its documents, in the format that was asked for.
LastWord ReportOnProject(const std::string& script, const std::vector<ProjectAdvice>& list,
                         const BuildArguments& asked);

} // namespace orvane::cli
