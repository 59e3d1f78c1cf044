// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane {

// The version as users see it: "V", major, ".", minor, ".", the revision in three digits.
std::string ProgramVersion();

} // namespace orvane
