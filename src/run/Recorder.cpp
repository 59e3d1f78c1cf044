// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Recorder.h"

#include "run/Clock.h"
#include "run/NameBook.h"
#include "run/RecordedExpectation.h"
#include "run/TestPlan.h"
#include "run/TestReader.h"
#include "run/TestWalk.h"
#include "run/TestWriter.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <bit>
#include <set>
#include <utility>

namespace orvane::run {

namespace {

constexpr int kMostLooks = 1000; // at limits; a test that looks more often is read by nobody

TestTime TimeOf(Units units) { return {NumberText(units), TimeSuffix::None, {}}; }

// The lines of the test, with expectations that are filled in later. A machine goes with it, to know when
// timeouts come.
class StepWriter {
  public:
    StepWriter(const FsmDocument& document, const Machine& machine, bool atLimit)
        : names_(document, ""), machine_(machine), atLimit_(atLimit), clock_(machine) {}

    std::vector<TestStep> Run(std::span<const RunStep> steps) {
        Units passing = 0; // waits in a row are one: how often somebody pressed a key says nothing
        for (const RunStep& step : steps) {
            if (step.What == RunAct::Wait) {
                passing += step.Time();
                continue;
            }
            Wait(std::exchange(passing, 0));
            Write(step);
        }
        Wait(passing);
        if (waited_ > 0)
            EndLine();
        return std::move(lines_);
    }

  private:
    void Write(const RunStep& step) {
        switch (step.What) {
        case RunAct::PowerOn:
            clock_.PowerOn();
            hasPower_ = true;
            return EndLine();
        case RunAct::Inputs:
            Switch(step.Amount);
            break;
        case RunAct::Pulse:
            return Pulse(step.Amount);
        case RunAct::Limit:
            AddLimit(step);
            clock_.Surroundings().Limits[step.State] = step.Time();
            break;
        case RunAct::Wait:
            break;
        case RunAct::Scan:
            line_.Doings.emplace_back().What = Doing::Scan;
            line_.Doings.back().Count = int(step.Amount);
            clock_.Scan(int(step.Amount));
            return EndLine();
        }
        if (!hasPower_ || step.More)
            return;
        clock_.Settle();
        EndLine();
    }

    // A pulse of a test lets inputs come; where one goes for that scan, as an event that follows from signals
    // may, it is written as what it is: one scan, and everything as before.
    void Pulse(std::uint64_t events) {
        const std::uint64_t there = clock_.Surroundings().Events;
        if ((there & ~events) == 0) {
            AddEvents(Doing::Pulse, events & ~there);
            clock_.Pulse(events);
            return EndLine();
        }
        Switch(events);
        line_.Doings.emplace_back().What = Doing::Scan;
        line_.Doings.back().Count = 1;
        clock_.Scan(1);
        EndLine();
        Switch(there);
        clock_.Settle();
        EndLine();
    }

    void Switch(std::uint64_t events) {
        std::uint64_t& there = clock_.Surroundings().Events;
        AddEvents(Doing::Off, there & ~events);
        AddEvents(Doing::On, events & ~there);
        there = events;
    }

    void AddLimit(const RunStep& step) {
        TestDoing doing;
        doing.What = Doing::Limit;
        doing.State = names_.NameOfState(int(step.State));
        doing.Limit = TimeOf(step.Time());
        line_.Doings.push_back(std::move(doing));
    }

    void AddEvents(Doing what, std::uint64_t events) {
        TestDoing doing;
        doing.What = what;
        for (; events != 0; events &= events - 1)
            doing.Inputs.push_back(names_.NameOfEvent(std::countr_zero(events)));
        if (!doing.Inputs.empty())
            line_.Doings.push_back(std::move(doing));
    }

    void Wait(Units units) {
        if (units == 0)
            return;
        const Units end = clock_.Where().Now + units;
        while (looks_ < kMostLooks) {
            const std::optional<Units> due = clock_.NextTimeout();
            if (!due || *due > end)
                break;
            LookAround(*due, end);
        }
        Pass(end - clock_.Where().Now);
    }

    // A constant limit is up at it or one unit later: a line one unit behind it holds under both readings,
    // where the run has that unit and nothing else happens in it.
    void LookAround(Units due, Units end) {
        ++looks_;
        const bool constant = machine_.State(clock_.Where().State).Limit == LimitKind::Constant;
        if (const Units before = due - clock_.Where().Now - 1; before + waited_ > 0) {
            Pass(std::max<Units>(before, 0));
            EndLine();
        }
        Pass(due - clock_.Where().Now);
        const std::optional<Units> next = clock_.NextTimeout();
        if (constant && !atLimit_ && due < end && (!next || *next > due + 1))
            Pass(1);
        EndLine();
    }

    void Pass(Units units) {
        waited_ += units;
        clock_.Advance(units);
    }

    void EndLine() {
        if (waited_ > 0)
            line_.Wait = TimeOf(waited_);
        waited_ = 0;
        line_.Expect.emplace();
        line_.Expect->Way.push_back(names_.NameOfState(machine_.Start()));
        lines_.push_back(std::exchange(line_, {}));
        clock_.TakeLog();
    }

