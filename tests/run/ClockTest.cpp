// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Clock.h"

#include "run/MachineWalk.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/SmallTable.h"
#include "support/TableInterpreter.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::SmallTable;
using testing::ElementsAre;

std::uint64_t Events(std::initializer_list<int> rows) {
    Inputs inputs;
    for (const int row : rows)
        inputs.Set(row, true);
    return inputs.Events;
}

std::vector<std::string> Told(const std::vector<Happening>& log) {
    std::vector<std::string> told;
    for (const Happening& happening : log) {
        const Taken& what = happening.What;
        told.push_back(std::to_string(happening.When) + ": " + std::to_string(what.From.Number()) + " row " +
                       std::to_string(what.Row.Number()) + " to " + std::to_string(what.To.Number()));
    }
    return told;
}

// State 1 waits for event 6, state 2 times out after 10 units.
SmallTable Timed() {
    return SmallTable().Cell(1, 6, 2).Timing(2, kStartConstant, "10").Cell(2, 4, 1).Cell(2, 7, 1);
}

TEST(Clock, TimePassesFromDueTimeoutToDueTimeout) {
    const Machine machine(SmallTable()
                              .Timing(1, kStartConstant, "10")
                              .Cell(1, 4, 2)
                              .Timing(2, kStartConstant, "3")
                              .Cell(2, 4, 1)
                              .Document());
    Clock clock(machine);
    EXPECT_EQ(clock.PowerOn(), Outcome::Quiet);
    EXPECT_EQ(clock.NextTimeout(), 10);
    EXPECT_EQ(clock.Advance(23), Outcome::Quiet);
    EXPECT_THAT(Told(clock.TakeLog()),
                ElementsAre("10: 1 row 4 to 2", "13: 2 row 4 to 1", "23: 1 row 4 to 2"));
    EXPECT_EQ(clock.Where().Now, 23);
}

TEST(Clock, APulseIsThereForOneScan) {
    const Machine machine(Timed().Document());
    Clock clock(machine);
    clock.PowerOn();
    EXPECT_EQ(clock.Pulse(Events({6})), Outcome::Quiet);
    EXPECT_EQ(clock.Where().State, 2);
    EXPECT_EQ(clock.Surroundings().Events, 0U);
}

// Two states that lead to each other by one input: where it ends depends on how often it is scanned.
TEST(Clock, AnInputThatIsHeldMayOscillate) {
    const Machine machine(SmallTable().Cell(1, 6, 2).Cell(2, 6, 1).Document());
    Clock clock(machine);
    clock.PowerOn();
    clock.Surroundings().Set(6, true);
    EXPECT_EQ(clock.Settle(), Outcome::Oscillates);
    EXPECT_THAT(Told(clock.TakeLog()), ElementsAre("0: 1 row 6 to 2", "0: 2 row 6 to 1"));
}

TEST(Clock, AStateThatEntersItselfAgainIsNoOscillationAndToldOnce) {
    const Machine machine(SmallTable()
                              .Cell(1, 6, 1, ";again")
                              .Timing(1, kStartConstant, "10")
                              .Cell(1, 4, 2)
                              .Cell(2, 7, 1)
                              .Document());
    Clock clock(machine);
    clock.PowerOn();
    clock.Surroundings().Set(6, true);
    EXPECT_EQ(clock.Settle(), Outcome::Again);
    EXPECT_EQ(clock.Advance(100), Outcome::Again);
    EXPECT_THAT(Told(clock.TakeLog()), ElementsAre("0: 1 row 6 to 1"));
    EXPECT_EQ(clock.Where().Started, std::vector<Units>{100}); // it was started anew at every scan
    clock.Surroundings().Set(6, false);
    EXPECT_EQ(clock.Advance(9), Outcome::Quiet);
    EXPECT_EQ(clock.Where().State, 1);
    clock.Advance(1);
    EXPECT_EQ(clock.Where().State, 2);
}

// ELSE leads state 1 to itself at every scan; meanwhile a timer that another state started comes due.
TEST(Clock, AContinuedTimerComesDueWhileAStateEntersItselfAgain) {
    const Machine machine(SmallTable()
                              .Timing(1, kStartConstant, "1000", "T")
                              .Cell(1, 6, 2)
                              .Timing(2, kContinueConstant, "500", "T")
                              .Cell(2, 5, 2)
                              .Cell(2, 4, 3)
                              .Cell(3, 6, 1)
                              .Document());
    Clock clock(machine);
    clock.PowerOn();
    EXPECT_EQ(clock.Pulse(Events({6})), Outcome::Again);
    clock.TakeLog();
    EXPECT_EQ(clock.Advance(1000), Outcome::Quiet);
    EXPECT_THAT(Told(clock.TakeLog()), ElementsAre("500: 2 row 4 to 3"));
}

TEST(Clock, AnEventThatHoldsKeepsTheTimeoutBackUntilItGoes) {
    const Machine machine(Timed().Cell(2, 8, 2).Document());
    Clock clock(machine);
    clock.PowerOn();
    clock.Pulse(Events({6}));
    clock.Surroundings().Set(8, true);
    EXPECT_EQ(clock.Advance(50), Outcome::Quiet);
    EXPECT_EQ(clock.NextTimeout(), std::nullopt);
    EXPECT_EQ(clock.Where().State, 2);
    clock.Surroundings().Set(8, false);
    clock.Settle();
    EXPECT_EQ(clock.Where().State, 1);
}

