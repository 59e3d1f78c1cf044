// SPDX-License-Identifier: GPL-3.0-or-later
// Which commands are possible, and which carry a check mark.
#pragma once

#include "session/Commands.h"

namespace orvane {

class Session;

bool IsPossible(const Session& session, const CommandEntry& entry);

// Of a toggle.
bool IsChecked(const Session& session, Command toggle);

} // namespace orvane
