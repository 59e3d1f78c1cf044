// SPDX-License-Identifier: GPL-3.0-or-later
// What the program does with one document.
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"

#include <cstddef>
#include <optional>
#include <string>

namespace orvane::cli {

// Two documents whose programs would be the same file, as wrong usage. The same document named twice is none.
std::optional<Outcome> ProgramClash(const Arguments& arguments);

// Does what the verb says with the document of that index. Never throws; safe to call for several documents
// at a time. `bannerDate` is the date in the programs' first lines.
Outcome RunVerb(const Arguments& arguments, const std::string& bannerDate, std::size_t index) noexcept;

} // namespace orvane::cli
