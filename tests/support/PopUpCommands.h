// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the pop-up menus that change the table or fill its clipboard, for tests that try each of
// them: one that is new in the catalogue and not in such a test does not compile.
#pragma once

#include "session/Commands.h"

#include <algorithm>

namespace orvane::test {

// What is in these menus and does neither, or asks first: it has tests of its own.
inline constexpr auto kCommandsThatShow = std::to_array(
    {Command::SetCurrentState, Command::Backtrack, Command::EditAction, Command::StateUses,
     Command::RenameState, Command::MoveState, Command::EventUses, Command::RenameEvent, Command::MoveEvent});

constexpr bool ChangesTheTable(const CommandEntry& entry) {
    const bool isCommand =
        entry.Kind == EntryKind::Item || entry.Kind == EntryKind::Toggle || entry.Kind == EntryKind::SubItem;
    return isCommand &&
           std::find(kCommandsThatShow.begin(), kCommandsThatShow.end(), entry.Id) == kCommandsThatShow.end();
}

// Whether each of them is tried, as the function says of a command.
template <typename IsTried>
constexpr bool EachPopUpCommandIsTried(IsTried isTried) {
    bool popsUp = false;
    for (const CommandEntry& entry : kCommands) {
        if (entry.Kind == EntryKind::BarMenu || entry.Kind == EntryKind::PopUpMenu)
            popsUp = entry.Kind == EntryKind::PopUpMenu;
        if (popsUp && ChangesTheTable(entry) && !isTried(entry.Id))
            return false;
    }
    return true;
}

} // namespace orvane::test
