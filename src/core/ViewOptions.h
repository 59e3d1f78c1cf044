// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace orvane {

inline constexpr std::int32_t kTwipsPerPixel = 15;
inline constexpr std::int32_t kDefaultCol0Width = 1890; // twips

// Heights of the rows that can be hidden, in twips; 0 hides the row.
struct RowHeights {
    std::int32_t Else = 0;
    std::int32_t ExitAction = 0;
    std::int32_t TimingMode = 0;
    std::int32_t TimeTarget = 0;

    bool operator==(const RowHeights&) const = default;
};

// How the document is shown and whether it is generated for multitasking. Stored with the document, but not
// part of its undo images.
struct ViewOptions {
    bool Polytask = false; // generate for cooperative multitasking
    bool ShowTimeTarget = false;
    bool ShowTimingMode = false;
    bool ShowElse = false;
    std::int32_t Col0Width = kDefaultCol0Width; // twips
    RowHeights RowVisible;

    bool operator==(const ViewOptions&) const = default;
};

} // namespace orvane
