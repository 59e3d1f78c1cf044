// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/StateSpace.h"

#include "run/Clock.h"
#include "run/FreeLimits.h"
#include "support/MachineJson.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/SmallTable.h"
#include "support/TableInterpreter.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::SmallTable;
using testing::Contains;
using testing::ElementsAre;

// What it takes and where it can be, in words.
std::vector<std::string> Taken(const StateSpace& space) {
    std::vector<std::string> taken;
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            if (space.Takes({row, state}))
                taken.push_back(std::to_string(state.Number()) + " row " + std::to_string(row.Number()));
        }
    }
    return taken;
}

TEST(StateSpace, OfTimesThatNothingTellsApartThereIsOne) {
    const Machine machine(SmallTable()
                              .Cell(1, 6, 2)
                              .Timing(2, kStartConstant, "1000000")
                              .Cell(2, 4, 1)
                              .Cell(2, 7, 1)
                              .Document());
    const StateSpace space(machine, Inputs());
    EXPECT_TRUE(space.Complete());
    EXPECT_EQ(space.Places(), 4U); // off, Idle, Run just started, Run past its limit
    EXPECT_THAT(Taken(space), ElementsAre("1 row 6", "2 row 4", "2 row 7"));
}

// State 2 is left by ELSE at once, so that no time passes in it.
TEST(StateSpace, TimePassesOnlyWhereTheMachineRests) {
    SmallTable table;
    table.Cell(1, 6, 2).Timing(2, kStartConstant, "1").Cell(2, 4, 3).Cell(2, 5, 1).Cell(3, 6, 1);
    EXPECT_THAT(Taken(StateSpace(Machine(table.Document()), Inputs())), ElementsAre("1 row 6", "2 row 5"));
    table.Cell(2, 8, 2); // now event 8 can hold it until the time is up
    EXPECT_THAT(Taken(StateSpace(Machine(table.Document()), Inputs())),
                ElementsAre("1 row 6", "2 row 4", "2 row 5", "2 row 8", "3 row 6"));
}

// Timer A runs on from state 1; B of state 3 is started at any time after it. Only unit by unit it is seen
// that A can be up before B.
TEST(StateSpace, TwoTimersThatMatterAtOnceAreCountedUnitByUnit) {
    SmallTable table;
    table.Timing(1, kStartConstant, "10", "A").Cell(1, 4, 1).Cell(1, 6, 3);
    table.Timing(3, kStartConstant, "10", "B").Cell(3, 4, 1).Cell(3, 7, 4);
    table.Timing(4, kContinueConstant, "15", "A").Cell(4, 4, 5).Cell(4, 6, 6);
    table.Timing(5, kContinueConstant, "8", "B").Cell(5, 4, 1).Cell(5, 6, 1).Cell(6, 7, 1);
    const Machine spaceMachine(table.Document());
    const StateSpace space(spaceMachine, Inputs());
    EXPECT_THAT(Taken(space), Contains("5 row 4"));
    EXPECT_GT(space.Places(), 50U);
}

TEST(StateSpace, ALimitThatNobodyKnowsMayBeAny) {
    SmallTable table;
    table.Cell(1, 6, 2).Timing(2, kStartVariable, ";limit").Cell(2, 4, 3).Cell(2, 5, 1).Cell(3, 6, 1);
    table.Cell(2, 8, 2);
    EXPECT_THAT(Taken(StateSpace(Machine(table.Document()), Inputs())), Contains("2 row 4"));
    SmallTable named;
    named.Cell(1, 6, 2).Timing(2, kStartConstant, "LONG").Cell(2, 4, 1);
    const FsmDocument free = WithFreeLimits(named.Document());
    EXPECT_THAT(Taken(StateSpace(Machine(free), Inputs())), ElementsAre("1 row 6", "2 row 4"));
    const FsmDocument given = WithFreeLimits(named.Document(), {{"LONG", 5}});
    EXPECT_EQ(given.State(2).TimingMode, kStartConstant);
}

// With Polytask one input is there for all looks of a scan.
TEST(StateSpace, AnInputIsTheSameDuringOneScan) {
    SmallTable table;
    table.Polytask().Cell(1, 6, 2).Cell(2, 6, 3).Cell(2, 5, 4).Cell(3, 7, 1).Cell(4, 7, 1);
    EXPECT_THAT(Taken(StateSpace(Machine(table.Document()), Inputs())),
                ElementsAre("1 row 6", "2 row 6", "3 row 7"));
}

TEST(StateSpace, PowerMayComeOnWithAnyInputs) {
    SmallTable table; // state 1 is only looked at once
    table.Cell(1, 6, 2).Cell(1, 5, 3).Cell(2, 7, 1).Cell(3, 7, 4).Cell(4, 7, 3);
    EXPECT_THAT(Taken(StateSpace(Machine(table.Document()), Inputs())),
                ElementsAre("1 row 5", "1 row 6", "2 row 7", "3 row 7", "4 row 7"));
}

TEST(StateSpace, ScansWithoutEndAreFoundOnce) {
    SmallTable ring;
    ring.Polytask().Cell(1, 6, 2).Cell(1, 7, 3).Cell(2, 5, 3).Cell(3, 5, 2).Cell(3, 8, 1);
    const Machine spaceMachine(ring.Document());
    const StateSpace space(spaceMachine, Inputs());
    ASSERT_EQ(space.EndlessScans().size(), 1U);
    EXPECT_EQ(space.EndlessScans().front().Ring.size(), 2U);
    SmallTable held;
    held.Polytask().Cell(1, 6, 2).Cell(2, 5, 1).Cell(2, 7, 2);
    const Machine holdsMachine(held.Document());
    const StateSpace holds(holdsMachine, Inputs());
    ASSERT_EQ(holds.EndlessScans().size(), 1U);
    EXPECT_THAT(holds.EndlessScans().front().Ring, ElementsAre(StateNumber(2)));
    EXPECT_EQ(holds.EndlessScans().front().Row, RowNumber(7));
}

