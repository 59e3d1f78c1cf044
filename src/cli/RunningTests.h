// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/TestFiles.h"
#include "cli/TestedFile.h"

#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cli {

// The results of a run of tests while it goes on, so that a run that is broken off leaves a report, too: a
// server that ends a job shows what was tested by then. For several threads at a time.
class RunningTests {
  public:
    // The report goes into that file; the test files have these names. `files` must outlive this.
    RunningTests(std::string junit, const TestFiles& files, const std::vector<std::string>& names);

    void Add(std::size_t index, const TestedFile& tested);

    // From now on the run has a report of its own. Waits for one that is being written.
    void End();

    // Writes what there is; files that are not done are errors. Nothing once the run has ended.
    void WriteBrokenOff();

  private:
    const std::string junit_;
    const TestFiles& files_;
    std::mutex mutex_;
    std::vector<TestedFile> tested_;
    bool ended_ = false;
};

} // namespace orvane::cli
