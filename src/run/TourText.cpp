// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TourText.h"

#include "codegen/DesignChecks.h"
#include "run/StepCheck.h"
#include "run/TestWriter.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::run {

namespace {

std::string OutOf(const CoverageCount& count, const char* what) {
    return NumberText(static_cast<std::int64_t>(count.Taken)) + " of " +
           NumberText(static_cast<std::int64_t>(count.All)) + " " + what;
}

} // namespace

std::string TourFile(const Tour& tour, const std::optional<std::string>& machine) {
    TestFile file;
    file.Lines.emplace_back().Comment =
        " Written by orvanec tour: what the machine did then. " + OutOf(tour.Transitions, "transitions");
    if (machine)
        file.Lines.emplace_back().What = MachineHead{NameOf(*machine)};
    file.Lines.insert(file.Lines.end(), tour.Tests.Lines.begin(), tour.Tests.Lines.end());
    return WriteTestFile(file);
}

std::vector<std::string> TourGaps(const Tour& tour, const FsmDocument& document) {
    std::vector<std::string> lines;
    for (const Cell cell : tour.NeverTaken)
        lines.push_back("no test takes " + ToUtf8(StateTitle(document, cell.State)) + " by " +
                        RowText(document, cell.Row));
    if (!tour.Complete)
        lines.emplace_back("the machine can be in too many places, because several of its timers run at the "
                           "same time; the tests leave out what was not looked at");
    return lines;
}

std::string TourSummary(const Tour& tour) {
    std::string covered = OutOf(tour.Transitions, "transitions");
    if (tour.Asked.EmptyCells)
        covered += ", " + OutOf(tour.EmptyCells, "empty cells");
    if (tour.Asked.Together)
        covered += ", " + OutOf(tour.Pairs, "neighbouring events together");
    return covered + " in " + NumberText(static_cast<std::int64_t>(tour.Steps)) + " steps";
}

} // namespace orvane::run
