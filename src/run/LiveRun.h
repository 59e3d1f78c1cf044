// SPDX-License-Identifier: GPL-3.0-or-later
// A machine that runs while its table is drawn. An edit makes another machine of it, and everything that was
// done is done again there; where a step no longer fits, the run stands before it and says why, and comes
// back whole when the edit is undone.
#pragma once

#include "run/History.h"
#include "run/WayFromRun.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

// A limit that only the user knows, of the state that the machine is in or came to.
struct WantedLimit {
    StateNumber State;
    bool Constant = false; // holds for the whole run, and for every state that has the same text
    std::string Text;      // what stands in the state instead of a number; document text
    bool Missing = false;  // the machine cannot go on without it

    bool operator==(const WantedLimit&) const = default;
};

// A run that was made elsewhere.
struct RunToPlay {
    std::vector<RunStep> Steps;
    Constants Given;
    Readings Read;
    Moment Shown;
};

class LiveRun {
  public:
    // The document outlives the run and stays at its address.
    explicit LiveRun(const FsmDocument& document);
    ~LiveRun();

    // The document is another one: nothing was done to it.
    void Restart();
    // The document was edited. Of a long run only the beginning is played again at once, so that an edit
    // stays quick; the rest by ReplayMore, or with the next thing that is asked for.
    void Recompile();
    bool IsReplaying() const { return isReplaying_; }
    int PercentReplayed() const;
    void ReplayMore();
    void FinishReplay(); // before the run is looked at as a whole

    // Why there is no machine, one line of UTF-8 each.
    const std::vector<std::string>& Obstacles() const { return obstacles_; }
    // None where there are obstacles.
    const Machine* Built() const { return machine_.get(); }
    const History* Past() const { return history_.get(); }
    const Constants& Given() const { return given_; }
    const Readings& Read() const { return readings_; }
    // The state that the machine is in; none without power.
    StateNumber State() const;
    bool IsTrue(RowNumber event) const;

    // What was just asked for and why it could not be done; what an edit has made of the run. UTF-8.
    const std::string& Notice() const { return notice_; }

    // All of these do nothing but say why when they are not possible.
    void PowerOn(); // begins a new run with the inputs as they are
    void Pulse(RowNumber event);
    void Hold(RowNumber event, bool there);
    void Wait(Units units);
    void ToTimeout();
    void ToChange(); // to where the state is another one, as far as time alone brings that
    // Time passes for somebody who looks on: makes no new step as long as nothing happens.
    void PassTime(Units units);
    bool CanGoOn() const; // time can pass
    // Does all its steps in a new run and shows one moment of it. Constants and readings stay for what
    // follows.
    void Play(const RunToPlay& played);

    // The limit that is asked for, or that of the present state that could be another one.
    std::optional<WantedLimit> Wanted() const;
    void GiveLimit(Units units);

    // The shortest way from the moment shown to a state: what there is to be looked for, which takes its
    // time, and what came of it on the same table and at the same moment. None, with a notice, when the run
    // cannot go on.
    std::optional<WayAsked> AskWay(StateNumber to);
    void GoWay(StateNumber to, const WayFromRun& way);

    void Back();
    void Forward();
    void GoToTime(Units time);

    // What was cut off last when something else was done comes back.
    bool CanBringBack() const { return !cutOff_.empty(); }
    void BringBack();

  private:
    struct Recorded {
        std::vector<RunStep> Steps;
        Moment At;
        FsmDocument Table; // that they belong to
    };

    void Build();
    void KeepFormer();
    void Replay(std::size_t most);
    void EndReplay();
    bool Do(const RunStep& step);
    void FollowCutOff();
    void TellOtherWay(const History& before);
    void TellMisfit(const RunStep& before, const std::optional<RunStep>& step);
    std::string WhyNot(const RunStep& step) const;
    std::string WhyLost(const RunStep& step) const;
    std::string WhyNoWay(StateNumber to, const WayFromRun& way) const;

    const FsmDocument& document_;
    Constants given_;
    Readings readings_;
    std::vector<std::string> obstacles_;
    std::unique_ptr<Machine> machine_;
    std::unique_ptr<History> history_; // goes before its machine
    Recorded recorded_;
    bool isReplaying_ = false; // the history holds the beginning of what was recorded
    std::unique_ptr<Machine> formerMachine_;
    std::unique_ptr<History> former_; // the run before the edit, while it is played again; only its log
    bool allFits_ = true;             // the history holds all that was recorded
    std::vector<RunStep> cutOff_;
    std::string notice_;
};

} // namespace orvane::run
