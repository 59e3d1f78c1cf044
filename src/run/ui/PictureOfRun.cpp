// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/PictureOfRun.h"

#include "run/Present.h"
#include "text/NumberText.h"

namespace orvane {

namespace {

std::optional<Cell> LastTaken(const run::History& past) {
    for (auto entry = past.Log().rbegin(); entry != past.Log().rend(); ++entry) {
        if (!entry->IsPowerOn() && !entry->Holds)
            return Cell{RowNumber(entry->Row), StateNumber(entry->From)};
    }
    return std::nullopt;
}

std::vector<std::uint32_t> CountsOf(const run::History& past) {
    std::vector<std::uint32_t> counts;
    for (const StateNumber state : TableColumns()) {
        for (const RowNumber row : TableRows())
            counts.push_back(past.Count({row, state}));
    }
    return counts;
}

} // namespace

RunPicture PictureOfRun(const run::LiveRun& run, bool withCounts) {
    RunPicture picture;
    const run::History* past = run.Past();
    if (past == nullptr)
        return picture;
    picture.TrueInputs = past->Now().Surroundings().Events;
    if (withCounts)
        picture.Counts = CountsOf(*past);
    picture.State = run.State();
    if (picture.State == kNoState)
        return picture;
    picture.Takeable = run::TakeableRows(*run.Built(), picture.State);
    picture.Next = run::NextRow(*run.Built(), past->Now());
    picture.Last = LastTaken(*past);
    if (const std::optional<run::Units> left = run::TimeLeft(past->Now()))
        picture.Countdown = NumberText(*left);
    return picture;
}

} // namespace orvane
