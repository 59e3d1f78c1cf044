// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/RunningTests.h"
#include "files/UnfinishedFiles.h"

#include <memory>

namespace orvane::cli {

// From now on, when the program is told to end (Ctrl+C, a closed terminal, kill), the temporary files are
// removed first; then it ends as it would have. To be called before any thread is started. Where nobody can
// wait for the signals, everything stays as it is.
void RemoveWhenTold(std::shared_ptr<UnfinishedFiles> unfinished);

// From now on the report of these tests is written before that.
void ReportWhenTold(std::shared_ptr<RunningTests> tests);

} // namespace orvane::cli
