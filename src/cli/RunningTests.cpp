// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/RunningTests.h"

#include "cli/TestReports.h"

#include <utility>

namespace orvane::cli {

RunningTests::RunningTests(std::string junit, const TestFiles& files, const std::vector<std::string>& names)
    : junit_(std::move(junit)), files_(files) {
    for (const std::string& name : names) {
        TestedFile& file = tested_.emplace_back();
        file.Name = name;
        file.Tests.push_back(
            {"", 1, 1, run::Verdict::Error, "the run was broken off before this file was done", {}});
    }
}

void RunningTests::Add(std::size_t index, const TestedFile& tested) {
    const std::lock_guard lock(mutex_);
    tested_[index] = tested;
}

void RunningTests::End() {
    const std::lock_guard lock(mutex_);
    ended_ = true;
}

void RunningTests::WriteBrokenOff() {
    const std::lock_guard lock(mutex_);
    if (std::exchange(ended_, true))
        return;
    Outcome nobodyHears;
    files_.WriteReport(junit_, JUnitXml(tested_), nobodyHears);
}

} // namespace orvane::cli
