// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Length.h"
#include "core/RowArray.h"

#include <cstdint>
#include <string>

namespace orvane {

// One state of the machine: one column of the table. Texts are ANSI bytes with CR LF line ends.
//
// The cell of an event row is the pair Targets[row], Actions[row]; either may be there without the other.
struct StateRecord {
    std::string Name;
    std::string Tooltip;
    std::string EntryCode;
    std::string ExitCode;          // documentation only: never generated
    std::int32_t TimingMode = 0;   // 0 none, 1..4 see core/TimingMode.h; other values come from foreign files
    RowArray<StateNumber> Targets; // kNoState: no transition; else the state to go to, 1..100
    RowArray<std::string> Actions;
    std::string TimeConst;
    std::string TimingVar;
    std::string TimerId;
    Twips ColWidth = 0;
    std::int16_t LastTab = 0; // the tab of the state editor that was last shown

    bool operator==(const StateRecord&) const = default;
};

// What the document's images call absent: no text and no cell with a target or an action, and no timing mode.
// Widths and the last tab do not count.
bool IsEmpty(const StateRecord& state);

} // namespace orvane
