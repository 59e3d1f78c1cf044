// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the table and of the lists that go with it. All are light, with dark text on them; a dark
// desktop shows each by a dark one of its own that has the same hue.
#pragma once

#include "core/Cell.h"

#include <cstdint>

namespace orvane {

struct Colour {
    std::uint8_t Red;
    std::uint8_t Green;
    std::uint8_t Blue;

    bool operator==(const Colour&) const = default;
};

inline constexpr Colour kPlainCellColour{255, 255, 255};
inline constexpr Colour kStateHeadColour{204, 255, 255};
inline constexpr Colour kTimeoutColour{255, 255, 153};
inline constexpr Colour kElseColour{255, 238, 204};
inline constexpr Colour kEventColour{255, 153, 204};

inline constexpr Colour kCurrentStateColour{255, 0, 0};  // the head of the state that stepping has reached
inline constexpr Colour kNextTakenColour{153, 204, 255}; // the transition that a running machine would take
inline constexpr Colour kNextStateColour{255, 255, 0};   // the cell whose target is pointed out

// The fixed background of a cell, heads included.
Colour CellColour(Cell cell);

// What stands for a light colour on a dark desktop: no two become one.
Colour OnDark(Colour light);
// Whether black is read better on it than nearly white.
bool TakesBlackText(Colour ground);
inline constexpr Colour kLightText{235, 235, 235};

} // namespace orvane
