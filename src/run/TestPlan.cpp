// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestPlan.h"

#include "codegen/DesignChecks.h"
#include "codegen/Labels.h"
#include "core/TimingMode.h"
#include "run/CodeLines.h"
#include "run/LimitText.h"
#include "run/NearestName.h"
#include "run/TestLexer.h"
#include "run/TestTimes.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::run {

namespace {

const char* const kStandsTwice = "this is said twice in the file";

class Planner {
  public:
    Planner(const TestFile& file, const FsmDocument& document, const std::string& documentName)
        : file_(file), document_(document), machine_(document), names_(document, documentName) {}

    TestPlan Run();

  private:
    // The heads count for the whole file, wherever they stand; events come when all signals are known.
    void Head(const UnitHead& head);
    void Head(const ConstantHead& head);
    void Head(const SignalHead& head);
    void Head(const NamesHead& head) { names_.Remember(head); }
    void Head(const ReadingHead& head);
    template <typename Other>
    void Head(const Other&) {}
    void PlanEvent(const EventHead& head);
    void CheckSignals();

    void PlanStep(const TestLine& line, const TestStep& step);
    void PlanDoing(PlannedStep& planned, const TestDoing& doing);
    void PlanLimit(PlannedDoing& planned, const TestDoing& doing);
    void PlanCheck(PlannedStep& planned, const TestCheck& check);

    std::optional<PlannedInput> Input(const TestName& name);
    std::optional<int> Timer(const TestName& id);
    Units InUnits(const TestTime& time);
    bool Follows(int row) const;
    std::optional<int> Signal(const TestName& name) const;

