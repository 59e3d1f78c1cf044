// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/LiveRun.h"

#include "run/PumpTable.h"
#include "table/StructuralEdits.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using testing::HasSubstr;

const RowNumber kStartRow = 6;
const RowNumber kStopRow = 7;

class LivePump : public testing::Test {
  protected:
    LivePump() : document(test::PumpTable().Document()), run(document) {}

    // "2 at 30"
    std::string Where() const {
        if (run.Past() == nullptr)
            return run.Obstacles().front();
        return std::to_string(run.State().Number()) + " at " + std::to_string(run.Past()->Now().Where().Now);
    }

    // Inserts a column or row, and so on, and compiles anew.
    template <typename Change>
    void Edit(Change&& change) {
        TableClipboard clipboard;
        change(document, clipboard);
        run.Recompile();
    }

    FsmDocument document;
    LiveRun run;
};

TEST_F(LivePump, DoesWhatIsAskedAndSaysWhyWhenItCannot) {
    run.Pulse(kStartRow);
    EXPECT_EQ(run.Notice(), "the power is off");
    run.PowerOn();
    EXPECT_EQ(run.Notice(), "");
    run.Pulse(kStartRow);
    EXPECT_EQ(Where(), "2 at 0");
    run.ToTimeout();
    EXPECT_EQ(Where(), "1 at 100");
    run.ToTimeout();
    EXPECT_EQ(run.Notice(), "No timeout is coming in 1:Idle");
    run.ToChange();
    EXPECT_EQ(run.Notice(), "Nothing changes in 1:Idle until an input does");
    EXPECT_EQ(Where(), "1 at 100");
}

TEST_F(LivePump, PowerOnBeginsANewRunWithTheInputsAsTheyAre) {
    run.PowerOn();
    run.Hold(kStopRow, true);
    run.Wait(5);
    run.PowerOn();
    EXPECT_EQ(Where(), "1 at 0");
    EXPECT_TRUE(run.IsTrue(kStopRow));
    EXPECT_TRUE(run.CanBringBack());
    run.BringBack();
    EXPECT_EQ(Where(), "1 at 5");
}

TEST_F(LivePump, WhatWasCutOffCanBeBroughtBack) {
    run.PowerOn();
    run.Pulse(kStartRow);
    run.Wait(30);
    EXPECT_FALSE(run.CanBringBack());
    run.Back();
    run.Pulse(kStopRow);
    EXPECT_EQ(Where(), "1 at 0");
    run.BringBack();
    EXPECT_EQ(Where(), "2 at 30");
    EXPECT_FALSE(run.CanBringBack());
}

TEST_F(LivePump, AnEditIsPlayedAgainAndToldWhenItGoesAnotherWay) {
    run.PowerOn();
    run.Pulse(kStartRow);
    run.Wait(60);
    Edit([](FsmDocument& table, TableClipboard&) { table.State(2).TimeConst = "50"; });
    EXPECT_EQ(Where(), "1 at 60");
    EXPECT_EQ(run.Notice(), "Since the edit it goes another way: at 50 to 1:Idle");
    Edit([](FsmDocument& table, TableClipboard&) { table.State(2).TimeConst = "100"; });
    EXPECT_EQ(Where(), "2 at 60");
    EXPECT_EQ(run.Notice(), "Since the edit it does not go to 1:Idle at 50 any more");
    Edit([](FsmDocument& table, TableClipboard&) { table.State(2).Tooltip = "turns"; });
    EXPECT_EQ(run.Notice(), "");
}

TEST_F(LivePump, ARunFollowsStatesAndEventsThatMove) {
    run.PowerOn();
    run.Pulse(kStartRow);
    run.Wait(20);
    Edit([](FsmDocument& table, TableClipboard& clipboard) { InsertState(table, clipboard, 2); });
    EXPECT_EQ(Where(), "3 at 20");
    Edit([](FsmDocument& table, TableClipboard& clipboard) { InsertEvent(table, clipboard, 6); });
    EXPECT_EQ(Where(), "3 at 20");
    EXPECT_EQ(run.Notice(), "");
    run.Pulse(8);
    EXPECT_EQ(Where(), "1 at 20");
}

