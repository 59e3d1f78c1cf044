// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <optional>
#include <string>

namespace orvane {

struct Hint {
    std::string Text;  // never empty
    bool Wrap = false; // prose, wrapped where it fits; else code, shown line by line

    bool operator==(const Hint&) const = default;
};

// What there is to say about the cell under the pointer, heads included; none when there is
// nothing. While Shift is held the table shows where transitions lead, and hints of code stay away.
std::optional<Hint> HoverHint(const FsmDocument& document, Cell cell, bool shiftHeld);

} // namespace orvane
