// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Machine.h"

#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::SmallTable;
using testing::ElementsAre;
using testing::IsEmpty;

// A machine with its place and surroundings, one scan a call.
class Bench {
  public:
    explicit Bench(const SmallTable& table, const Constants& constants = {}, Readings readings = {})
        : machine_(table.Document(), constants, readings) {}

    ScanEnd PowerOn() { return machine_.PowerOn(config_, In, log_); }
    ScanEnd ScanAt(Units now, std::initializer_list<int> events = {}) {
        config_.Now = now;
        In.Events = 0;
        for (const int row : events)
            In.Set(row, true);
        log_.clear();
        return machine_.Scan(config_, In, log_);
    }
    int State() const { return config_.State.Number(); }
    std::vector<int> Rows() const {
        std::vector<int> rows;
        for (const Taken& taken : log_)
            rows.push_back(taken.Row.Number());
        return rows;
    }
    const std::vector<Taken>& Log() const { return log_; }
    const Machine& Compiled() const { return machine_; }

    Inputs In;

  private:
    Machine machine_;
    Config config_;
    std::vector<Taken> log_;
};

TEST(Machine, TheLowestRowOfSeveralTrueEventsIsTaken) {
    Bench bench(SmallTable().Cell(1, 6, 2).Cell(1, 7, 3).Cell(2, 8, 1).Cell(3, 8, 1));
    bench.PowerOn();
    bench.ScanAt(0, {7, 6});
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, ATimeoutComesAfterAllEventsOfItsMoment) {
    Bench bench(SmallTable().Cell(1, 9, 2).Cell(1, 4, 3).Timing(1, kStartConstant, "5").Cell(2, 6, 1));
    bench.PowerOn();
    bench.ScanAt(5, {9});
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, AConstantLimitIsUpAtItAndAVariableOneBehindIt) {
    Bench constant(SmallTable().Cell(1, 4, 2).Timing(1, kStartConstant, "5").Cell(2, 6, 1));
    constant.PowerOn();
    constant.ScanAt(4);
    EXPECT_EQ(constant.State(), 1);
    constant.ScanAt(5);
    EXPECT_EQ(constant.State(), 2);

    Bench variable(SmallTable().Cell(1, 4, 2).Timing(1, kStartVariable, ";limit").Cell(2, 6, 1));
    variable.In.Limits[1] = 5;
    variable.PowerOn();
    variable.ScanAt(5);
    EXPECT_EQ(variable.State(), 1);
    variable.ScanAt(6);
    EXPECT_EQ(variable.State(), 2);
}

TEST(Machine, ReadOtherwiseAConstantLimitIsUpOneUnitAfterIt) {
    Bench bench(SmallTable().Cell(1, 4, 2).Timing(1, kStartConstant, "5").Cell(2, 6, 1), {},
                {.AfterLimit = true});
    bench.PowerOn();
    bench.ScanAt(5);
    EXPECT_EQ(bench.State(), 1);
    bench.ScanAt(6);
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, AHeldInputIsMetAgainAtEveryScan) {
    Bench bench(SmallTable().Cell(1, 6, 2).Cell(2, 6, 1));
    bench.PowerOn();
    bench.ScanAt(0, {6});
    EXPECT_EQ(bench.State(), 2);
    bench.ScanAt(0, {6});
    EXPECT_EQ(bench.State(), 1);
}

