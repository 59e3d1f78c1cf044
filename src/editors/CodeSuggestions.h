// SPDX-License-Identifier: GPL-3.0-or-later
// Start-up code for a machine that runs as a Polytask task: the initialisation segment calls the routine at
// NAME_Init, which launches the task at NAME_Launch. A machine without a name is called XXX.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The routine for the code segment.
std::string CodeSuggestion(std::string_view fsmName);

// The call for the initialisation segment.
std::string InitSuggestion(std::string_view fsmName);

} // namespace orvane
