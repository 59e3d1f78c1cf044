// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace orvane::cli {

// What `orvanec simulate` is asked for beside the document.
struct SimulateArguments {
    std::optional<std::string> Tests; // a path or "-"
    std::string Test;                 // which of them; empty for all
    std::optional<std::string> Csv;   // a path
    std::optional<std::string> Vcd;   // a path
};

} // namespace orvane::cli
