// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellColour.h"

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

Colour CellColour(Cell cell) {
    return cell.State == kNoState ? RowHeadColour(cell.Row) : StateColumnColour(cell.Row);
}

} // namespace orvane
