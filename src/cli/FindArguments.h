// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane::cli {

// What `orvanec find` is asked for beside the documents.
struct FindArguments {
    std::string Pattern; // UTF-8
    bool Regex = false;
    bool Word = false;
    bool IgnoreCase = false;
    bool Json = false;
};

} // namespace orvane::cli
