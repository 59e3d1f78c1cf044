// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Tour.h"

#include "core/TimingMode.h"
#include "run/AssumedLimits.h"
#include "run/LimitText.h"
#include "run/Machine.h"
#include "run/Obstacles.h"
#include "run/StateSpace.h"
#include "run/TestReader.h"
#include "run/TestRunner.h"
#include "run/TestWriter.h"
#include "support/MachineJson.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/SmallTable.h"
#include "support/TableInterpreter.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using testing::IsEmpty;

constexpr TourOptions kAll = {.EmptyCells = true, .Together = true};

struct TourRun {
    bool Passed = true;
    std::string Why;
    CoverageCount Transitions;
    CoverageCount EmptyCells;
    CoverageCount Pairs;
};

// As it is read back from its text.
TestFile ReadBack(const TestFile& tests) { return ReadTestFile(WriteTestFile(tests)).File; }

TourRun RunTour(const TestFile& file, const FsmDocument& document) {
    TourRun run;
    const TestPlan plan = PlanTests(file, document, "d");
    if (!plan.Slips.empty())
        return {false, plan.Slips.front().Text, {}, {}, {}};
    const TestRunner runner(document, plan, {});
    Coverage coverage = runner.NoCoverage();
    for (const PlannedTest& test : plan.Tests) {
        const TestResult result = runner.Run(test, coverage);
        if (result.Is == Verdict::Passed && result.Notes.empty())
            continue;
        run.Passed = false;
        run.Why = std::to_string(result.At.Line) + ": " + result.Message +
                  (result.Notes.empty() ? "" : result.Notes.front().Text);
        break;
    }
    run.Transitions = coverage.Transitions();
    run.EmptyCells = coverage.EmptyCells();
    run.Pairs = coverage.Pairs();
    return run;
}

std::vector<test::NamedDocument> SoundMachines() {
    std::vector<test::NamedDocument> machines = test::ExampleDocuments();
    for (test::NamedDocument& machine : test::RealMachines())
        machines.push_back(std::move(machine));
    std::erase_if(machines,
                  [](const test::NamedDocument& machine) { return !Obstacles(machine.Document).empty(); });
    return machines;
}

TEST(Tour, IsATestThatPeopleRead) {
    test::SmallTable table;
    table.Name(1, "Idle", ";idle").Cell(1, 6, 2);
    table.Name(2, "Run", "On Motor")
        .Timing(2, kStartConstant, "100")
        .Cell(2, 4, 1)
        .Cell(2, 7, 1, "Off Motor");
    EXPECT_EQ(WriteTestFile(MakeTour(table.Document(), {}).Tests),
              "reading at-limit\n"
              "names 1:Idle 2:Run e6:E6 e7:E7\n"
              "\n"
              "test tour 1\n"
              "                   => Idle  ran 1\n"
              "          pulse E6 => Run  via E6  runs \"On Motor\"  ran 1\n"
              "          pulse E7 => Idle  via E7  runs \"Off Motor\"  ran 2\n"
              "          pulse E6 => Run  via E6  runs \"On Motor\"  ran 1\n"
              "    +99            => Run  stays  ran 0\n"
              "    +1             => Idle  via Timeout  ran 1\n");
}

TEST(Tour, TriesEmptyCellsAndNeighboursWhenAsked) {
    test::SmallTable table;
    table.Name(1, "Idle").Cell(1, 6, 2).Cell(1, 8, 3);
    table.Name(2, "Run").Cell(2, 7, 1).Name(3, "End").Cell(3, 7, 1);
    const Tour tour = MakeTour(table.Document(), kAll);
    const std::string text = WriteTestFile(tour.Tests);
    EXPECT_THAT(text, testing::HasSubstr("pulse E6 E8 => Run  via E6"));
    EXPECT_THAT(text, testing::HasSubstr("pulse E6 E8 => Run  stays  ran 0"));
    EXPECT_THAT(text, testing::HasSubstr("pulse E7    => Idle  stays  ran 0"));
    const TourRun run = RunTour(ReadBack(tour.Tests), table.Document());
    EXPECT_TRUE(run.Passed) << run.Why;
    EXPECT_EQ(run.EmptyCells, (CoverageCount{5, 5}));
    EXPECT_EQ(run.Pairs, (CoverageCount{1, 1}));
    EXPECT_EQ(tour.EmptyCells, run.EmptyCells);
    EXPECT_EQ(tour.Pairs, run.Pairs);
}

