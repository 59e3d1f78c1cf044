// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/SarifLog.h"
#include "files/UnfinishedFiles.h"

namespace orvane::cli {

// What stands behind the reports on all documents.
struct LastWord {
    std::string Output;
    SarifPart Log;
};

// Does what generate, check or format is asked to do with all documents, prints what there is to tell, and
// returns the exit status.
int RunOnDocuments(const Arguments& arguments, FileSystem& files, UnfinishedFiles& unfinished,
                   const std::string& bannerDate, const LastWord& lastWord = {});

} // namespace orvane::cli