TEST(Clock, ARingThatNeverYieldsIsTold) {
    const Machine machine(
        SmallTable().Polytask().Cell(1, 6, 2).Cell(2, 5, 3).Cell(3, 5, 2).Cell(3, 7, 1).Document());
    Clock clock(machine);
    clock.PowerOn();
    EXPECT_EQ(clock.Pulse(Events({6})), Outcome::Spins);
}

TEST(Clock, WhatGoesOnForEverIsGivenUp) {
    const Machine machine(SmallTable()
                              .Timing(1, kStartConstant, "1")
                              .Cell(1, 4, 2)
                              .Timing(2, kStartConstant, "1")
                              .Cell(2, 4, 1)
                              .Document());
    Clock clock(machine);
    clock.PowerOn();
    EXPECT_EQ(clock.Advance(1'000'000'000'000), Outcome::Endless);
}

TEST(Clock, AMissingLimitEndsTheWayWhereItIsAskedFor) {
    const Machine machine(Timed().Timing(2, kStartVariable, ";load").Document());
    Clock clock(machine);
    EXPECT_EQ(clock.PowerOn(), Outcome::Quiet);
    EXPECT_EQ(clock.Pulse(Events({6})), Outcome::LimitMissing);
    EXPECT_EQ(clock.Where().State, 2);
    clock.Surroundings().Limits[2] = 4;
    EXPECT_EQ(clock.Advance(5), Outcome::Quiet);
    EXPECT_EQ(clock.Where().State, 1);
}

TEST(Clock, ATimerThatRanForLongerThanItCanCountIsTold) {
    const Machine machine(SmallTable()
                              .Timing(1, kStartConstant, "16777215", "T")
                              .Cell(1, 6, 2)
                              .Cell(2, 6, 3)
                              .Timing(3, kContinueConstant, "10", "T")
                              .Cell(3, 4, 1)
                              .Document());
    Clock clock(machine);
    clock.PowerOn();
    clock.Pulse(Events({6}));
    clock.Advance(20'000'000);
    EXPECT_FALSE(clock.TimerOverran()); // nobody looks
    clock.Pulse(Events({6}));
    EXPECT_TRUE(clock.TimerOverran());
}

// What a controller does that scans often in each unit of time, until it is idle or given up.
bool ScanOften(const Machine& machine, Config& config, const Inputs& inputs, Units units) {
    std::vector<Taken> log;
    for (Units unit = 0; unit <= units; ++unit) {
        config.Now += unit == 0 ? 0 : 1;
        Config before;
        for (int scan = 0; scan < 2000 && before != config; ++scan) {
            before = config;
            if (machine.Scan(config, inputs, log) != ScanEnd::Yields)
                return false;
            log.clear();
        }
        if (before != config)
            return false;
    }
    return true;
}

Inputs SurroundingsAt(const test::Tick& tick) {
    test::World world({tick});
    world.Advance();
    return test::InputsOf(world);
}

Outcome ChangeAndAdvance(Clock& clock, const test::Tick& tick, Units units) {
    clock.Surroundings() = SurroundingsAt(tick);
    return clock.Advance(units);
}

TEST(Clock, AdvancingIsScanningOften) {
    std::size_t idle = 0;
    std::size_t broken = 0;
    test::ExpectProperty({.Cases = 1000, .LargestSize = 100}, [&] {
        const FsmDocument document = *test::AnyMachine();
        RC_PRE(!test::EnteredStates(document).empty());
        const Machine machine(document);
        Clock clock(machine);
        clock.Surroundings() = SurroundingsAt({});
        Outcome outcome = clock.PowerOn();
        Config scanned = clock.Where();
        for (const test::Tick& tick : *test::AnyTicks()) {
            if (!IsIdle(outcome))
                break;
            const Units units = tick.Elapsed * 5;
            outcome = ChangeAndAdvance(clock, tick, units);
            const bool settled = ScanOften(machine, scanned, clock.Surroundings(), units);
            RC_ASSERT(settled == IsIdle(outcome));
            if (settled)
                RC_ASSERT(scanned == clock.Where());
            ++(settled ? idle : broken);
        }
    });
    EXPECT_GT(idle, 5000U);
    EXPECT_GT(broken, 100U);
}

TEST(Clock, AdvancingTwiceIsAdvancingByTheSum) {
    test::ExpectProperty({.Cases = 500, .LargestSize = 100}, [] {
        const FsmDocument document = *test::AnyMachine();
        RC_PRE(!test::EnteredStates(document).empty());
        const Machine machine(document);
        const std::vector<test::Tick> ticks = *test::AnyTicks();
        const Units first = *rc::gen::inRange<Units>(0, 20);
        const Units second = *rc::gen::inRange<Units>(0, 20);
        Clock once(machine);
        Clock twice(machine);
        for (Clock* clock : {&once, &twice}) {
            clock->Surroundings() = SurroundingsAt({});
            clock->PowerOn();
        }
        for (const test::Tick& tick : ticks) {
            const Outcome whole = ChangeAndAdvance(once, tick, first + second);
            Outcome half = ChangeAndAdvance(twice, tick, first);
            if (IsIdle(half))
                half = ChangeAndAdvance(twice, tick, second);
            RC_ASSERT(whole == half);
            if (!IsIdle(whole))
                break;
            RC_ASSERT(once.Where() == twice.Where());
            RC_ASSERT(once.TakeLog() == twice.TakeLog());
        }
    });
}

} // namespace
} // namespace orvane::run