    NameBook names_;
    const Machine& machine_;
    const bool atLimit_;
    Clock clock_;
    bool hasPower_ = false;
    int looks_ = 0;
    Units waited_ = 0; // since the last line
    TestStep line_;
    std::vector<TestStep> lines_;
};

void AddLine(TestFile& file, auto what) { file.Lines.push_back({std::move(what), std::nullopt, {}}); }

// Runs the test as any other and writes down what it finds.
void FillExpectations(TestFile& file, const FsmDocument& document, const Machine& machine) {
    const TestPlan plan = PlanTests(file, document, "");
    TestWalk walk(machine, plan);
    const NameBook names(document, "");
    std::vector<TestExpectation> found;
    for (const PlannedStep& step : plan.Tests.front().Steps) {
        std::optional<StepResult> result = walk.PowerOnBefore(step);
        if (std::optional<StepResult> done = walk.Do(step))
            result = std::move(done);
        found.push_back(RecordedExpectation(document, names, machine, walk.Where(), *result));
    }
    auto next = found.begin();
    for (TestLine& line : file.Lines) {
        if (auto* step = std::get_if<TestStep>(&line.What))
            step->Expect = std::move(*next++);
    }
}

// The numbers of all that the test names, so that a new name is recognised.
NamesHead NamesIn(const TestFile& file, const FsmDocument& document) {
    NamesHead names;
    NameBook book(document, "");
    std::set<std::pair<bool, int>> told;
    const auto add = [&](bool isEvent, const TestName& name, auto number) {
        if (!number || name.Text.empty() || !told.emplace(isEvent, number->Number()).second)
            return;
        NamesHead::Entry entry{isEvent, name};
        entry.Name.Number = number->Number();
        names.Entries.push_back(std::move(entry));
    };
    for (const TestLine& line : file.Lines) {
        const auto* step = std::get_if<TestStep>(&line.What);
        if (step == nullptr)
            continue;
        for (const TestDoing& doing : step->Doings) {
            for (const TestName& input : doing.Inputs)
                add(true, input, book.Event(input));
        }
        for (const TestName& state : step->Expect->Way)
            add(false, state, book.State(state));
    }
    std::stable_partition(names.Entries.begin(), names.Entries.end(),
                          [](const NamesHead::Entry& entry) { return !entry.IsEvent; });
    return names;
}

// Of a head that a file may have once, what tells it from others of its kind.
std::string KeyOf(const TestLine& line) {
    if (const auto* constant = std::get_if<ConstantHead>(&line.What))
        return "constant " + constant->Name.Text;
    if (const auto* reading = std::get_if<ReadingHead>(&line.What))
        return reading->Choice == ReadingChoice::AtLimit || reading->Choice == ReadingChoice::AfterLimit
                   ? "reading of limits"
                   : "reading of timers";
    const bool once =
        std::holds_alternative<UnitHead>(line.What) || std::holds_alternative<MachineHead>(line.What);
    return once ? NumberText(std::int64_t(line.What.index())) : std::string();
}

} // namespace

TestFile RecordTest(const FsmDocument& document, const Recording& recording) {
    const Machine machine(document, recording.Given, recording.Read);
    TestFile file;
    if (recording.Machine)
        AddLine(file, MachineHead{NameOf(*recording.Machine)});
    if (recording.Unit)
        AddLine(file, UnitHead{*recording.Unit});
    for (const auto& [name, value] : recording.Given)
        AddLine(file, ConstantHead{NameOf(ToUtf8(name)), value});
    if (recording.Read.AfterLimit)
        AddLine(file, ReadingHead{ReadingChoice::AfterLimit});
    if (recording.Read.UnstartedExpired)
        AddLine(file, ReadingHead{ReadingChoice::UnstartedExpired});
    AddLine(file, TestHead{recording.Name});
    for (TestStep& step : StepWriter(document, machine, recording.AtLimit).Run(recording.Steps))
        AddLine(file, std::move(step));
    FillExpectations(file, document, machine);
    const auto test = std::find_if(file.Lines.begin(), file.Lines.end(), [](const TestLine& line) {
        return std::holds_alternative<TestHead>(line.What);
    });
    file.Lines.insert(test, {TestLine{NamesIn(file, document), std::nullopt, {}}, TestLine{}});
    return file;
}

std::string WithTest(std::string_view bytes, const TestFile& test) {
    std::vector<std::string> there;
    for (const TestLine& line : ReadTestFile(bytes).File.Lines)
        there.push_back(KeyOf(line));
    TestFile added;
    for (const TestLine& line : test.Lines) {
        const std::string key = KeyOf(line);
        if (key.empty() || std::find(there.begin(), there.end(), key) == there.end())
            added.Lines.push_back(line);
    }
    std::string text(bytes);
    if (!text.empty())
        text += text.ends_with('\n') ? "\n" : "\n\n";
    return text + WriteTestFile(added);
}

} // namespace orvane::run
