// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TourVerb.h"

#include "cli/DocumentPath.h"
#include "cli/MachineFile.h"
#include "cli/MessageText.h"
#include "codegen/DesignChecks.h"
#include "run/StepCheck.h"
#include "run/TestWriter.h"
#include "run/Tour.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

std::string Number(std::size_t number) { return NumberText(static_cast<std::int64_t>(number)); }

std::string OutOf(const run::CoverageCount& count, const char* what) {
    return Number(count.Taken) + " of " + Number(count.All) + " " + what;
}

class TourWriter {
  public:
    TourWriter(const Arguments& arguments, const TestFiles& files)
        : arguments_(arguments), name_(arguments.Documents.front()), files_(files) {}

    Outcome Do() {
        const std::shared_ptr<const FsmDocument> machine = ReadMachine(files_, name_, outcome_);
        if (machine == nullptr || !CanBeRun(*machine, name_, outcome_))
            return std::move(outcome_);
        const TourArguments& asked = arguments_.Touring;
        run::Tour tour = run::MakeTour(*machine, {asked.EmptyCells, asked.Together, asked.MostSteps});
        Tell(tour, *machine);
        AddHead(tour);
        const std::string text = run::WriteTestFile(tour.Tests);
        if (ToStandardOutput())
            outcome_.Output = text;
        else
            files_.WriteTests(*arguments_.Output, text, outcome_);
        return std::move(outcome_);
    }

  private:
    bool ToStandardOutput() const { return !arguments_.Output || *arguments_.Output == kStandardOutput; }

    // Tests beside their document and of its name need not say whose they are.
    void AddHead(run::Tour& tour) const {
        std::vector<run::TestLine> heads;
        run::TestLine note;
        note.Comment =
            " Written by orvanec tour: what the machine did then. " + OutOf(tour.Transitions, "transitions");
        heads.push_back(note);
        const std::filesystem::path document = FullPath(name_);
        const std::filesystem::path tests =
            ToStandardOutput() ? document.parent_path() / "-" : FullPath(*arguments_.Output);
        if (DocumentOf(Utf8(tests), std::nullopt) != Utf8(document)) {
            run::TestLine machine;
            machine.What =
                run::MachineHead{run::NameOf(Utf8(document.lexically_relative(tests.parent_path())))};
            heads.push_back(machine);
        }
        tour.Tests.Lines.insert(tour.Tests.Lines.begin(), heads.begin(), heads.end());
    }

    void Tell(const run::Tour& tour, const FsmDocument& machine) {
        for (const Cell cell : tour.NeverTaken)
            Line("no test takes " + ToUtf8(StateTitle(machine, cell.State)) + " by " +
                 run::RowText(machine, cell.Row));
        if (!tour.Complete)
            Line("the machine can be in too many places, because several of its timers run at the same "
                 "time; the tests leave out what was not looked at");
        if (tour.StepsRanOut)
            Line("the tests end after " + Number(arguments_.Touring.MostSteps) +
                 " steps; --limit allows more");
        std::string covered = OutOf(tour.Transitions, "transitions");
        if (arguments_.Touring.EmptyCells)
            covered += ", " + OutOf(tour.EmptyCells, "empty cells");
        if (arguments_.Touring.Together)
            covered += ", " + OutOf(tour.Pairs, "neighbouring events together");
        Line(covered + " in " + Number(tour.Steps) + " steps");
    }

    void Line(const std::string& text) {
        outcome_.Errors += ShownName(name_) + ": " + ShownName(text) + "\n";
    }

    const Arguments& arguments_;
    const std::string& name_;
    const TestFiles& files_;
    Outcome outcome_;
};

} // namespace

Outcome RunTour(const Arguments& arguments, const TestFiles& files) {
    return TourWriter(arguments, files).Do();
}

} // namespace orvane::cli
