// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/LiveRun.h"

#include "codegen/DesignChecks.h"
#include "run/Follow.h"
#include "run/Obstacles.h"
#include "run/RunWords.h"
#include "run/StepCheck.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace orvane::run {

namespace {

// A millisecond or two on the largest table.
constexpr std::size_t kReplayedAtOnce = 10'000;

constexpr int kMostTimeoutsToChange = 1000; // a state that only enters itself anew is left alone then

std::vector<RunStep> StepsOf(const History& history) {
    return {history.Steps().begin(), history.Steps().end()};
}

} // namespace

LiveRun::LiveRun(const FsmDocument& document) : document_(document) { Restart(); }

LiveRun::~LiveRun() = default;

void LiveRun::Restart() {
    given_.clear();
    readings_ = {};
    cutOff_.clear();
    recorded_ = {{}, {}, document_};
    allFits_ = true;
    isReplaying_ = false;
    former_.reset();
    notice_.clear();
    Build();
}

void LiveRun::Build() {
    obstacles_.clear();
    for (const std::string& obstacle : run::Obstacles(document_))
        obstacles_.push_back(ToUtf8(obstacle));
    history_.reset();
    machine_.reset();
    if (!obstacles_.empty())
        return;
    machine_ = std::make_unique<Machine>(document_, given_, readings_);
    history_ = std::make_unique<History>(*machine_);
}

void LiveRun::Recompile() {
    notice_.clear();
    KeepFormer();
    Build();
    isReplaying_ = allFits_ = history_ != nullptr;
    if (history_)
        Replay(kReplayedAtOnce);
    else
        former_.reset();
}

// A run that is still being played again is dropped: what was recorded before that stays.
void LiveRun::KeepFormer() {
    if (!history_ || isReplaying_ || !allFits_)
        return;
    recorded_.At = history_->At();
    recorded_.Steps = history_->TakeSteps();
    former_ = std::move(history_);
    formerMachine_ = std::move(machine_);
}

void LiveRun::ReplayMore() {
    if (isReplaying_)
        Replay(kReplayedAtOnce);
}

void LiveRun::FinishReplay() {
    if (isReplaying_)
        Replay(recorded_.Steps.size());
}

int LiveRun::PercentReplayed() const {
    const std::size_t all = std::max<std::size_t>(recorded_.Steps.size(), 1);
    return isReplaying_ ? int(history_->Steps().size() * 100 / all) : 100;
}

void LiveRun::Replay(std::size_t most) {
    const Followed followed(recorded_.Table, document_);
    const std::size_t end = std::min(recorded_.Steps.size(), history_->Steps().size() + most);
    while (history_->Steps().size() < end) {
        const RunStep& before = recorded_.Steps[history_->Steps().size()];
        const std::optional<RunStep> step = followed.Step(before);
        if (step && history_->Do(*step))
            continue;
        TellMisfit(before, step);
        return EndReplay();
    }
    if (end < recorded_.Steps.size())
        return;
    history_->GoTo(recorded_.At);
    EndReplay();
}

void LiveRun::TellMisfit(const RunStep& before, const std::optional<RunStep>& step) {
    allFits_ = false;
    notice_ = step ? WhyNot(*step) : WhyLost(before);
    notice_ = "The run stands before step " + NumberText(std::int64_t(history_->At().Steps + 1)) +
              ", which does not fit the table any more: " + notice_;
}

void LiveRun::EndReplay() {
    isReplaying_ = false;
    FollowCutOff();
    if (former_ && allFits_)
        TellOtherWay(*former_);
    former_.reset();
    formerMachine_.reset();
    if (allFits_)
        recorded_.Table = document_;
}

void LiveRun::FollowCutOff() {
    const Followed followed(recorded_.Table, document_);
    for (RunStep& step : cutOff_) {
        const std::optional<RunStep> now = followed.Step(step);
        if (!now || !allFits_)
            return cutOff_.clear();
        step = *now;
    }
}

void LiveRun::TellOtherWay(const History& before) {
    const Followed followed(recorded_.Table, document_);
    const auto same = [&](const LogEntry& was, const LogEntry& is) {
        return was.When == is.When && followed.State(StateNumber(was.To)) == StateNumber(is.To);
    };
    const auto [was, is] = std::mismatch(before.Log().begin(), before.Log().end(), history_->Log().begin(),
                                         history_->Log().end(), same);
    const auto title = [&](const FsmDocument& table, int state) { return ToUtf8(StateTitle(table, state)); };
    if (is != history_->Log().end())
        notice_ = "Since the edit it goes another way: at " + NumberText(is->When) + " to " +
                  title(document_, is->To);
    else if (was != before.Log().end())
        notice_ = "Since the edit it does not go to " + title(recorded_.Table, was->To) + " at " +
                  NumberText(was->When) + " any more";
}

