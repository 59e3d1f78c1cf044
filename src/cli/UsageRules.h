// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"

#include <optional>
#include <string>

namespace orvane::cli {

// Which of the arguments do not go together, where each of them is right by itself.
std::optional<std::string> WrongTogether(const Arguments& arguments);

} // namespace orvane::cli
