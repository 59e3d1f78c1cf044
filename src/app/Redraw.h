// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

namespace orvane {

// What a command has changed and the table has to draw again.
struct Redraw {
    enum class Extent { Nothing, Column, RowHeads, AllColumns, Everything };

    Extent What = Extent::Nothing;
    int Column = 0; // for Extent::Column
};

// Changes the document. Nothing comes back when it was refused and left as it was.
using Change = std::function<std::optional<Redraw>()>;

// Runs a change with everything that goes with it.
using CommandRunner = std::function<void(const Change&)>;

} // namespace orvane
