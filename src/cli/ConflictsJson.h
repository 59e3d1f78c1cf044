// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/Conflict.h"

#include <string>
#include <vector>

namespace orvane::cli {

// The list of a merge's conflicts, with what docs/format.md says under "Conflicts". The name is UTF-8.
std::string ConflictsJson(const std::string& document, const std::vector<review::Conflict>& conflicts);

} // namespace orvane::cli
