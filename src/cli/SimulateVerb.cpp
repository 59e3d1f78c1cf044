// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SimulateVerb.h"

#include "cli/DocumentPath.h"
#include "cli/MachineFile.h"
#include "cli/MessageText.h"
#include "cli/StandardStreams.h"
#include "run/NearestName.h"
#include "run/Simulation.h"
#include "run/TestReader.h"
#include "run/TraceCsv.h"
#include "run/TraceText.h"
#include "run/TraceVcd.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::cli {

namespace {

// Steps alone are a test, too, when they come through a pipe.
constexpr std::string_view kTestOfSteps = "test standard input\n";

bool HasTestHead(const run::TestFile& file) {
    return std::any_of(file.Lines.begin(), file.Lines.end(), [](const run::TestLine& line) {
        return std::holds_alternative<run::TestHead>(line.What);
    });
}

class Simulation {
  public:
    Simulation(const Arguments& arguments, const TestFiles& files)
        : document_(arguments.Documents.front()), asked_(arguments.Simulating), files_(files) {}

    Outcome Do() {
        machine_ = ReadMachine(files_, document_, outcome_);
        if (machine_ == nullptr || !CanBeRun(*machine_, document_, outcome_))
            return std::move(outcome_);
        if (!asked_.Tests)
            PrintPowerOn();
        else if (ReadTests() && Plan())
            RunChosen();
        return std::move(outcome_);
    }

  private:
    bool FromStandardInput() const { return asked_.Tests == "-"; }
    void PrintPowerOn() {
        const run::Machine machine(*machine_);
        Print(run::SimulatePowerOn(*machine_, machine), machine);
    }
    std::string TestsName() const { return FromStandardInput() ? "standard input" : *asked_.Tests; }

    bool ReadTests() {
        const std::optional<std::string> bytes =
            FromStandardInput() ? ReadStandardInput(outcome_) : files_.BytesOf(*asked_.Tests, outcome_);
        if (!bytes)
            return false;
        run::TestReadResult read = run::ReadTestFile(*bytes);
        if (FromStandardInput() && !HasTestHead(read.File)) {
            linesBefore_ = 1;
            read = run::ReadTestFile(std::string(kTestOfSteps) + *bytes);
        }
        file_ = std::move(read.File);
        return TellSlips(read.Slips);
    }

    bool Plan() {
        plan_ = run::PlanTests(file_, *machine_, Utf8(PathOf(document_).filename()));
        return TellSlips(plan_.Slips);
    }

    void RunChosen() {
        const std::vector<const run::PlannedTest*> chosen = Chosen();
        if ((asked_.Csv || asked_.Vcd) && chosen.size() > 1) {
            const Outcome wrong =
                WrongUsage("--csv and --vcd take one run; name one of the " + std::to_string(chosen.size()) +
                           " tests in " + ShownName(TestsName()));
            outcome_.Errors += wrong.Errors;
            return outcome_.Raise(wrong.Status);
        }
        const run::Readings readings{plan_.AfterLimit.value_or(false),
                                     plan_.UnstartedExpired.value_or(false)};
        const run::Machine machine(*machine_, plan_.Given, readings);
        for (const run::PlannedTest* test : chosen) {
            if (chosen.size() > 1)
                outcome_.Output +=
                    (test == chosen.front() ? "test " : "\ntest ") + ShownName(test->Name) + "\n";
            Print(run::Simulate(*machine_, machine, plan_, *test), machine);
        }
    }

    // The test of that name, else all with it in their names.
    std::vector<const run::PlannedTest*> Chosen() {
        std::vector<const run::PlannedTest*> chosen;
        std::vector<std::string> names;
        for (const run::PlannedTest& test : plan_.Tests) {
            if (test.Name == asked_.Test)
                return {&test};
            if (test.Name.find(asked_.Test) != std::string::npos)
                chosen.push_back(&test);
            names.push_back(test.Name);
        }
        if (chosen.empty()) {
            outcome_.Errors +=
                FailureLine(TestsName(), names.empty() ? "holds no test"
                                                       : "holds no test \"" + ShownName(asked_.Test) + "\"" +
                                                             ShownName(run::DidYouMean(asked_.Test, names)));
            outcome_.Raise(kFileError);
        }
        return chosen;
    }

    void Print(const run::Simulation& simulation, const run::Machine& machine) {
        auto failure = simulation.Failures.begin();
        const run::TraceRow* before = nullptr;
        std::size_t count = 0;
        const auto tellFailures = [&] {
            for (; failure != simulation.Failures.end() && failure->Row <= count; ++failure)
                Tell(*failure);
        };
        for (const run::TraceRow& row : simulation.Trace.Rows) {
            tellFailures();
            outcome_.Output += ShownName(run::TraceLine(simulation.Trace, row, before, *machine_)) + "\n";
            before = &row;
            ++count;
        }
        tellFailures();
        if (asked_.Csv)
            files_.WriteReport(*asked_.Csv, run::TraceCsv(simulation.Trace, *machine_, machine), outcome_);
        if (asked_.Vcd)
            files_.WriteReport(*asked_.Vcd, run::TraceVcd(simulation.Trace, *machine_, machine), outcome_);
    }

    // What fails stands among the lines of the run; what the test does not say is an error in its file.
    void Tell(const run::Simulation::Failure& failure) {
        const bool error = failure.Is == run::Verdict::Error;
        outcome_.Raise(error ? kFileError : kDesignError);
        (error ? outcome_.Errors : outcome_.Output) +=
            PlaceText(failure.At) + (error ? "error: " : "failed: ") + ShownName(failure.Text) + "\n";
    }

    bool TellSlips(const std::vector<run::TestMessage>& slips) {
        for (const run::TestMessage& slip : slips) {
            outcome_.Errors += PlaceText(slip.At) + "error: " + ShownName(slip.Text) + "\n";
            outcome_.Raise(kFileError);
        }
        return slips.empty();
    }

    std::string PlaceText(run::Place at) const {
        if (at.Line == 0)
            return ShownName(document_) + ": ";
        return ShownName(TestsName()) + ":" + std::to_string(at.Line - linesBefore_) + ":" +
               std::to_string(at.Column) + ": ";
    }

    const std::string& document_;
    const SimulateArguments& asked_;
    const TestFiles& files_;
    std::shared_ptr<const FsmDocument> machine_;
    run::TestFile file_;
    run::TestPlan plan_;
    std::size_t linesBefore_ = 0; // of ours, in front of the file
    Outcome outcome_;
};

} // namespace

Outcome RunSimulate(const Arguments& arguments, const TestFiles& files) {
    return Simulation(arguments, files).Do();
}

} // namespace orvane::cli
