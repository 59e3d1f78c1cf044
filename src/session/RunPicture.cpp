// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/RunPicture.h"

#include "text/NumberText.h"

namespace orvane {

namespace {

bool Has(std::uint64_t rows, RowNumber row) { return (rows >> row.Number() & 1U) != 0; }

// The multiplication sign of document text tells a count from a number that is part of a target.
std::string CountText(std::uint32_t count) { return NumberText(std::int64_t{count}) + "\xD7"; }

} // namespace

RunMark MarkOf(const RunPicture& picture, Cell cell, bool leadsSomewhere) {
    RunMark mark;
    if (cell.State == kNoState) {
        mark.TrueInput = cell.Row >= kFirstEventRow && Has(picture.TrueInputs, cell.Row);
        return mark;
    }
    const bool present = cell.State == picture.State;
    mark.Takeable = present && Has(picture.Takeable, cell.Row);
    mark.Next = mark.Takeable && cell.Row == picture.Next;
    mark.Last = picture.Last == cell;
    if (present && cell.Row == RowNumber(kTimingModeRow))
        mark.Note = picture.Countdown;
    else if (leadsSomewhere && !picture.Counts.empty())
        mark.Note = CountText(picture.Counts[IndexIn(TableColumns(), cell.State) * kTableRows +
                                             IndexIn(TableRows(), cell.Row)]);
    return mark;
}

} // namespace orvane
