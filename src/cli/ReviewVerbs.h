// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "files/FileSystem.h"

namespace orvane::cli {

// Does what a verb about several versions of a document says. Never throws.
Outcome RunReviewVerb(const Arguments& arguments, FileSystem& files) noexcept;

} // namespace orvane::cli
