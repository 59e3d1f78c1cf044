// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// A file's path (UTF-8) as the comments of a program name it: ANSI, on one line. A file name may hold
// anything, a line end included; what ANSI does not have, and every control character, becomes "?".
std::string PathInProgram(std::string_view path);

} // namespace orvane