    const TestFile& file_;
    const FsmDocument& document_;
    const Machine machine_;
    NameBook names_;
    TimeScale scale_;
    bool hasUnit_ = false;
    Place place_; // of the line
    std::vector<TestName> signals_;
    TestPlan plan_;
};

TestPlan Planner::Run() {
    for (const TestLine& line : file_.Lines) {
        place_ = line.At;
        std::visit([&](const auto& what) { Head(what); }, line.What);
    }
    std::vector<std::string> signalNames;
    for (const TestName& signal : signals_)
        signalNames.push_back(signal.Text);
    names_.AddInputNames(signalNames);
    for (const TestLine& line : file_.Lines) {
        if (const auto* head = std::get_if<EventHead>(&line.What))
            PlanEvent(*head);
    }
    CheckSignals();
    for (const TestLine& line : file_.Lines) {
        if (const auto* test = std::get_if<TestHead>(&line.What))
            plan_.Tests.push_back({test->Text, line.At, {}});
        else if (const auto* step = std::get_if<TestStep>(&line.What))
            PlanStep(line, *step);
    }
    plan_.Signals = std::move(signalNames);
    plan_.Unit = scale_.Unit();
    plan_.Slips = names_.Slips();
    plan_.Renames = names_.AllRenamed();
    return std::move(plan_);
}

void Planner::Head(const UnitHead& head) {
    if (hasUnit_)
        names_.Slip(place_, kStandsTwice);
    hasUnit_ = true;
    if (std::optional<std::string> wrong = scale_.Set(head.Length))
        names_.Slip(head.Length.At, *std::move(wrong));
}

void Planner::Head(const ConstantHead& head) {
    std::vector<std::string> candidates;
    const std::string name = FromUtf8(head.Name.Text, kDelimiter);
    bool known = false;
    for (const StateNumber state : StateNumbers()) {
        const std::string limit(Trim(document_.State(state).TimeConst));
        const bool isName =
            HasConstantLimit(document_.State(state).TimingMode) && !limit.empty() && !LimitNumber(limit);
        if (isName)
            candidates.push_back(ToUtf8(limit));
        known = known || (isName && limit == name);
    }
    if (!known)
        names_.Slip(head.Name.At, "no limit in " + names_.DocumentName() + " is the constant " +
                                      Quoted(head.Name.Text) + DidYouMean(head.Name.Text, candidates));
    else if (head.Value > kLongestTime)
        names_.Slip(head.Name.At, "a timer counts to " + NumberText(kLongestTime));
    else if (!plan_.Given.emplace(name, head.Value).second)
        names_.Slip(place_, kStandsTwice);
}

void Planner::Head(const SignalHead& head) {
    for (const TestName& name : head.Names) {
        if (Signal(name))
            names_.Slip(name.At, kStandsTwice);
        else
            signals_.push_back(name);
    }
}

void Planner::Head(const ReadingHead& head) {
    const bool ofLimit = head.Choice == ReadingChoice::AtLimit || head.Choice == ReadingChoice::AfterLimit;
    std::optional<bool>& reading = ofLimit ? plan_.AfterLimit : plan_.UnstartedExpired;
    if (reading)
        names_.Slip(place_, kStandsTwice);
    reading = head.Choice == ReadingChoice::AfterLimit || head.Choice == ReadingChoice::UnstartedExpired;
}

bool Planner::Follows(int row) const {
    return std::any_of(plan_.Events.begin(), plan_.Events.end(),
                       [&](const PlannedEvent& event) { return event.Row == RowNumber(row); });
}

std::optional<int> Planner::Signal(const TestName& name) const {
    const auto found = std::find_if(signals_.begin(), signals_.end(), [&](const TestName& signal) {
        return signal.Text == name.Text && signal.Number == name.Number;
    });
    return found == signals_.end() ? std::nullopt : std::optional(static_cast<int>(found - signals_.begin()));
}

std::optional<PlannedInput> Planner::Input(const TestName& name) {
    if (const std::optional<int> signal = Signal(name))
        return PlannedInput{true, *signal};
    const std::optional<RowNumber> row = names_.Event(name);
    return row ? std::optional(PlannedInput{false, row->Number()}) : std::nullopt;
}

void Planner::PlanEvent(const EventHead& head) {
    const std::optional<RowNumber> row = names_.Event(head.Event);
    PlannedEvent event;
    for (const TestTerm& term : head.Follows) {
        std::optional<PlannedInput> input(PlannedInput{});
        if (term.What == TestOperator::Name)
            input = Input(term.Name);
        if (!input)
            return;
        event.Terms.push_back({term.What, *input});
        if (term.What == TestOperator::Name && !input->IsSignal && row && input->Index == row->Number())
            return names_.Slip(term.Name.At,
                               "the event " + Quoted(term.Name.Text) + " cannot follow from itself");
    }
    if (!row)
        return;
    if (Follows(row->Number()))
        return names_.Slip(head.Event.At, kStandsTwice);
    for (const PlannedEvent& above : plan_.Events) {
        const bool uses =
            std::any_of(above.Terms.begin(), above.Terms.end(), [&](const PlannedEvent::Term& term) {
                return term.What == TestOperator::Name && !term.Input.IsSignal &&
                       term.Input.Index == row->Number();
            });
        if (uses)
            return names_.Slip(head.Event.At, "an event above follows from this one; say this one first");
    }
    event.Row = *row;
    plan_.Events.push_back(std::move(event));
}

// Such a signal would hide the event.
void Planner::CheckSignals() {
    for (const TestName& signal : signals_) {
        for (const RowNumber row : EventRows()) {
            const std::string name = ToUtf8(Trim(document_.Event(row).Name));
            if (!name.empty() && name == signal.Text && !Follows(row.Number()))
                names_.Slip(signal.At, "the signal " + Quoted(name) +
                                           " is called like an event; write \"event " +
                                           QuotedWhereNeeded(name) + " = " + QuotedWhereNeeded(name) +
                                           "\" when the event follows from it");
        }
    }
}

void Planner::PlanStep(const TestLine& line, const TestStep& step) {
    PlannedStep planned;
    planned.Written = &step;
    planned.At = line.At;
    if (step.Wait)
        planned.Wait = InUnits(*step.Wait);
    for (const TestDoing& doing : step.Doings)
        PlanDoing(planned, doing);
    if (step.Expect) {
        for (const TestName& name : step.Expect->Way)
            planned.Way.push_back(names_.State(name).value_or(StateNumber()));
        for (const TestCheck& check : step.Expect->Checks)
            PlanCheck(planned, check);
    }
    plan_.Tests.back().Steps.push_back(std::move(planned));
}

void Planner::PlanDoing(PlannedStep& planned, const TestDoing& doing) {
    PlannedDoing result{doing.What, {}, {}, 0, doing.Count};
    for (const TestName& name : doing.Inputs) {
        const std::optional<PlannedInput> input = Input(name);
        if (input && !input->IsSignal && Follows(input->Index))
            names_.Slip(name.At, "the event " + Quoted(name.Text) + " follows from others; switch those");
        result.Inputs.push_back(input.value_or(PlannedInput{}));
    }
    if (doing.What == Doing::Limit)
        PlanLimit(result, doing);
    planned.Doings.push_back(std::move(result));
}

void Planner::PlanLimit(PlannedDoing& planned, const TestDoing& doing) {
    planned.Limit = InUnits(doing.Limit);
    if (planned.Limit > kLongestTime)
        names_.Slip(doing.Limit.At, "a timer counts to " + NumberText(kLongestTime));
    const std::optional<StateNumber> state = names_.State(doing.State);
    if (!state)
        return;
    planned.State = *state;
    const std::string title = ToUtf8(StateTitle(document_, state->Number()));
    const LimitKind kind = machine_.State(*state).Limit;
    if (kind == LimitKind::Constant)
        names_.Slip(doing.State.At, "the limit of " + title + " is the constant " +
                                        Quoted(ToUtf8(Trim(document_.State(state->Number()).TimeConst))) +
                                        "; only a variable limit is set in a test");
    if (kind == LimitKind::None)
        names_.Slip(doing.State.At, title + " has no timeout with a variable limit");
}

void Planner::PlanCheck(PlannedStep& planned, const TestCheck& check) {
    PlannedCheck result;
    result.Written = &check;
    if (check.What == Check::Via) {
        const bool special = !check.Name.Quoted && !check.Name.Number;
        if (special && check.Name.Text == "Timeout")
            result.Row = kTimeoutRow;
        else if (special && check.Name.Text == "ELSE")
            result.Row = kElseRow;
        else
            result.Row = names_.Event(check.Name).value_or(RowNumber());
    } else if (check.What == Check::Runs || check.What == Check::NotRuns) {
        result.Text = WithSingleBlanks(FromUtf8(check.Name.Text, kDelimiter));
        if (result.Text.empty() || result.Text == " ")
            names_.Slip(check.Name.At, "a text of the code has at least one letter");
    } else if (check.What == Check::Timer) {
        result.Timer = Timer(check.Name).value_or(0);
        result.Time = InUnits(check.Time);
    }
    planned.Checks.push_back(std::move(result));
}

std::optional<int> Planner::Timer(const TestName& id) {
    const std::string written = (id.Number ? NumberText(*id.Number) + ":" : "") + id.Text;
    const std::vector<std::string>& timers = machine_.Timers();
    const auto found =
        std::find(timers.begin(), timers.end(), TimerLabel(document_, FromUtf8(written, kDelimiter)));
    if (found != timers.end())
        return static_cast<int>(found - timers.begin());
    std::vector<std::string> candidates;
    for (const StateNumber state : StateNumbers())
        candidates.push_back(ToUtf8(Trim(document_.State(state).TimerId)));
    names_.Slip(id.At, "no timer of " + names_.DocumentName() + " has the id " + Quoted(written) +
                           DidYouMean(written, candidates));
    return std::nullopt;
}

Units Planner::InUnits(const TestTime& time) {
    const std::variant<Units, std::string> units = scale_.InUnits(time);
    if (const auto* wrong = std::get_if<std::string>(&units)) {
        names_.Slip(time.At, *wrong);
        return 0;
    }
    return std::get<Units>(units);
}

} // namespace

bool PlannedStep::Has(Doing what) const {
    return std::any_of(Doings.begin(), Doings.end(),
                       [what](const PlannedDoing& doing) { return doing.What == what; });
}

std::optional<TestName> MachineOf(const TestFile& file) {
    for (const TestLine& line : file.Lines) {
        if (const auto* head = std::get_if<MachineHead>(&line.What))
            return head->File;
    }
    return std::nullopt;
}

TestPlan PlanTests(const TestFile& file, const FsmDocument& document, const std::string& documentName) {
    return Planner(file, document, documentName).Run();
}

} // namespace orvane::run
