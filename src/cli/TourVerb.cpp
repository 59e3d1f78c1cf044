// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TourVerb.h"

#include "cli/DocumentPath.h"
#include "cli/MachineFile.h"
#include "cli/MessageText.h"
#include "run/TourText.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

class TourWriter {
  public:
    TourWriter(const Arguments& arguments, const TestFiles& files)
        : arguments_(arguments), name_(arguments.Documents.front()), files_(files) {}

    Outcome Do() {
        const std::shared_ptr<const FsmDocument> machine = ReadMachine(files_, name_, outcome_);
        if (machine == nullptr || !CanBeRun(*machine, name_, outcome_))
            return std::move(outcome_);
        const TourArguments& asked = arguments_.Touring;
        const run::Tour tour = run::MakeTour(*machine, {asked.EmptyCells, asked.Together, asked.MostSteps});
        Tell(tour, *machine);
        const std::string text = run::TourFile(tour, MachineTold());
        if (ToStandardOutput())
            outcome_.Output = text;
        else
            files_.WriteTests(*arguments_.Output, text, outcome_);
        return std::move(outcome_);
    }

  private:
    bool ToStandardOutput() const { return !arguments_.Output || *arguments_.Output == kStandardOutput; }

    // Tests beside their document and of its name need not say whose they are.
    std::optional<std::string> MachineTold() const {
        const std::filesystem::path document = FullPath(name_);
        const std::filesystem::path tests =
            ToStandardOutput() ? document.parent_path() / "-" : FullPath(*arguments_.Output);
        if (DocumentOf(Utf8(tests), std::nullopt) == Utf8(document))
            return std::nullopt;
        const std::filesystem::path way = document.lexically_relative(tests.parent_path());
        return PortableText(way.empty() ? document : way); // no way leads to another drive
    }

    void Tell(const run::Tour& tour, const FsmDocument& machine) {
        for (const std::string& line : run::TourGaps(tour, machine))
            Line(line);
        if (tour.StepsRanOut)
            Line("the tests end after " +
                 NumberText(static_cast<std::int64_t>(arguments_.Touring.MostSteps)) +
                 " steps; --limit allows more");
        Line(run::TourSummary(tour));
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