TEST_F(LivePump, ARunStandsBeforeAStepWhoseEventIsGoneAndComesBackWithIt) {
    run.PowerOn();
    run.Pulse(kStartRow);
    run.Wait(20);
    run.Pulse(kStopRow);
    const FsmDocument before = document;
    Edit([](FsmDocument& table, TableClipboard& clipboard) { DeleteEvent(table, clipboard, kStopRow); });
    EXPECT_EQ(Where(), "2 at 20");
    EXPECT_EQ(run.Notice(), "The run stands before step 4, which does not fit the table any more: the event "
                            "Stop is gone");
    Edit([&](FsmDocument& table, TableClipboard&) { table.State(1).Tooltip = "another edit"; });
    EXPECT_EQ(Where(), "2 at 20");
    Edit([&](FsmDocument& table, TableClipboard&) { table = before; });
    EXPECT_EQ(Where(), "1 at 20");
    EXPECT_EQ(run.Notice(), "");
}

TEST_F(LivePump, GoingOnWhereARunStandsMakesItTheRun) {
    run.PowerOn();
    run.Pulse(kStartRow);
    run.Pulse(kStopRow);
    const FsmDocument before = document;
    Edit([](FsmDocument& table, TableClipboard& clipboard) { DeleteEvent(table, clipboard, kStopRow); });
    run.Wait(7);
    EXPECT_EQ(Where(), "2 at 7");
    Edit([&](FsmDocument& table, TableClipboard&) { table = before; });
    EXPECT_EQ(Where(), "2 at 7");
}

TEST_F(LivePump, AnErrorOfTheDesignStopsTheRunUntilItIsMended) {
    run.PowerOn();
    run.Pulse(kStartRow);
    Edit([](FsmDocument& table, TableClipboard&) { table.Event(6).Code.clear(); });
    EXPECT_FALSE(run.Obstacles().empty());
    EXPECT_EQ(run.Past(), nullptr);
    EXPECT_EQ(run.State(), StateNumber());
    run.Pulse(kStopRow);
    EXPECT_EQ(run.Notice(), run.Obstacles().front());
    run.PowerOn();
    EXPECT_EQ(run.Notice(), run.Obstacles().front());
    Edit([](FsmDocument& table, TableClipboard&) { table.Event(6).Code = "\tIn\tA"; });
    EXPECT_EQ(Where(), "2 at 0");
}

TEST_F(LivePump, AnEditThatLetsItGoRoundWithoutEndStandsThere) {
    run.PowerOn();
    run.Hold(kStartRow, true);
    run.Wait(5);
    Edit([](FsmDocument& table, TableClipboard&) {
        table.State(2).Targets[6] = 1;
        table.State(2).Actions[6] = ";back";
    });
    EXPECT_THAT(run.Notice(), HasSubstr("it goes round through 1:Idle, 2:Run and never comes to rest"));
    run.Wait(1);
    EXPECT_THAT(run.Notice(), HasSubstr("never comes to rest"));
    run.Back();
    EXPECT_EQ(Where(), "1 at 0");
}

TEST_F(LivePump, AConstantThatIsANameIsAskedForAndHolds) {
    document.State(2).TimeConst = " LONG";
    run.Restart();
    run.PowerOn();
    EXPECT_EQ(run.Wanted(), std::nullopt);
    run.Pulse(kStartRow);
    EXPECT_EQ(run.Past()->End(), Outcome::LimitMissing);
    EXPECT_EQ(run.Wanted(), (WantedLimit{2, true, "LONG", true}));
    run.Wait(1);
    EXPECT_THAT(run.Notice(), HasSubstr("the limit of 2:Run is not known"));
    run.GiveLimit(40);
    EXPECT_EQ(run.Wanted(), (WantedLimit{2, true, "LONG", false}));
    run.ToTimeout();
    EXPECT_EQ(Where(), "1 at 40");
}

TEST_F(LivePump, AVariableLimitIsGivenBeforeTheStepThatNeedsIt) {
    document.State(2).TimingMode = 2;
    document.State(2).TimingVar = "\tLoad\tLEVEL";
    run.Restart();
    run.PowerOn();
    run.Pulse(kStartRow);
    ASSERT_TRUE(run.Wanted().has_value());
    EXPECT_TRUE(run.Wanted()->Missing);
    run.GiveLimit(9);
    EXPECT_EQ(run.Past()->Steps().size(), 3U);
    EXPECT_EQ(run.Past()->Steps()[1], LimitOf(2, 9));
    run.ToTimeout();
    EXPECT_EQ(Where(), "1 at 10"); // a variable limit is up when it is passed
    run.Back();
    run.GiveLimit(19);
    run.ToTimeout();
    EXPECT_EQ(Where(), "1 at 20");
}

