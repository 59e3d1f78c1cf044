// SPDX-License-Identifier: GPL-3.0-or-later
// What the program does with one document.
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"

#include "files/UnfinishedFiles.h"

#include <cstddef>
#include <optional>
#include <string>

namespace orvane::cli {

// Two documents whose programs would be the same file, as wrong usage. The same document named twice is none.
std::optional<Outcome> ProgramClash(const Arguments& arguments);

// What all documents of a run share.
struct Run {
    const Arguments& Asked;
    std::string BannerDate; // in the programs' first lines
    FileSystem& Files;
    UnfinishedFiles& Unfinished;
};

// Does what the verb says with the document of that index. Never throws; safe to call for several documents
// at a time.
Outcome RunVerb(const Run& run, std::size_t index) noexcept;

} // namespace orvane::cli
