// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/RunStep.h"
#include "support/SmallTable.h"

namespace orvane::test {

// 1:Idle starts 2:Run by row 6 "Start"; Run stops by row 7 "Stop" with an action, or by itself after 100
// units.
inline SmallTable PumpTable() {
    SmallTable table;
    table.Name(1, "Idle", ";idle entry").Cell(1, 6, 2);
    table.Name(2, "Run", ";run  entry\r\n\tOn\tMotor").Timing(2, kStartConstant, "100");
    table.Cell(2, 4, 1).Cell(2, 7, 1, ";stop action");
    table.Document().Event(6).Name = "Start";
    table.Document().Event(7).Name = "Stop";
    return table;
}

constexpr run::RunStep kPowerOn{0, run::RunAct::PowerOn};
inline const std::uint64_t kStart = run::BitOf(6);
inline const std::uint64_t kStop = run::BitOf(7);

} // namespace orvane::test
