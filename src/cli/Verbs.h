// SPDX-License-Identifier: GPL-3.0-or-later
// What the program does with one document when it builds.
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/SarifLog.h"

#include "files/UnfinishedFiles.h"

#include <cstddef>
#include <string>

namespace orvane::cli {

// What all documents of a run share.
struct Run {
    const Arguments& Asked;
    std::string BannerDate; // in the programs' first lines
    FileSystem& Files;
    UnfinishedFiles& Unfinished;
};

// What a document adds to the files of the run as a whole.
struct Share {
    SarifPart Log;
    std::string DependencyRule; // empty when there is no program
};

// Does what the verb says with the document of that index. Never throws; safe to call for several documents
// at a time.
Outcome RunVerb(const Run& run, std::size_t index, Share& share) noexcept;

} // namespace orvane::cli