StateNumber LiveRun::State() const {
    return history_ && history_->HasPower() ? history_->Now().Where().State : StateNumber();
}

bool LiveRun::IsTrue(RowNumber event) const { return history_ && history_->Now().Surroundings().Has(event); }

bool LiveRun::Do(const RunStep& step) {
    FinishReplay();
    notice_.clear();
    if (!history_ || !history_->CanDo(step)) {
        notice_ = WhyNot(step);
        return false;
    }
    if (history_->At() != Moment{history_->Steps().size(), 0})
        cutOff_ = StepsOf(*history_);
    history_->Do(step);
    if (!std::exchange(allFits_, true))
        recorded_.Table = document_;
    return true;
}

std::string LiveRun::WhyNot(const RunStep& step) const {
    if (!history_)
        return obstacles_.front();
    if (!IsIdle(history_->End()))
        return OutcomeText(document_, *history_);
    if (!history_->HasPower() && step.What != RunAct::PowerOn)
        return "the power is off";
    return "a run has at most " + NumberText(std::int64_t(kLongestRun)) + " steps; power on begins a new one";
}

std::string LiveRun::WhyLost(const RunStep& step) const {
    if (step.What == RunAct::Limit)
        return "the state " + ToUtf8(StateTitle(recorded_.Table, int(step.State))) + " is gone";
    const Followed followed(recorded_.Table, document_);
    for (const RowNumber row : EventRows()) {
        if ((step.Amount & BitOf(row)) != 0 && followed.Row(row) == RowNumber())
            return "the event " + RowText(recorded_.Table, row) + " is gone";
    }
    return {};
}

void LiveRun::PowerOn() {
    FinishReplay();
    notice_.clear();
    if (!history_) {
        notice_ = obstacles_.front();
        return;
    }
    const Inputs there = history_->Now().Surroundings();
    if (history_->HasPower()) {
        cutOff_ = StepsOf(*history_);
        history_ = std::make_unique<History>(*machine_);
        if (there.Events != 0)
            history_->Do(SwitchTo(there.Events));
        for (const StateNumber state : StateNumbers()) {
            if (const Units limit = there.Limits[IndexIn(TableColumns(), state)]; limit != kNotGiven)
                history_->Do(LimitOf(state, limit));
        }
    }
    Do({0, RunAct::PowerOn});
}

void LiveRun::Pulse(RowNumber event) {
    FinishReplay();
    const std::uint64_t held = history_ ? history_->Now().Surroundings().Events : 0;
    if (IsTrue(event))
        notice_ = RowText(document_, event) + " is held already; Ctrl+click or H lets it go";
    else
        Do(PulseOf(held | BitOf(event)));
}

void LiveRun::Hold(RowNumber event, bool there) {
    FinishReplay();
    if (IsTrue(event) == there)
        return;
    const std::uint64_t held = history_ ? history_->Now().Surroundings().Events : 0;
    Do(SwitchTo(held ^ BitOf(event)));
}

void LiveRun::Wait(Units units) { Do(WaitFor(units)); }

void LiveRun::PassTime(Units units) {
    FinishReplay();
    const bool atEnd = history_ && !history_->Steps().empty() &&
                       history_->At() == Moment{history_->Steps().size(), 0} && IsIdle(history_->End());
    const bool nothingHappened =
        atEnd && (history_->Log().empty() || history_->Log().back().Step + 1 != history_->Steps().size());
    if (nothingHappened && history_->Steps().back().What == RunAct::Wait)
        return history_->Lengthen(units);
    std::string told = notice_; // of an edit, which is read while time passes
    Wait(units);
    if (notice_.empty())
        notice_ = std::move(told);
}

bool LiveRun::CanGoOn() const { return history_ && history_->CanDo(WaitFor(1)); }

void LiveRun::ToTimeout() {
    FinishReplay();
    if (State() == kNoState)
        return Wait(0);
    const std::optional<Units> due = history_->Now().NextTimeout();
    if (!due) {
        notice_ = "No timeout is coming in " + ToUtf8(StateTitle(document_, State()));
        return;
    }
    Wait(*due - history_->Now().Where().Now);
}

void LiveRun::ToChange() {
    FinishReplay();
    if (State() == kNoState)
        return Wait(0);
    Clock ahead = history_->Now();
    for (int i = 0; i < kMostTimeoutsToChange && ahead.Where().State == State(); ++i) {
        const std::optional<Units> due = ahead.NextTimeout();
        if (!due || !IsIdle(ahead.Advance(*due - ahead.Where().Now)))
            break;
    }
    const Units wait = ahead.Where().Now - history_->Now().Where().Now;
    if (wait == 0 && ahead.Where().State == State())
        notice_ = "Nothing changes in " + ToUtf8(StateTitle(document_, State())) + " until an input does";
    else
        Wait(wait);
}

