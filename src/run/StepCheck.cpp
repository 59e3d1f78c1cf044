// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/StepCheck.h"

#include "codegen/DesignChecks.h"
#include "run/CodeLines.h"
#include "run/TestLexer.h"
#include "run/TestWriter.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <iterator>

namespace orvane::run {

namespace {

// The last transition; an event that held the state is none.
const Taken* LastTaken(const StepResult& result) {
    for (auto happening = result.Log.rbegin(); happening != result.Log.rend(); ++happening) {
        if (!happening->What.Holds)
            return &happening->What;
    }
    return nullptr;
}

bool Expects(const PlannedStep& step, Check what) {
    return std::any_of(step.Checks.begin(), step.Checks.end(),
                       [what](const PlannedCheck& check) { return check.Written->What == what; });
}

Place ExpectedAt(const PlannedStep& step) {
    return step.Written->Expect ? step.Written->Expect->At : step.At;
}

std::string Count(std::size_t count) { return NumberText(count); }

} // namespace

std::string RowText(const FsmDocument& document, RowNumber row) {
    if (row == RowNumber(kTimeoutRow))
        return "Timeout";
    if (row == RowNumber(kElseRow))
        return "ELSE";
    const std::string name = ToUtf8(Trim(document.Event(row.Number()).Name));
    return name.empty() ? "row " + NumberText(row.Number()) : name;
}

void WayHere::Add(const StepResult& result) {
    for (const Happening& happening : result.Log) {
        if (happening.What.From != happening.What.To)
            last_ = happening;
    }
}

std::string WayHere::Text(const FsmDocument& document, const Clock& clock) const {
    const auto title = [&](StateNumber state) { return ToUtf8(StateTitle(document, state.Number())); };
    std::string text = title(clock.Where().State);
    if (!last_)
        return text + ", since power came on";
    return text + ", since " + NumberText(last_->When) + " from " + title(last_->What.From) + " by " +
           RowText(document, last_->What.Row);
}

std::string StepCheck::Title(StateNumber state) const {
    return ToUtf8(StateTitle(document_, state.Number()));
}

std::string StepCheck::WayText(const std::vector<StateNumber>& way) const {
    std::string text;
    for (const StateNumber state : way)
        text += (text.empty() ? "" : " => ") + Title(state);
    return text;
}

// The states that the machine came to, those it entered anew left out.
std::vector<StateNumber> StepCheck::Changes(const StepResult& result) const {
    std::vector<StateNumber> changes;
    if (result.PowerOn)
        changes.push_back(machine_.Start());
    for (const Happening& happening : result.Log) {
        if (happening.What.From != happening.What.To)
            changes.push_back(happening.What.To);
    }
    return changes;
}

std::vector<const std::string*> StepCheck::Ran(const StepResult& result) const {
    std::vector<const std::string*> ran;
    const std::string& first = document_.State(machine_.Start().Number()).EntryCode;
    if (result.PowerOn && !first.empty())
        ran.push_back(&first);
    for (const Happening& happening : result.Log)
        AddCodeOf(ran, document_, happening.What);
    return ran;
}

std::optional<StepFailure> StepCheck::PowerOnFailure(Place at, const StepResult& result, bool strict) const {
    if (std::optional<std::string> broken = Broken(result, false))
        return StepFailure{result.End == Outcome::LimitMissing ? Verdict::Error : Verdict::Failed, at,
                           *broken};
    const std::vector<StateNumber> changes = Changes(result);
    if (strict && changes.size() > 1)
        return StepFailure{Verdict::Failed, at,
                           "no line expects the way " + WayText(changes) + " at power-on"};
    return std::nullopt;
}

std::optional<StepFailure> StepCheck::Failure(const PlannedStep& step, const StepResult& result,
                                              bool strict) const {
    if (std::optional<std::string> broken = Broken(result, Expects(step, Check::Spins)))
        return StepFailure{result.End == Outcome::LimitMissing ? Verdict::Error : Verdict::Failed, step.At,
                           *broken};
    if (result.NoTimeout)
        return StepFailure{Verdict::Failed, step.At,
                           "no timeout is coming; the machine is in " + way_.Text(document_, clock_)};
    if (strict) {
        if (std::optional<StepFailure> failure = StrictFailure(step, result))
            return failure;
    }
    if (std::optional<StepFailure> failure = WayFailure(step, result))
        return failure;
    for (const PlannedCheck& check : step.Checks) {
        if (std::optional<std::string> failure = CheckFailure(check, result))
            return StepFailure{Verdict::Failed, check.Written->At, *failure};
    }
    return std::nullopt;
}

std::optional<std::string> StepCheck::Broken(const StepResult& result, bool spinsExpected) const {
    const std::string where = Title(clock_.Where().State);
    switch (result.End) {
    case Outcome::Quiet:
    case Outcome::Again:
        return std::nullopt;
    case Outcome::Spins:
        if (spinsExpected)
            return std::nullopt;
        return "a scan never ends: the machine comes to " + where +
               " again and again without letting time pass";
    case Outcome::Oscillates:
        return "the machine goes round through " + where +
               " and others, one at every scan, so that where it stands " +
               "depends on how often the controller scans: " + WayText(Changes(result));
    case Outcome::LimitMissing:
        break;
    case Outcome::Endless:
        return "the step takes more than " + Count(kMostHappenings) + " transitions";
    }
    const StateRecord& state = document_.State(clock_.Where().State.Number());
    if (machine_.State(clock_.Where().State).Limit == LimitKind::Variable)
        return "the limit of " + where + " is needed and not given; write \"limit " +
               QuotedWhereNeeded(ToUtf8(Trim(state.Name))) + " = ...\" above";
    return "the limit of " + where + " is needed and not given; write \"constant " +
           QuotedWhereNeeded(ToUtf8(Trim(state.TimeConst))) + " = ...\" at the top of the file";
}

std::optional<StepFailure> StepCheck::StrictFailure(const PlannedStep& step, const StepResult& result) const {
    for (std::size_t i = 0; i < step.Doings.size(); ++i) {
        if (step.Doings[i].What == Doing::Timeout)
            return StepFailure{
                Verdict::Failed, step.Written->Doings[i].At,
                "with --strict a line says how long it waits, as a number, instead of \"timeout\""};
    }
    const std::vector<StateNumber> changes = Changes(result);
    const bool named = changes.empty() || step.Way.size() > 1 || (changes.size() == 1 && step.Way == changes);
    if (named)
        return std::nullopt;
    return StepFailure{Verdict::Failed, ExpectedAt(step),
                       "not every state that is passed is expected; the way is " + WayText(changes)};
}

std::optional<StepFailure> StepCheck::WayFailure(const PlannedStep& step, const StepResult& result) const {
    if (step.Way.empty())
        return std::nullopt;
    const Place at = step.Written->Expect->Way.back().At;
    if (step.Way.size() == 1) {
        if (step.Way.front() == clock_.Where().State)
            return std::nullopt;
        return StepFailure{Verdict::Failed, at,
                           "expected " + Title(step.Way.front()) + ", but at " +
                               NumberText(clock_.Where().Now) + " the machine is in " +
                               way_.Text(document_, clock_)};
    }
    const std::vector<StateNumber> changes = Changes(result);
    if (changes == step.Way)
        return std::nullopt;
    return StepFailure{
        Verdict::Failed, at,
        "expected the way " + WayText(step.Way) + ", but the machine " +
            (changes.empty() ? "stays in " + Title(clock_.Where().State) : "goes " + WayText(changes))};
}

std::optional<std::string> StepCheck::CheckFailure(const PlannedCheck& check,
                                                   const StepResult& result) const {
    const Taken* last = LastTaken(result);
    const auto said = [&](bool holds, const std::string& otherwise) {
        return holds ? std::nullopt : std::optional(otherwise);
    };
    switch (check.Written->What) {
    case Check::Via:
        return said(last != nullptr && last->Row == check.Row,
                    "expected the last transition by " + RowText(document_, check.Row) + ", but " +
                        (last == nullptr ? "there is none" : "it is by " + RowText(document_, last->Row)));
    case Check::Stays:
        return said(last == nullptr, "expected no transition, but there is one by " +
                                         (last == nullptr ? "" : RowText(document_, last->Row)));
    case Check::Runs:
    case Check::NotRuns:
        return RunsFailure(check, result);
    case Check::Ran: {
        const std::size_t ran = Ran(result).size();
        return said(static_cast<std::int64_t>(ran) == check.Written->Count,
                    "expected that " + NumberText(check.Written->Count) + " pieces of code ran, but it is " +
                        Count(ran));
    }
    case Check::Timer:
        return TimerFailure(check);
    case Check::Again:
        return said(result.End == Outcome::Again,
                    "expected that the state enters itself at every scan, but it rests");
    case Check::Spins:
        return said(result.End == Outcome::Spins, "expected a scan that never ends, but it does");
    }
    return std::nullopt;
}

std::optional<std::string> StepCheck::RunsFailure(const PlannedCheck& check, const StepResult& result) const {
    const std::vector<const std::string*> ran = Ran(result);
    const bool runs = std::any_of(ran.begin(), ran.end(),
                                  [&](const std::string* code) { return HasText(*code, check.Text); });
    const std::string text = Quoted(check.Written->Name.Text);
    if (check.Written->What == Check::Runs)
        return runs ? std::nullopt
                    : std::optional("expected that " + text + " runs, but it is in none of the " +
                                    Count(ran.size()) + " pieces of code that ran");
    return runs ? std::optional("expected that " + text + " does not run, but it does") : std::nullopt;
}

std::optional<std::string> StepCheck::TimerFailure(const PlannedCheck& check) const {
    const Units started = clock_.Where().Started[check.Timer];
    const Units since = clock_.Where().Now - started;
    if (started != kNever && since == check.Time)
        return std::nullopt;
    const std::string expected = "expected " + NumberText(check.Time) + " since the start of timer " +
                                 Quoted(check.Written->Name.Text) + ", but ";
    return expected + (started == kNever ? "it was never started" : "it is " + NumberText(since));
}

TestExpectation StepCheck::Updated(const PlannedStep& step, const StepResult& result,
                                   const NameBook& names) const {
    TestExpectation expect = *step.Written->Expect;
    const std::vector<StateNumber> changes = Changes(result);
    if (WayFailure(step, result)) {
        expect.Way.clear();
        for (const StateNumber state : step.Way.size() > 1 ? changes : std::vector{clock_.Where().State})
            expect.Way.push_back(names.NameOfState(state));
        if (expect.Way.empty())
            expect.Way.push_back(names.NameOfState(clock_.Where().State));
    }
    for (std::size_t i = 0; i < step.Checks.size(); ++i) {
        if (CheckFailure(step.Checks[i], result))
            Update(expect.Checks[i], step.Checks[i], result, names);
    }
    // What came about only in the meantime cannot be turned into what it is not.
    std::erase_if(expect.Checks, [&](const TestCheck& check) {
        return (check.What == Check::Again && result.End != Outcome::Again) ||
               (check.What == Check::Spins && result.End != Outcome::Spins);
    });
    return expect;
}

void StepCheck::Update(TestCheck& check, const PlannedCheck& planned, const StepResult& result,
                       const NameBook& names) const {
    const Taken* last = LastTaken(result);
    switch (check.What) {
    case Check::Via:
    case Check::Stays:
        check.What = last == nullptr ? Check::Stays : Check::Via;
        if (last != nullptr && last->Row < RowNumber(kFirstEventRow))
            check.Name = {RowText(document_, last->Row), std::nullopt, false, {}, {}};
        else if (last != nullptr)
            check.Name = names.NameOfEvent(last->Row);
        return;
    case Check::Runs:
        check.What = Check::NotRuns;
        return;
    case Check::NotRuns:
        check.What = Check::Runs;
        return;
    case Check::Ran:
        check.Count = std::ssize(Ran(result));
        return;
    case Check::Timer: {
        const Units started = clock_.Where().Started[planned.Timer];
        check.Time = {NumberText(started == kNever ? 0 : clock_.Where().Now - started), TimeSuffix::None, {}};
        return;
    }
    case Check::Again:
    case Check::Spins:
        return;
    }
}

} // namespace orvane::run
