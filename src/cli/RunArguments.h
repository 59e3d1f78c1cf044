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

// What `orvanec explore` is asked for beside the document.
struct ExploreArguments {
    std::optional<std::string> From; // a state; none: where power comes on
    std::optional<std::string> To;   // none: no way is asked for
    bool Json = false;
};

// What `orvanec tour` is asked for beside the document and the output.
struct TourArguments {
    bool EmptyCells = false;
    bool Together = false;
    std::size_t MostSteps = 10'000; // after power-on
};

} // namespace orvane::cli