void LiveRun::Play(const RunToPlay& played) {
    FinishReplay();
    notice_.clear();
    if (history_)
        cutOff_ = StepsOf(*history_);
    given_ = played.Given;
    readings_ = played.Read;
    recorded_ = {played.Steps, played.Shown, document_};
    former_.reset();
    Build();
    isReplaying_ = allFits_ = history_ != nullptr;
    FinishReplay();
    if (!history_)
        notice_ = obstacles_.front();
}

std::optional<WantedLimit> LiveRun::Wanted() const {
    const StateNumber state = State();
    if (state == kNoState)
        return std::nullopt;
    const StateRecord& record = document_.State(state);
    const bool missing = history_->End() == Outcome::LimitMissing;
    switch (machine_->State(state).Limit) {
    case LimitKind::Variable:
        return WantedLimit{state, false, record.TimingVar, missing};
    case LimitKind::Constant:
        if (const std::string name(Trim(record.TimeConst)); missing || given_.contains(name))
            return WantedLimit{state, true, name, missing};
        break;
    case LimitKind::None:
        break;
    }
    return std::nullopt;
}

// The step that came to the limit is done again behind it, so that a test of this run has the limit in time.
void LiveRun::GiveLimit(Units units) {
    FinishReplay();
    const std::optional<WantedLimit> wanted = Wanted();
    if (!wanted)
        return;
    if (wanted->Constant) {
        given_[wanted->Text] = units;
        return Recompile();
    }
    const RunStep limit = LimitOf(wanted->State, units);
    if (!wanted->Missing) {
        Do(limit);
        return;
    }
    const Moment here = history_->At();
    const RunStep last = history_->Steps()[here.Steps - 1];
    history_->Back();
    history_->Do(limit);
    Do(last);
}

std::optional<WayAsked> LiveRun::AskWay(StateNumber to) {
    FinishReplay();
    notice_.clear();
    if (!history_ || !IsIdle(history_->End())) {
        notice_ = WhyNot({0, RunAct::PowerOn});
        return std::nullopt;
    }
    const Clock& now = history_->Now();
    return WayAsked{to, history_->HasPower() ? std::optional(now.Where()) : std::nullopt, now.Surroundings(),
                    given_, readings_};
}

// What was assumed is said: the user may know better.
void LiveRun::GoWay(StateNumber to, const WayFromRun& way) {
    if (!way.Steps) {
        notice_ = WhyNoWay(to, way);
        return;
    }
    given_.insert(way.Assumed.begin(), way.Assumed.end());
    if (!way.Assumed.empty())
        Recompile();
    for (const RunStep& step : *way.Steps) {
        if (!Do(step))
            return;
    }
    notice_ = "The shortest way to " + ToUtf8(StateTitle(document_, to)) + " was played";
    if (State() != to)
        notice_ += ", which it leaves again at once";
    for (const auto& [name, value] : way.Assumed)
        notice_ += "; the limit " + ToUtf8(name) + " was taken as " + NumberText(value);
    for (const RunStep& step : *way.Steps) {
        if (step.What == RunAct::Limit)
            notice_ += "; the limit of " + ToUtf8(StateTitle(document_, int(step.State))) + " was taken as " +
                       NumberText(step.Time());
    }
}

std::string LiveRun::WhyNoWay(StateNumber to, const WayFromRun& way) const {
    const std::string title = ToUtf8(StateTitle(document_, to));
    if (!way.PlaceKnown)
        return "The way to " + title +
               " is not known from here, because a limit was another one before; power on "
               "and ask again";
    if (!way.Complete)
        return "No way to " + title + " was found, but the machine is too large to be looked at whole";
    if (State() == kNoState)
        return "No way leads from power on to " + title;
    return "No way leads from " + ToUtf8(StateTitle(document_, State())) + " to " + title;
}

void LiveRun::Back() {
    FinishReplay();
    notice_.clear();
    if (history_)
        history_->Back();
}

void LiveRun::Forward() {
    FinishReplay();
    notice_.clear();
    if (history_)
        history_->Forward();
}

void LiveRun::GoToTime(Units time) {
    FinishReplay();
    notice_.clear();
    if (history_)
        history_->GoToTime(time);
}

void LiveRun::BringBack() {
    FinishReplay();
    notice_.clear();
    if (!history_ || cutOff_.empty())
        return;
    const std::vector<RunStep> steps = std::exchange(cutOff_, {});
    history_ = std::make_unique<History>(*machine_);
    for (const RunStep& step : steps)
        history_->Do(step);
}

} // namespace orvane::run
