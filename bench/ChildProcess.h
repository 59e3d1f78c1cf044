// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace orvane {

// Runs the command with its standard output in the file and its standard error nowhere. Returns how long it
// took, in milliseconds; throws when it fails.
double TimeOfCommand(std::vector<std::string> command, const std::string& output);

} // namespace orvane