TEST(Machine, AnEventThatLeadsBackWithoutActionHoldsTheStateAndItsTimer) {
    Bench bench(SmallTable().Cell(1, 6, 1).Cell(1, 4, 2).Timing(1, kStartConstant, "5").Cell(2, 6, 1));
    bench.PowerOn();
    bench.ScanAt(4, {6});
    EXPECT_THAT(bench.Log(), ElementsAre(Taken{1, 6, 1, true}));
    bench.ScanAt(9, {6}); // its row is before the timeout
    EXPECT_EQ(bench.State(), 1);
    bench.ScanAt(9); // the timer was never started anew
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, AnEventThatLeadsBackWithAnActionStartsTheTimerAnew) {
    Bench bench(
        SmallTable().Cell(1, 6, 1, ";again").Cell(1, 4, 2).Timing(1, kStartConstant, "5").Cell(2, 6, 1));
    bench.PowerOn();
    bench.ScanAt(4, {6});
    EXPECT_THAT(bench.Log(), ElementsAre(Taken{1, 6, 1, false}));
    bench.ScanAt(8);
    EXPECT_EQ(bench.State(), 1);
    bench.ScanAt(9);
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, TimeoutAndElseToTheStateItselfEnterItAnew) {
    Bench timeout(SmallTable().Cell(1, 4, 1).Timing(1, kStartConstant, "5").Cell(1, 6, 2).Cell(2, 6, 1));
    timeout.PowerOn();
    timeout.ScanAt(5);
    EXPECT_THAT(timeout.Log(), ElementsAre(Taken{1, 4, 1, false}));
    timeout.ScanAt(9);
    EXPECT_THAT(timeout.Rows(), IsEmpty());

    Bench byElse(SmallTable().Cell(1, 5, 1).Cell(1, 4, 2).Timing(1, kStartConstant, "5").Cell(2, 6, 1));
    byElse.PowerOn();
    byElse.ScanAt(4);
    byElse.ScanAt(8);
    EXPECT_THAT(byElse.Rows(), ElementsAre(5));
}

TEST(Machine, TwoStatesShareATimerWhenItsLabelIsTheSame) {
    Bench bench(SmallTable()
                    .Timing(1, kStartConstant, "9", "A B")
                    .Cell(1, 6, 2)
                    .Timing(2, kContinueConstant, "5", " A_B ")
                    .Cell(2, 4, 1));
    EXPECT_THAT(bench.Compiled().Timers(), ElementsAre("P_Timer_A_B"));
    bench.PowerOn();
    bench.ScanAt(4, {6});
    bench.ScanAt(5);
    EXPECT_EQ(bench.State(), 1);
}

TEST(Machine, AContinuedTimerThatNobodyStartedCountsFromPowerOnOrIsReadAsExpired) {
    const SmallTable table = SmallTable().Timing(1, kContinueConstant, "5").Cell(1, 4, 2).Cell(2, 6, 1);
    Bench sincePowerOn(table);
    sincePowerOn.PowerOn();
    sincePowerOn.ScanAt(4);
    EXPECT_EQ(sincePowerOn.State(), 1);
    sincePowerOn.ScanAt(5);
    EXPECT_EQ(sincePowerOn.State(), 2);

    Bench expired(table, {}, {.UnstartedExpired = true});
    expired.PowerOn();
    expired.ScanAt(0);
    EXPECT_EQ(expired.State(), 2);
}

TEST(Machine, WithPolytaskAPulseMeetsTheNextStateInTheSameMoment) {
    const SmallTable table = SmallTable().Cell(1, 6, 2).Cell(2, 6, 3).Cell(2, 5, 1).Cell(3, 7, 1);
    Bench polytask(SmallTable(table).Polytask());
    polytask.PowerOn();
    polytask.ScanAt(0, {6});
    EXPECT_EQ(polytask.State(), 3);

    Bench plain(table);
    plain.PowerOn();
    plain.ScanAt(0, {6});
    EXPECT_EQ(plain.State(), 2);
    plain.ScanAt(0);
    EXPECT_EQ(plain.State(), 1);
}

TEST(Machine, WithPolytaskAnEventThatHoldsAStateThatElseLeavesNeverYields) {
    Bench bench(SmallTable().Polytask().Cell(1, 6, 2).Cell(2, 6, 2).Cell(2, 5, 1));
    bench.PowerOn();
    EXPECT_EQ(bench.ScanAt(0, {6}), ScanEnd::Spins);
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, WithPolytaskARingOfElseNeverYieldsAndWithoutItGoesOneStateAScan) {
    const SmallTable ring = SmallTable().Cell(1, 6, 2).Cell(2, 5, 3).Cell(3, 5, 2).Cell(3, 7, 1);
    Bench polytask(SmallTable(ring).Polytask());
    polytask.PowerOn();
    EXPECT_EQ(polytask.ScanAt(0, {6}), ScanEnd::Spins);
    EXPECT_THAT(polytask.Rows(), ElementsAre(6, 5, 5));

    Bench plain(ring);
    plain.PowerOn();
    EXPECT_EQ(plain.ScanAt(0, {6}), ScanEnd::Yields);
    EXPECT_EQ(plain.ScanAt(0), ScanEnd::Yields);
    EXPECT_EQ(plain.State(), 3);
}

