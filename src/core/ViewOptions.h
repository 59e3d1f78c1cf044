// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Length.h"

namespace orvane {

inline constexpr Twips kDefaultCol0Width = 1890;

// Heights of the rows that can be hidden; 0 hides the row.
struct RowHeights {
    Twips Else = 0;
    Twips ExitAction = 0;
    Twips TimingMode = 0;
    Twips TimeTarget = 0;

    bool operator==(const RowHeights&) const = default;
};

// How the document is shown and whether it is generated for multitasking. Stored with the document, but not
// part of its undo images.
struct ViewOptions {
    bool Polytask = false; // generate for cooperative multitasking
    bool ShowTimeTarget = false;
    bool ShowTimingMode = false;
    bool ShowElse = false;
    Twips Col0Width = kDefaultCol0Width;
    RowHeights RowVisible;

    bool operator==(const ViewOptions&) const = default;
};

} // namespace orvane
