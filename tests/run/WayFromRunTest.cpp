// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/WayFromRun.h"

#include "run/LiveRun.h"
#include "run/Obstacles.h"
#include "run/PumpTable.h"
#include "support/MachineJson.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace orvane::run {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr int kRuns = 4; // of each machine

// Presses what a user could, without much sense.
void DoSomething(LiveRun& run, std::mt19937& random) {
    const RowNumber event = kFirstEventRow + int(random() % 12);
    switch (random() % 6) {
    case 0:
        return run.Hold(event, !run.IsTrue(event));
    case 1:
        return run.ToTimeout();
    case 2:
        return run.Wait(Units(random() % 30));
    default:
        return run.Pulse(event);
    }
}

// Whether the last step of the run has entered the state.
bool CameTo(const LiveRun& run, StateNumber state) {
    const std::span<const LogEntry> log = run.Past()->Log();
    return std::any_of(log.begin(), log.end(), [&](const LogEntry& entry) {
        return entry.Step + 1 == run.Past()->Steps().size() && entry.To == state.Number() && !entry.Holds;
    });
}

struct Played {
    int Ways = 0;
    int Missed = 0;
};

Played PlayWays(const FsmDocument& document, std::mt19937& random) {
    Played played;
    LiveRun run(document);
    if (random() % 4 != 0)
        run.PowerOn();
    for (int i = 0; i < int(random() % 20); ++i)
        DoSomething(run, random);
    for (const StateNumber to : StateNumbers()) {
        const std::optional<WayAsked> asked = run.AskWay(to);
        if (!asked)
            break;
        const WayFromRun way = FindWayFromRun(document, *asked);
        if (!way.Steps)
            continue;
        run.GoWay(to, way);
        ++played.Ways;
        if (!CameTo(run, to))
            ++played.Missed;
    }
    return played;
}

TEST(WayFromRun, LeadsToEachStateFromWhereverARunOfAnExampleStands) {
    std::mt19937 random(1);
    int ways = 0;
    for (const test::NamedDocument& example : test::ExampleDocuments()) {
        if (!Obstacles(example.Document).empty())
            continue;
        for (int i = 0; i < kRuns; ++i) {
            const Played played = PlayWays(example.Document, random);
            EXPECT_EQ(played.Missed, 0) << example.Name << " run " << i;
            ways += played.Ways;
        }
    }
    EXPECT_GT(ways, 200);
}

class PumpWay : public testing::Test {
  protected:
    PumpWay() : document(test::PumpTable().Document()) {}

    void Go(StateNumber to) {
        const std::optional<WayAsked> asked = run.AskWay(to);
        ASSERT_TRUE(asked);
        run.GoWay(to, FindWayFromRun(document, *asked));
    }
    std::vector<RunStep> Steps() const { return {run.Past()->Steps().begin(), run.Past()->Steps().end()}; }

    FsmDocument document;
    LiveRun run{document};
};

TEST_F(PumpWay, WithoutPowerBeginsWithPower) {
    Go(2);
    EXPECT_THAT(Steps(), ElementsAre(RunStep{}, PulseOf(BitOf(6))));
    EXPECT_EQ(run.State(), StateNumber(2));
    EXPECT_EQ(run.Notice(), "The shortest way to 2:Run was played");
    run.Back();
    EXPECT_EQ(run.State(), StateNumber(1));
    run.Back();
    EXPECT_EQ(run.State(), StateNumber());
}

TEST_F(PumpWay, CutsOffWhatLiesBehindTheMomentShownAndThatComesBack) {
    run.PowerOn();
    run.Wait(7);
    run.Back();
    Go(2);
    EXPECT_THAT(Steps(), ElementsAre(RunStep{}, PulseOf(BitOf(6))));
    run.BringBack();
    EXPECT_THAT(Steps(), ElementsAre(RunStep{}, WaitFor(7)));
}

TEST_F(PumpWay, IsToldWhereThereIsNone) {
    document.State(3).Name = "Lost";
    document.State(3).Targets[6] = 1;
    run.Recompile();
    run.PowerOn();
    Go(3);
    EXPECT_EQ(run.Notice(), "No way leads from 1:Idle to 3:Lost");
    EXPECT_THAT(Steps(), ElementsAre(RunStep{}));
}

// What nobody knows is assumed, which is a step of the run and told.
TEST_F(PumpWay, SetsALimitThatOnlyTheUserKnows) {
    document.State(2).TimingMode = kStartVariable;
    document.State(2).TimingVar = "GetLimit";
    document.State(2).Targets[7] = kNoState;
    run.Recompile();
    run.PowerOn();
    run.Pulse(6);
    ASSERT_EQ(run.Past()->End(), Outcome::LimitMissing);
    run.Back();
    Go(2);
    EXPECT_THAT(run.Notice(),
                StartsWith("The shortest way to 2:Run was played; the limit of 2:Run was taken as "));
    EXPECT_EQ(run.Past()->End(), Outcome::Quiet);
    EXPECT_EQ(Steps().size(), 3U);
    Go(1);
    EXPECT_EQ(run.State(), StateNumber(1));
    EXPECT_EQ(Steps().size(), 4U); // the limit is known now
}

TEST_F(PumpWay, TakesALimitThatIsANameAndKeepsOneThatWasGiven) {
    document.State(2).TimeConst = "LONG";
    document.State(2).Targets[7] = kNoState;
    run.Recompile();
    Go(2);
    EXPECT_THAT(run.Notice(),
                StartsWith("The shortest way to 2:Run was played; the limit LONG was taken as 10"));
    EXPECT_EQ(run.Given(), (Constants{{"LONG", 10}}));
    run.GiveLimit(25);
    Go(1);
    EXPECT_EQ(run.Notice(), "The shortest way to 1:Idle was played");
    EXPECT_EQ(run.Past()->Now().Where().Now, 25);
}

TEST_F(PumpWay, BelongsToARunThatCanGoOn) {
    document.State(1).Targets[kElseRow] = 2;
    document.State(2).TimingMode = 0;
    document.State(2).TimeConst.clear();
    document.State(2).Targets[kTimeoutRow] = kNoState;
    document.State(2).Targets[kElseRow] = 1;
    run.Recompile();
    run.PowerOn();
    ASSERT_EQ(run.Past()->End(), Outcome::Oscillates);
    EXPECT_FALSE(run.AskWay(2));
    EXPECT_NE(run.Notice(), "");
}

TEST_F(PumpWay, IsNotLookedForOnceSomebodyStops) {
    run.PowerOn();
    std::stop_source stop;
    stop.request_stop();
    const WayFromRun way = FindWayFromRun(document, *run.AskWay(2), stop.get_token());
    EXPECT_FALSE(way.Steps);
    EXPECT_FALSE(way.Complete);
}

} // namespace
} // namespace orvane::run
