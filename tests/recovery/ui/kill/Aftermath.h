// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recovery/ui/kill/Reports.h"
#include "session/RecoveryFolder.h"

#include <string>

namespace orvane {

// What a killed window has left on the disk, against what it had told before.
struct Aftermath {
    int Offers = 0;    // pieces of work that can be recovered
    std::string Image; // of the one that holds what was committed: it may have one step more
    std::string Loss;  // what is missing, in words; empty when nothing is
};

// The last report says what was committed and what was being done at the kill. That may be there already, or
// not yet: then the committed image is the step before, or the one behind.
Aftermath LookAfter(FileSystem& files, const FileSystem::Path& recovery, const FileSystem::Path& document,
                    const Report& last);

} // namespace orvane
