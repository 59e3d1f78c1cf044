// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a run of tests in the forms that other programs and people read.
#pragma once

#include "cli/TestedFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::cli {

struct TestCounts {
    std::size_t Passed = 0;
    std::size_t Failed = 0;
    std::size_t Errors = 0; // tests, or slips, that could not be understood
};

TestCounts CountTests(const std::vector<TestedFile>& files);

// What was seen of one document by all the files that test it.
struct CoveredDocument {
    std::string Name;
    std::shared_ptr<const FsmDocument> Machine;
    run::Coverage Seen;
};

// In the order in which the documents come first.
std::vector<CoveredDocument> CoveredDocuments(const std::vector<TestedFile>& files);

// One line: {"file":...,"line":...,"test":...,"verdict":...,"message":...,"notes":[{"line":...,"text":...}]}
std::string JsonOfTest(const TestedFile& file, const TestedTest& test);

// The last line:
// {"version":1,"passed":...,"failed":...,"errors":...,"coverage":{"states":{"taken":...,"all":...},...}}
std::string JsonOfRun(const TestCounts& counts, const std::vector<CoveredDocument>& covered);

std::string JUnitXml(const std::vector<TestedFile>& files);

std::string MarkdownReport(const std::vector<TestedFile>& files, const std::vector<CoveredDocument>& covered);

// What was seen of each document, one line each; with `missed` also what was not.
std::string CoverageText(const std::vector<CoveredDocument>& covered, bool missed);

} // namespace orvane::cli
