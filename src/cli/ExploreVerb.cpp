// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ExploreVerb.h"

#include "cli/DocumentPath.h"
#include "cli/JsonReport.h"
#include "cli/MachineFile.h"
#include "cli/MessageText.h"
#include "run/Advice.h"
#include "run/NameBook.h"
#include "run/ShortestTest.h"
#include "run/TestReader.h"
#include "run/TestWriter.h"
#include "text/AnsiText.h"
#include "text/JsonString.h"

namespace orvane::cli {

namespace {

// A state as it is written in a test, where quotes may be left out.
run::TestName NameFrom(const std::string& argument) {
    const run::TestReadResult read = run::ReadTestFile("test t\n=> " + argument);
    if (read.Slips.empty() && read.File.Lines.size() == 2) {
        const auto* step = std::get_if<run::TestStep>(&read.File.Lines.back().What);
        if (step != nullptr && step->Expect && step->Expect->Way.size() == 1 && step->Expect->Checks.empty())
            return step->Expect->Way.front();
    }
    return run::NameOf(argument);
}

// A way is to be read and played; what else was there is for tests.
void KeepWayOnly(run::TestFile& file) {
    std::erase_if(file.Lines, [](const run::TestLine& line) {
        return std::holds_alternative<run::NamesHead>(line.What) ||
               std::holds_alternative<std::monostate>(line.What);
    });
    for (run::TestLine& line : file.Lines) {
        auto* step = std::get_if<run::TestStep>(&line.What);
        if (step != nullptr && step->Expect)
            std::erase_if(step->Expect->Checks, [](const run::TestCheck& check) {
                return check.What != run::Check::Via && check.What != run::Check::Stays;
            });
    }
}

class Explorer {
  public:
    Explorer(const Arguments& arguments, const TestFiles& files)
        : name_(arguments.Documents.front()), asked_(arguments.Exploring), files_(files) {}

    Outcome Do() {
        machine_ = ReadMachine(files_, name_, outcome_);
        if (machine_ == nullptr)
            return std::move(outcome_);
        if (asked_.To)
            TellWay();
        else
            TellAdvice();
        return std::move(outcome_);
    }

  private:
    void TellAdvice() {
        const bool canBeRun = CanBeRun(*machine_, name_, outcome_);
        const run::AdviceResult advice = run::AdviceOn(*machine_);
        if (asked_.Json)
            outcome_.Output =
                "{\"version\":1,\"complete\":" + std::string(advice.Complete && canBeRun ? "true" : "false") +
                ",\"findings\":" + JsonOfAdvice(advice.List) + "}\n";
        for (const run::Advice& each : advice.List) {
            outcome_.Raise(kDesignError);
            if (!asked_.Json)
                outcome_.Output +=
                    std::string(AdviceKindName(each.Kind)) + ": " + ShownName(ToUtf8(each.Message)) + "\n";
        }
        if (!advice.Complete)
            TellTooLarge();
    }

    void TellWay() {
        if (!CanBeRun(*machine_, name_, outcome_))
            return;
        run::NameBook names(*machine_, Utf8(PathOf(name_).filename()));
        run::WayWanted wanted;
        if (asked_.From)
            wanted.From = names.State(NameFrom(*asked_.From));
        const std::optional<StateNumber> to = names.State(NameFrom(*asked_.To));
        for (const run::TestMessage& slip : names.Slips()) {
            outcome_.Errors += "orvanec: " + ShownName(slip.Text) + "\n";
            outcome_.Raise(kFileError);
        }
        if (!names.Slips().empty() || !to)
            return;
        wanted.To = *to;
        run::ShortestTestResult found = run::ShortestTest(*machine_, wanted);
        if (found.Test)
            KeepWayOnly(*found.Test);
        TellWay(found);
    }

    void TellWay(const run::ShortestTestResult& found) {
        const std::string steps = found.Test ? run::WriteTestFile(*found.Test) : "";
        if (asked_.Json)
            outcome_.Output =
                "{\"version\":1,\"way\":" + (found.Test ? JsonString(steps) : std::string("null")) + "}\n";
        else
            outcome_.Output = steps;
        if (found.Test)
            return;
        outcome_.Raise(kDesignError);
        if (!found.Complete)
            return TellTooLarge();
        const std::string from = asked_.From ? *asked_.From : "where power comes on";
        outcome_.Errors += ShownName(name_) + ": no way leads from " + ShownName(from) + " to " +
                           ShownName(*asked_.To) + "\n";
    }

    void TellTooLarge() {
        outcome_.Raise(kDesignError);
        outcome_.Errors += ShownName(name_) +
                           ": the machine can be in too many places, because several of its timers run at "
                           "the same time; what is told holds, but not all could be looked at\n";
    }

    const std::string& name_;
    const ExploreArguments& asked_;
    const TestFiles& files_;
    std::shared_ptr<const FsmDocument> machine_;
    Outcome outcome_;
};

} // namespace

Outcome RunExplore(const Arguments& arguments, const TestFiles& files) {
    return Explorer(arguments, files).Do();
}

} // namespace orvane::cli
