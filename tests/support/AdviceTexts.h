// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Advice.h"
#include "support/SmallTable.h"

#include <string>
#include <vector>

namespace orvane::test {

// "KIND state row: message"
inline std::vector<std::string> AdviceTexts(const std::vector<run::Advice>& list) {
    std::vector<std::string> told;
    for (const run::Advice& advice : list)
        told.push_back(std::string(AdviceKindName(advice.Kind)) + " " +
                       std::to_string(advice.Place.State.Number()) + " " +
                       std::to_string(advice.Place.Row.Number()) + ": " + advice.Message);
    return told;
}

// 1:Idle and 2:Run lead to each other, with events of different tests: nothing to be said.
inline SmallTable SoundTable() {
    SmallTable table;
    table.Name(1, "Idle").Cell(1, 6, 2).Name(2, "Run").Cell(2, 7, 1);
    for (const int row : {6, 7, 8, 9})
        table.Document().Event(row).Code = ";test " + std::to_string(row);
    return table;
}

} // namespace orvane::test