// The first time round starts the timer, so that the second time is not the same place again: only then is it
// known that the moment does not end.
TEST(Machine, ARingThatStartsATimerSpinsOnlyTheSecondTimeRound) {
    Bench bench(SmallTable()
                    .Polytask()
                    .Cell(1, 6, 2)
                    .Cell(2, 5, 3)
                    .Timing(3, kStartConstant, "5")
                    .Cell(3, 5, 2)
                    .Cell(3, 7, 1));
    bench.PowerOn();
    EXPECT_EQ(bench.ScanAt(7, {6}), ScanEnd::Spins);
    EXPECT_THAT(bench.Rows(), ElementsAre(6, 5, 5, 5));
}

TEST(Machine, PowerOnGoesOnToAStateThatYields) {
    Bench bench(SmallTable().Polytask().Cell(1, 5, 2).Cell(2, 6, 1));
    EXPECT_EQ(bench.PowerOn(), ScanEnd::Yields);
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, ItStartsInTheLowestStateThatHasABlock) {
    Bench bench(SmallTable().Cell(1, 6, 3).Cell(3, 6, 2).Cell(2, 6, 3));
    bench.PowerOn();
    EXPECT_EQ(bench.State(), 2);
    EXPECT_FALSE(bench.Compiled().State(1).HasBlock);
}

TEST(Machine, WithoutAnyTransitionThereIsNoStart) {
    EXPECT_EQ(Machine(SmallTable().Name(1, "Idle").Document()).Start(), StateNumber());
}

TEST(Machine, AnActionWithoutATargetIsNothing) {
    Bench bench(SmallTable().Cell(1, 6, 0, ";never").Cell(1, 7, 2).Cell(2, 7, 1));
    bench.PowerOn();
    bench.ScanAt(0, {6});
    EXPECT_THAT(bench.Log(), IsEmpty());
}

TEST(Machine, ATargetWithoutTestCodeIsNotThereAndLowerRowsAreLookedAt) {
    SmallTable table = SmallTable().Cell(1, 6, 3).Cell(1, 7, 2).Cell(2, 7, 1);
    table.Document().Event(6).Code.clear();
    Bench bench(table);
    bench.PowerOn();
    bench.ScanAt(0, {6, 7});
    EXPECT_EQ(bench.State(), 2);
}

TEST(Machine, AModeThatNobodyKnowsNeitherStartsATimerNorTimesOut) {
    for (const std::int32_t mode : {-1, 5, 99}) {
        SmallTable table = SmallTable().Cell(1, 4, 2).Cell(1, 6, 1).Cell(2, 6, 1);
        table.Document().State(1).TimingMode = mode;
        table.Document().State(1).TimeConst = "0";
        Bench bench(table);
        EXPECT_THAT(bench.Compiled().Timers(), IsEmpty());
        bench.PowerOn();
        bench.ScanAt(9);
        EXPECT_EQ(bench.State(), 1);
    }
}

TEST(Machine, ALimitThatIsANameHasToBeGiven) {
    const SmallTable table =
        SmallTable().Cell(1, 4, 2).Cell(1, 6, 2).Timing(1, kStartConstant, " 3s ").Cell(2, 6, 1);
    Bench unknown(table);
    EXPECT_EQ(unknown.PowerOn(), ScanEnd::Yields);
    EXPECT_EQ(unknown.ScanAt(0), ScanEnd::LimitMissing);
    EXPECT_EQ(unknown.ScanAt(0, {6}), ScanEnd::Yields); // the event comes first: nobody asks for the limit

    Bench given(table, {{"3s", 30}});
    given.PowerOn();
    given.ScanAt(29);
    EXPECT_EQ(given.State(), 1);
    given.ScanAt(30);
    EXPECT_EQ(given.State(), 2);
}

} // namespace
} // namespace orvane::run
