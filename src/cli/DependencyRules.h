// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane::cli {

// "program: document" as a line that make and ninja read, with what has a meaning there escaped.
std::string DependencyRule(std::string_view program, std::string_view document);

} // namespace orvane::cli