TEST(Tour, TellsWhatNoTestCanTake) {
    test::SmallTable table;
    table.Name(1, "Idle").Cell(1, 6, 2).Name(2, "Run").Cell(2, 7, 1);
    table.Timing(2, kStartConstant, "5").Cell(2, 4, 1).Cell(2, 5, 1);
    const Tour tour = MakeTour(table.Document(), {});
    EXPECT_THAT(tour.NeverTaken, testing::ElementsAre(Cell{kTimeoutRow, 2}));
    EXPECT_EQ(tour.Transitions, (CoverageCount{3, 3}));
}

TEST(Tour, EndsWhereTheStepsRunOutAndSaysSo) {
    test::SmallTable table;
    for (int state = 1; state <= 50; ++state)
        table.Name(state, "S" + std::to_string(state)).Cell(state, 6, state % 50 + 1).Cell(state, 7, 1, ";x");
    const Tour whole = MakeTour(table.Document(), {});
    EXPECT_FALSE(whole.StepsRanOut);
    EXPECT_EQ(whole.Transitions, (CoverageCount{100, 100}));
    const Tour some = MakeTour(table.Document(), {.MostSteps = 20});
    EXPECT_TRUE(some.StepsRanOut);
    EXPECT_LE(some.Steps, 21U); // with power-on
    EXPECT_TRUE(RunTour(ReadBack(some.Tests), table.Document()).Passed);
    EXPECT_LT(some.Transitions.Taken, 100U);
}

TEST(Tour, OfRealMachinesPassesAndCoversWhatATestCanTake) {
    for (const test::NamedDocument& machine : SoundMachines()) {
        const Tour tour = MakeTour(machine.Document, kAll);
        const TourRun run = RunTour(ReadBack(tour.Tests), machine.Document);
        EXPECT_TRUE(run.Passed) << machine.Name << ":" << run.Why;
        EXPECT_FALSE(tour.StepsRanOut) << machine.Name;
        EXPECT_EQ(tour.Transitions.Taken, tour.Transitions.All) << machine.Name;
        EXPECT_EQ(run.Transitions.Taken, tour.Transitions.Taken) << machine.Name;
        EXPECT_EQ(run.Transitions.All, run.Transitions.Taken + tour.NeverTaken.size()) << machine.Name;
        const AssumedLimits assumed(machine.Document);
        const Machine whole(machine.Document, assumed.Given);
        const StateSpace space(whole, assumed.Surroundings);
        for (const Cell never : tour.NeverTaken)
            EXPECT_FALSE(space.Takes(never)) << machine.Name << " state " << never.State.Number();
    }
}

