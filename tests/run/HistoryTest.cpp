// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/History.h"

#include "run/PumpTable.h"
#include "support/Property.h"
#include "support/RandomMachine.h"
#include "support/RandomRun.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::kPowerOn;
using test::kStart;
using test::kStop;
using test::PumpTable;

class PumpRun : public testing::Test {
  protected:
    PumpRun() : machine_(PumpTable().Document()), run(machine_) {}

    // Where it is and since when that is known: "2 at 30, 1 entries".
    std::string Where() const {
        return std::to_string(run.Now().Where().State.Number()) + " at " +
               std::to_string(run.Now().Where().Now) + ", " + std::to_string(run.Log().size()) + " entries";
    }

    Machine machine_;
    History run;
};

// All that can be seen of a moment.
struct Seen {
    Config Where;
    std::uint64_t Events;
    std::vector<LogEntry> Log;
    Outcome End;
    std::vector<std::uint32_t> Counts;

    bool operator==(const Seen&) const = default;
};

Seen See(const History& history) {
    Seen seen{history.Now().Where(),
              history.Now().Surroundings().Events,
              {history.Log().begin(), history.Log().end()},
              history.End(),
              {}};
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : TableRows())
            seen.Counts.push_back(history.Count({row, state}));
    }
    return seen;
}

TEST_F(PumpRun, TakesNothingButInputsBeforePowerIsOn) {
    EXPECT_FALSE(run.Do(WaitFor(1)));
    EXPECT_FALSE(run.Do(PulseOf(kStart)));
    EXPECT_TRUE(run.Do(SwitchTo(kStart)));
    EXPECT_TRUE(run.Do(kPowerOn));
    EXPECT_EQ(Where(), "2 at 0, 2 entries");
    EXPECT_FALSE(run.Do(kPowerOn));
}

TEST_F(PumpRun, GoesBackAndForwardThroughItsSteps) {
    run.Do(kPowerOn);
    run.Do(PulseOf(kStart));
    run.Do(WaitFor(30));
    run.Do(PulseOf(kStop));
    EXPECT_EQ(Where(), "1 at 30, 3 entries");
    run.Back();
    EXPECT_EQ(Where(), "2 at 30, 2 entries");
    run.Back();
    EXPECT_EQ(Where(), "2 at 0, 2 entries");
    run.Back();
    run.Back();
    run.Back();
    EXPECT_FALSE(run.HasPower());
    EXPECT_EQ(run.Steps().size(), 4U);
    for (int i = 0; i < 5; ++i)
        run.Forward();
    EXPECT_EQ(Where(), "1 at 30, 3 entries");
}

TEST_F(PumpRun, DoingSomethingCutsTheRestOff) {
    run.Do(kPowerOn);
    run.Do(PulseOf(kStart));
    run.Do(WaitFor(30));
    run.Back();
    run.Do(PulseOf(kStop));
    EXPECT_EQ(Where(), "1 at 0, 3 entries");
    EXPECT_EQ(run.Steps().size(), 3U);
    run.Forward();
    EXPECT_EQ(Where(), "1 at 0, 3 entries");
}

TEST_F(PumpRun, AMomentWithinAWaitCanBeShownAndGoneOnFrom) {
    run.Do(kPowerOn);
    run.Do(PulseOf(kStart));
    run.Do(WaitFor(150));
    EXPECT_EQ(Where(), "1 at 150, 3 entries");
    run.GoToTime(99);
    EXPECT_EQ(Where(), "2 at 99, 2 entries");
    run.GoToTime(100);
    EXPECT_EQ(Where(), "1 at 100, 3 entries");
    run.GoToTime(40);
    run.Do(PulseOf(kStop));
    EXPECT_EQ(Where(), "1 at 40, 3 entries");
    EXPECT_EQ(run.Steps()[2], WaitFor(40));
    EXPECT_EQ(run.EndTime(), 40);
}

TEST_F(PumpRun, BackFromWithinAWaitIsItsBeginningAndForwardItsEnd) {
    run.Do(kPowerOn);
    run.Do(WaitFor(50));
    run.GoToTime(20);
    run.Forward();
    EXPECT_EQ(Where(), "1 at 50, 1 entries");
    run.GoToTime(20);
    run.Back();
    EXPECT_EQ(Where(), "1 at 0, 1 entries");
}

TEST_F(PumpRun, AMomentThatIsNotThereChangesNothing) {
    run.Do(kPowerOn);
    run.Do(WaitFor(50));
    run.GoTo({3, 0});
    run.GoTo({1, 51});
    run.GoTo({0, 1});
    EXPECT_EQ(Where(), "1 at 50, 1 entries");
    run.GoToTime(1000);
    EXPECT_EQ(Where(), "1 at 50, 1 entries");
}

