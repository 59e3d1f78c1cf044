// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TestVerb.h"

#include "cli/EndingSignals.h"
#include "cli/FileTester.h"
#include "cli/MessageText.h"
#include "cli/OrderedWork.h"
#include "cli/StandardStreams.h"
#include "cli/TestReports.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::cli {

namespace {

// The documents that too little was seen of.
void CheckCoverage(const std::vector<CoveredDocument>& covered, const TestArguments& asked,
                   Outcome& outcome) {
    for (const CoveredDocument& document : covered) {
        const std::size_t percent = Percent(document.Seen.Transitions());
        if (!asked.LeastCovered || percent >= *asked.LeastCovered)
            continue;
        outcome.Errors += ShownName(document.Name) + ": " + NumberText(percent) +
                          " % of the transitions were taken, " + NumberText(*asked.LeastCovered) +
                          " % are wanted\n";
        outcome.Raise(kDesignError);
    }
}

Outcome Summary(const std::vector<TestedFile>& tested, const TestArguments& asked, const TestFiles& files) {
    Outcome outcome;
    const TestCounts counts = CountTests(tested);
    const std::vector<CoveredDocument> covered = CoveredDocuments(tested);
    if (asked.JUnit)
        files.WriteReport(*asked.JUnit, JUnitXml(tested), outcome);
    if (asked.Markdown)
        files.WriteReport(*asked.Markdown, MarkdownReport(tested, covered), outcome);
    if (asked.List)
        return outcome;
    CheckCoverage(covered, asked, outcome);
    if (asked.Json)
        outcome.Output = JsonOfRun(counts, covered);
    else
        outcome.Output = CoverageText(covered, asked.Coverage) + NumberText(counts.Passed) + " passed, " +
                         NumberText(counts.Failed) + " failed\n";
    return outcome;
}

} // namespace

int RunTests(const Arguments& arguments, const TestFiles& files) {
    const TestArguments& asked = arguments.Testing;
    Outcome found;
    const std::vector<std::string> names = TestFilesOf(arguments.Documents, found);
    int status = Deliver(found);
    std::vector<TestedFile> tested(names.size());
    const auto running = std::make_shared<RunningTests>(asked.JUnit.value_or(""), files, names);
    if (asked.JUnit && !asked.List)
        ReportWhenTold(running);
    const auto work = [&](std::size_t index) {
        Outcome outcome;
        tested[index] = TestOneFile(names[index], asked, files, outcome);
        running->Add(index, tested[index]);
        for (const TestedTest& test : tested[index].Tests)
            outcome.Output += asked.Json ? JsonOfTest(tested[index], test) : "";
        return outcome;
    };
    if (!names.empty())
        WorkInOrder(
            names.size(), work, [&](const Outcome& outcome) { status = std::max(status, Deliver(outcome)); },
            asked.Jobs);
    running->End();
    return std::max(status, Deliver(Summary(tested, asked, files)));
}

} // namespace orvane::cli