TEST(StateSpace, StopsWhereTheMachineIsTooLarge) {
    SmallTable table; // two timers of a thousand units at all differences
    table.Timing(1, kStartConstant, "1000", "A").Cell(1, 4, 1).Cell(1, 6, 2);
    table.Timing(2, kStartConstant, "1000", "B").Cell(2, 4, 1).Cell(2, 7, 3);
    table.Timing(3, kContinueConstant, "999", "A").Cell(3, 4, 4).Cell(3, 8, 2);
    table.Timing(4, kContinueConstant, "997", "B").Cell(4, 4, 1).Cell(4, 6, 1);
    const Machine machine(table.Document());
    const StateSpace space(machine, Inputs(), {.Places = 1000});
    EXPECT_FALSE(space.Complete());
    EXPECT_LE(space.Places(), 1010U);
}

struct Walk {
    const Machine& At;
    std::size_t Places = 0;

    // Takes the machine anywhere, as a controller would, and asks at each moment whether that is known.
    bool IsKnown(const StateSpace& space, const Inputs& given, const std::vector<test::Tick>& ticks) {
        Clock clock(At);
        clock.Surroundings() = given;
        if (!ticks.empty())
            clock.Surroundings().Events = ticks.front().Events;
        Outcome outcome = clock.PowerOn();
        for (const test::Tick& tick : ticks) {
            if (!IsIdle(outcome))
                return true;
            if (!space.Find(clock.Where()))
                return false;
            ++Places;
            outcome = clock.Advance(tick.Elapsed);
            if (!IsIdle(outcome))
                return true;
            clock.Surroundings().Events = tick.Events;
            if (clock.Scan(1) == Outcome::Spins)
                return true;
            if (!space.Find(clock.Where()))
                return false;
            outcome = clock.Settle();
        }
        return true;
    }
};

Inputs LimitsFor(int seed) {
    Inputs inputs;
    for (const StateNumber state : StateNumbers())
        inputs.Limits[state.Number()] = (state.Number() + seed) % 7;
    return inputs;
}

TEST(StateSpace, HoldsEveryPlaceThatARandomRunMeets) {
    std::size_t places = 0;
    test::ExpectProperty({.Cases = 200, .LargestSize = 40}, [&] {
        const FsmDocument document = *test::AnyMachine();
        RC_PRE(!test::EnteredStates(document).empty());
        const Readings readings{*rc::gen::arbitrary<bool>(), *rc::gen::arbitrary<bool>()};
        const Machine machine(document, {}, readings);
        const Inputs given = LimitsFor(*rc::gen::inRange(0, 7));
        const std::vector<test::Tick> ticks = *test::AnyTicks();
        Walk walk{machine};
        for (const Inputs& known : {given, Inputs()}) {
            const StateSpace space(machine, known, {.Places = 1'000, .Ways = 20'000});
            if (space.Complete())
                RC_ASSERT(walk.IsKnown(space, given, ticks));
        }
        places += walk.Places;
    });
    EXPECT_GT(places, 3'000U);
}

// So that the property above is not true of a set that holds everything: each way is one that the machine
// goes.
TEST(StateSpace, EachScanIsOneThatTheMachineMakes) {
    test::ExpectProperty({.Cases = 100, .LargestSize = 40}, [&] {
        const FsmDocument document = *test::AnyMachine();
        RC_PRE(!test::EnteredStates(document).empty());
        const Machine machine(document);
        const Inputs given = LimitsFor(3);
        const StateSpace space(machine, given, {.Places = 1'000, .Ways = 20'000});
        Inputs inputs = given;
        std::size_t scans = 0;
        for (const SpaceWay& way : space.From(StateSpace::kPowerOff)) {
            if (!way.Raw)
                continue;
            Config config;
            std::vector<run::Taken> log;
            inputs.Events = way.Events;
            RC_ASSERT(machine.PowerOn(config, inputs, log) == ScanEnd::Yields);
            RC_ASSERT(space.Find(config) == way.To);
            for (const SpaceWay& next : space.From(way.To)) {
                Config then = config;
                log.clear();
                inputs.Events = next.Events;
                if (next.Wait > 0)
                    then.Now += next.Wait;
                else
                    RC_ASSERT(machine.Scan(then, inputs, log) == ScanEnd::Yields);
                RC_ASSERT(space.Find(then) == next.To);
                RC_ASSERT(log.size() == next.TakenCount);
                ++scans;
            }
        }
        RC_ASSERT(scans > 0U || space.From(StateSpace::kPowerOff).empty() || space.Places() == 1);
    });
}

TEST(StateSpace, ExamplesAndRealMachinesAreSmall) {
    for (const auto& machines : {test::ExampleDocuments(), test::RealMachines()}) {
        for (const test::NamedDocument& named : machines) {
            const FsmDocument free = WithFreeLimits(named.Document);
            const Machine machine(free);
            if (machine.Start() == StateNumber())
                continue;
            const StateSpace space(machine, Inputs());
            EXPECT_TRUE(space.Complete()) << named.Name;
            EXPECT_LT(space.Places(), 200U) << named.Name;
        }
    }
}

} // namespace
} // namespace orvane::run
