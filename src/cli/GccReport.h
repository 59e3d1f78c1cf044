// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CheckedDocument.h"

#include <string>

namespace orvane::cli {

// "DOC:LINE: error: MESSAGE [kind]" for each finding, as compilers say it and editors understand it; advice
// is a note. Nothing when there is nothing to tell.
std::string GccReport(const CheckedDocument& checked);

// A message of several lines on one.
std::string OneLine(std::string_view ansi);

} // namespace orvane::cli