TEST(Tour, OfRandomMachinesPassesAndCoversWhatATestCanTake) {
    std::size_t taken = 0;
    std::size_t missed = 0;
    test::ExpectProperty({.Cases = 100, .LargestSize = 40}, [&] {
        const FsmDocument document = *test::AnyMachine();
        RC_PRE(!test::EnteredStates(document).empty());
        RC_PRE(Obstacles(document).empty());
        const Tour tour = MakeTour(document, kAll);
        const TourRun run = RunTour(ReadBack(tour.Tests), document);
        if (!run.Passed)
            RC_FAIL(run.Why + "\n" + WriteTestFile(tour.Tests));
        if (!tour.Complete || tour.StepsRanOut)
            return;
        RC_ASSERT(tour.Transitions.Taken == tour.Transitions.All);
        taken += tour.Transitions.Taken;
        const AssumedLimits assumed(document);
        const Machine machine(document, assumed.Given);
        const StateSpace space(machine, assumed.Surroundings);
        for (const Cell never : tour.NeverTaken)
            missed += space.Takes(never) ? 1 : 0;
    });
    EXPECT_GT(taken, 1'000U);
    // Only what takes inputs that change from scan to scan at the very moment when a wait ends.
    EXPECT_LT(missed * 25, taken);
}

// What a tour notices. Tells each wrong machine that the tour of the right one does not: `makeWrong` spoils
// one cell of a state with a block, or leaves it as it is.
template <typename MakeWrong>
std::vector<std::string> Unnoticed(const TourOptions& options, int& tried, const MakeWrong& makeWrong) {
    std::vector<std::string> unnoticed;
    int machines = 0;
    for (const test::NamedDocument& machine : SoundMachines()) {
        const Tour tour = MakeTour(machine.Document, options);
        const bool isExample = machine.Name.ends_with(".zfsm");
        if (!isExample && (tour.Transitions.All > 25 || ++machines % 3 != 0))
            continue; // the others are enough
        const TestFile tests = ReadBack(tour.Tests);
        const Machine right(machine.Document);
        for (const StateNumber state : StateNumbers()) {
            if (!right.State(state).HasBlock)
                continue;
            for (const RowNumber row : CellRows()) {
                const Cell cell{row, state};
                const bool never =
                    std::find(tour.NeverTaken.begin(), tour.NeverTaken.end(), cell) != tour.NeverTaken.end();
                FsmDocument wrong = machine.Document;
                if (never || !makeWrong(wrong, right, cell) || !Obstacles(wrong).empty())
                    continue;
                ++tried;
                if (RunTour(tests, wrong).Passed)
                    unnoticed.push_back(machine.Name + " state " + std::to_string(state.Number()) + " row " +
                                        std::to_string(row.Number()));
            }
        }
    }
    return unnoticed;
}

bool Leads(const FsmDocument& document, Cell cell) {
    return document.State(cell.State).Targets[cell.Row] != kNoState;
}

TEST(Tour, NoticesWrongTargetsAndMissingTransitions) {
    int tried = 0;
    EXPECT_THAT(Unnoticed({}, tried,
                          [](FsmDocument& wrong, const Machine&, Cell cell) {
                              const bool leads = Leads(wrong, cell);
                              const StateNumber target = wrong.State(cell.State).Targets[cell.Row];
                              wrong.State(cell.State).Targets[cell.Row] = target == StateNumber(1) ? 2 : 1;
                              return leads;
                          }),
                IsEmpty());
    EXPECT_THAT(Unnoticed({}, tried,
                          [](FsmDocument& wrong, const Machine& right, Cell cell) {
                              const bool leads = Leads(wrong, cell);
                              const std::uint64_t holds = right.State(cell.State).Holds;
                              wrong.State(cell.State).Targets[cell.Row] = kNoState;
                              // What holds a state where nothing else happens is as good as nothing.
                              return leads && cell.Row != RowNumber(kTimeoutRow) &&
                                     (holds >> cell.Row.Number() & 1U) == 0;
                          }),
                IsEmpty());
    EXPECT_GT(tried, 100);
}

TEST(Tour, NoticesMissingActionsAndLimitsThatAreOneUnitOff) {
    int tried = 0;
    EXPECT_THAT(Unnoticed({}, tried,
                          [](FsmDocument& wrong, const Machine&, Cell cell) {
                              StateRecord& state = wrong.State(cell.State);
                              const bool dropped =
                                  cell.Row == RowNumber(kTimeoutRow) && HasVariableLimit(state.TimingMode);
                              const bool has = !state.Actions[cell.Row].empty() && !dropped;
                              state.Actions[cell.Row].clear();
                              return has && Leads(wrong, cell);
                          }),
                IsEmpty());
    for (const int off : {-1, 1}) {
        EXPECT_THAT(Unnoticed({}, tried,
                              [off](FsmDocument& wrong, const Machine&, Cell cell) {
                                  StateRecord& state = wrong.State(cell.State);
                                  const std::optional<std::int64_t> limit = LimitNumber(state.TimeConst);
                                  if (cell.Row != RowNumber(kTimeoutRow) || !limit || !Leads(wrong, cell))
                                      return false;
                                  state.TimeConst = std::to_string(*limit + off);
                                  return HasConstantLimit(state.TimingMode);
                              }),
                    IsEmpty());
    }
    EXPECT_GT(tried, 30);
}

TEST(Tour, WithEmptyCellsNoticesTransitionsThatWereAdded) {
    const auto add = [](FsmDocument& wrong, const Machine& machine, Cell cell) {
        std::uint64_t anyEvents = 0;
        for (const StateNumber state : StateNumbers())
            anyEvents |= machine.State(state).Events;
        const bool empty = machine.Yields(cell.State) && (anyEvents >> cell.Row.Number() & 1U) != 0 &&
                           wrong.State(cell.State).Targets[cell.Row] == kNoState;
        wrong.State(cell.State).Targets[cell.Row] = cell.State == StateNumber(1) ? 2 : 1;
        return empty && machine.State(wrong.State(cell.State).Targets[cell.Row]).HasBlock;
    };
    int tried = 0;
    EXPECT_THAT(Unnoticed({.EmptyCells = true}, tried, add), IsEmpty());
    EXPECT_GT(tried, 50);
    EXPECT_GT(Unnoticed({}, tried, add).size(), 20U); // that is what the option is there for
}

// Rows that change places with all that is in them; events keep their names.
TEST(Tour, TogetherNoticesExchangedPriorities) {
    const auto exchange = [](FsmDocument& wrong, const Machine& machine, Cell cell) {
        const RowNumber upper = cell.Row;
        const RowNumber lower = upper + 1;
        if (upper < RowNumber(kFirstEventRow) || upper == RowNumber(kLastRow))
            return false;
        const std::uint64_t both = std::uint64_t{3} << upper.Number();
        const bool together = (machine.State(cell.State).Events & both) == both;
        const auto first = std::find_if(StateNumbers().begin(), StateNumbers().end(), [&](StateNumber state) {
            return machine.Yields(state) && (machine.State(state).Events & both) == both;
        });
        if (!together || *first != cell.State)
            return false; // once is enough
        std::swap(wrong.Event(upper), wrong.Event(lower));
        for (const StateNumber state : StateNumbers()) {
            std::swap(wrong.State(state).Targets[upper], wrong.State(state).Targets[lower]);
            std::swap(wrong.State(state).Actions[upper], wrong.State(state).Actions[lower]);
        }
        return true;
    };
    int tried = 0;
    EXPECT_THAT(Unnoticed({.Together = true}, tried, exchange), IsEmpty());
    EXPECT_GT(tried, 5);
    EXPECT_FALSE(Unnoticed({}, tried, exchange).empty());
}

TEST(Tour, TellsHowFarItIs) {
    std::atomic<int> percent = 0;
    test::SmallTable table;
    table.Name(1, "A").Cell(1, 6, 2).Name(2, "B").Cell(2, 7, 1);
    EXPECT_EQ(MakeTour(table.Document(), {}, {{}, &percent}).Transitions.Taken, 2U);
    EXPECT_EQ(percent, 100);
}

TEST(Tour, EndsWhenSomebodyStopsIt) {
    std::stop_source stop;
    stop.request_stop();
    test::SmallTable table;
    table.Name(1, "A").Cell(1, 6, 2).Name(2, "B").Cell(2, 7, 1);
    EXPECT_EQ(MakeTour(table.Document(), {}, {stop.get_token(), nullptr}).Steps, 0U);
}

} // namespace
} // namespace orvane::run
