// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane {

// The version as users see it: "V", major, ".", minor, ".", the revision in three digits.
std::string ProgramVersion();

// "1.1.0", as the package has it and tools compare it.
std::string VersionNumber();

} // namespace orvane
