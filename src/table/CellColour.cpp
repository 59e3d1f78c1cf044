// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellColour.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr Colour kEntryActionColour{204, 255, 204};
constexpr Colour kExitActionColour{255, 204, 153};
constexpr Colour kEventAndActionColour{255, 221, 178};

Colour RowHeadColour(RowNumber row) {
    switch (row.Number()) {
    case kHeadRow:
        return kPlainCellColour;
    case kEntryActionRow:
        return kEventAndActionColour;
    case kExitActionRow:
        return kExitActionColour;
    case kTimingModeRow:
    case kTimeoutRow:
        return kTimeoutColour;
    case kElseRow:
        return kElseColour;
    default:
        return kEventColour;
    }
}

Colour StateColumnColour(RowNumber row) {
    switch (row.Number()) {
    case kHeadRow:
        return kStateHeadColour;
    case kEntryActionRow:
        return kEntryActionColour;
    case kExitActionRow:
        return kExitActionColour;
    case kTimingModeRow:
        return kTimeoutColour;
    default:
        return kPlainCellColour;
    }
}

} // namespace

// A pastel is white with something taken away; the same is put upon a dark grey here, less bright.
Colour OnDark(Colour light) {
    constexpr int kGround = 30;
    constexpr int kPercent = 70;
    const int grey = std::min({light.Red, light.Green, light.Blue});
    const auto shade = [grey](std::uint8_t part) {
        return static_cast<std::uint8_t>(kGround + (part - grey) * kPercent / 100);
    };
    return {shade(light.Red), shade(light.Green), shade(light.Blue)};
}

bool TakesBlackText(Colour ground) {
    constexpr int kRed = 299; // how bright each part looks, in thousandths
    constexpr int kGreen = 587;
    constexpr int kBlue = 114;
    return ground.Red * kRed + ground.Green * kGreen + ground.Blue * kBlue > 128 * 1000;
}

Colour CellColour(Cell cell) {
    return cell.State == kNoState ? RowHeadColour(cell.Row) : StateColumnColour(cell.Row);
}

} // namespace orvane