TEST_F(LivePump, TimeThatPassesWithoutAnythingIsOneStep) {
    run.PowerOn();
    run.Pulse(kStartRow);
    for (int i = 0; i < 25; ++i)
        run.PassTime(10);
    EXPECT_EQ(Where(), "1 at 250");
    EXPECT_EQ(run.Past()->Steps().size(), 4U); // the wait that the timeout ends, and the one behind it
    run.Back();
    EXPECT_EQ(Where(), "1 at 100");
}

TEST_F(LivePump, APulseOfAHeldInputSaysThatItIsHeld) {
    run.PowerOn();
    run.Hold(kStopRow, true);
    run.Pulse(kStopRow);
    EXPECT_EQ(run.Notice(), "Stop is held already; Ctrl+click or H lets it go");
    EXPECT_TRUE(run.IsTrue(kStopRow));
}

TEST_F(LivePump, ARunFromElsewhereIsPlayedUnderItsReadingAndCanBeLeftAgain) {
    run.PowerOn();
    run.Wait(3);
    run.Play(
        {{{0, RunAct::PowerOn}, PulseOf(BitOf(kStartRow)), WaitFor(100)}, {}, {.AfterLimit = true}, {2, 0}});
    EXPECT_EQ(Where(), "2 at 0");
    run.Forward();
    EXPECT_EQ(Where(), "2 at 100");
    run.BringBack();
    EXPECT_EQ(Where(), "1 at 3");
}

TEST_F(LivePump, AnotherDocumentBeginsWithoutARun) {
    run.PowerOn();
    run.Pulse(kStartRow);
    run.Restart();
    EXPECT_EQ(run.State(), StateNumber());
    EXPECT_FALSE(run.CanBringBack());
    EXPECT_TRUE(run.Past()->Steps().empty());
}

class LongRun : public LivePump {
  protected:
    LongRun() {
        run.PowerOn();
        for (int i = 0; i < kRounds; ++i) {
            run.Pulse(kStartRow);
            run.Pulse(kStopRow);
        }
    }

    static constexpr int kRounds = 50'000;
    static constexpr std::size_t kSteps = 1 + 2 * kRounds;
};

TEST_F(LongRun, IsPlayedAgainPieceByPiece) {
    document.State(2).Targets[7] = 2; // does not stop any more
    run.Recompile();
    ASSERT_TRUE(run.IsReplaying());
    int pieces = 0;
    for (int percent = run.PercentReplayed(); run.IsReplaying(); ++pieces) {
        EXPECT_LT(percent, 100);
        run.ReplayMore();
        EXPECT_GT(run.PercentReplayed(), percent);
        percent = run.PercentReplayed();
    }
    EXPECT_GE(pieces, 3);
    EXPECT_EQ(run.Past()->Steps().size(), kSteps);
    EXPECT_EQ(run.State(), StateNumber(2));
    EXPECT_THAT(run.Notice(), HasSubstr("Since the edit it "));
}

TEST_F(LongRun, WhateverIsAskedForIsDoneBehindAllOfIt) {
    run.Recompile();
    ASSERT_TRUE(run.IsReplaying());
    run.Wait(5);
    EXPECT_FALSE(run.IsReplaying());
    EXPECT_EQ(run.Past()->Steps().size(), kSteps + 1);
    run.Recompile();
    run.Back();
    EXPECT_EQ(run.Past()->At().Steps, kSteps);
}

// The first edit's piece was played on a table that is not there any more.
TEST_F(LongRun, AnEditMeanwhileBeginsAnewAndLosesNothing) {
    run.GoToTime(0);
    run.Back();
    document.Event(6).Name = "Go";
    run.Recompile();
    run.ReplayMore();
    ASSERT_TRUE(run.IsReplaying());
    document.Event(6).Name = "Begin";
    run.Recompile();
    while (run.IsReplaying())
        run.ReplayMore();
    EXPECT_EQ(run.Past()->Steps().size(), kSteps);
    EXPECT_EQ(run.Past()->At().Steps, kSteps - 1);
    EXPECT_EQ(run.Notice(), "");
}

TEST_F(LongRun, AnErrorMeanwhileKeepsIt) {
    run.Recompile();
    ASSERT_TRUE(run.IsReplaying());
    document.State(2).TimeConst.clear();
    run.Recompile();
    EXPECT_FALSE(run.IsReplaying());
    EXPECT_FALSE(run.Obstacles().empty());
    document.State(2).TimeConst = "100";
    run.Recompile();
    run.Wait(0);
    EXPECT_EQ(run.Past()->Steps().size(), kSteps + 1);
}

} // namespace
} // namespace orvane::run
