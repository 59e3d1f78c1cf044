// SPDX-License-Identifier: GPL-3.0-or-later
// The recovery folder as the user is shown it.
#pragma once

#include "recovery/WorkRow.h"
#include "session/RecoveryFolder.h"

#include <string>
#include <vector>

namespace orvane {

struct WorkItem {
    std::string Name; // of its journal in the folder
    WorkRow Row;
};

struct WorkList {
    std::vector<WorkItem> Left;      // by windows that did not end in order; the one changed last comes first
    std::vector<WorkItem> Discarded; // likewise, lately and by the user
};

// Looks at every journal and at the file of its document.
WorkList ListWork(FileSystem& files, const RecoveryFolder& folder);

// In the time of the user's clock.
LocalMinute LocalTimeOf(JournalTime time);

} // namespace orvane