TEST_F(PumpRun, CountsGoBackWithTheMoment) {
    run.Do(kPowerOn);
    for (int i = 0; i < 3; ++i) {
        run.Do(PulseOf(kStart));
        run.Do(PulseOf(kStop));
    }
    EXPECT_EQ(run.Count({6, 1}), 3U);
    EXPECT_EQ(run.Count({kHeadRow, 1}), 4U);
    run.GoTo({2, 0});
    EXPECT_EQ(run.Count({6, 1}), 1U);
    EXPECT_EQ(run.Count({7, 2}), 0U);
    EXPECT_EQ(run.Count({kHeadRow, 2}), 1U);
}

TEST_F(PumpRun, AWaitThatIsLengthenedIsOneStep) {
    run.Do(kPowerOn);
    run.Do(PulseOf(kStart));
    run.Do(WaitFor(60));
    run.Lengthen(60);
    EXPECT_EQ(Where(), "1 at 120, 3 entries");
    run.Back();
    EXPECT_EQ(Where(), "2 at 0, 2 entries");
}

TEST(History, NothingIsDoneAfterAMachineThatNeverComesToRest) {
    test::SmallTable table = PumpTable();
    table.Cell(2, 6, 1, ";and back");
    const Machine machine(table.Document());
    History run(machine);
    run.Do(kPowerOn);
    run.Do(SwitchTo(kStart));
    EXPECT_EQ(run.End(), Outcome::Oscillates);
    EXPECT_FALSE(run.Do(WaitFor(1)));
    run.Back();
    EXPECT_EQ(run.End(), Outcome::Quiet);
    EXPECT_TRUE(run.Do(WaitFor(1)));
}

// Long enough to pass several of the copies that are kept.
TEST(History, EveryMomentOfALongRunIsComputedAsItWas) {
    const Machine machine(PumpTable().Document());
    History run(machine);
    run.Do(kPowerOn);
    std::vector<Seen> moments{See(run)};
    for (int i = 0; i < 1500; ++i) {
        run.Do(i % 3 == 0 ? PulseOf(kStart) : i % 3 == 1 ? WaitFor(i % 130 + 1) : PulseOf(kStop));
        moments.push_back(See(run));
    }
    for (std::size_t i = 0; i < moments.size(); i += 37) {
        const std::size_t at = i * 611 % moments.size();
        run.GoTo({at + 1, 0});
        ASSERT_EQ(See(run), moments[at]) << at;
    }
}

TEST(History, WhatWasCutOffALongRunIsNotMetAgain) {
    const Machine machine(PumpTable().Document());
    History run(machine);
    run.Do(kPowerOn);
    for (int i = 0; i < 2000; ++i)
        run.Do(PulseOf(kStart));
    run.GoTo({10, 0});
    for (int i = 0; i < 1000; ++i)
        run.Do(WaitFor(3));
    const Seen end = See(run);
    run.GoTo({700, 0});
    run.GoTo({5, 0});
    run.GoTo({1010, 0});
    EXPECT_EQ(See(run), end);
    run.GoTo({600, 0});
    EXPECT_EQ(run.Now().Where().Now, 3 * 590);
}

TEST(History, AWaitIsAsLongAsItWasMadeWhereverItIsComputedFrom) {
    const Machine machine(PumpTable().Document());
    History run(machine);
    run.Do(kPowerOn);
    for (int i = 0; i < 300; ++i) {
        run.Do(WaitFor(1));
        run.Lengthen(1);
    }
    run.GoTo({0, 0});
    for (std::size_t i = 0; i <= 300; ++i) {
        run.GoTo({300, 0});
        run.GoTo({i + 1, 0});
        ASSERT_EQ(run.Now().Where().Now, Units(2 * i));
    }
}

TEST(HistoryProperty, GoingBackAndForwardIsIdentity) {
    test::ExpectProperty({.Cases = 150}, [] {
        const FsmDocument document = *test::AnyMachine();
        const Machine machine(document);
        RC_PRE(machine.Start() != StateNumber());
        History run(machine);
        test::Begin(run, *rc::gen::inRange<Units>(0, 40));
        std::vector<std::pair<Moment, Seen>> moments;
        for (const RunStep& step : *test::AnyRun()) {
            run.Do(step);
            moments.emplace_back(run.At(), See(run));
        }
        RC_PRE(!moments.empty());
        for (const std::size_t at : *rc::gen::container<std::vector<std::size_t>>(
                 10, rc::gen::inRange<std::size_t>(0, moments.size()))) {
            run.GoToTime(*rc::gen::inRange<Units>(0, run.EndTime() + 2));
            run.GoTo(moments[at].first);
            RC_ASSERT(See(run) == moments[at].second);
        }
        for (std::size_t i = 0; i < moments.size(); ++i)
            run.Back();
        while (run.At().Steps < run.Steps().size())
            run.Forward();
        RC_ASSERT(See(run) == moments.back().second);
    });
}

} // namespace
} // namespace orvane::run
