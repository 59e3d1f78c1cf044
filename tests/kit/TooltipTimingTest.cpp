// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/TooltipTiming.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using State = TooltipTiming::State;
using Effect = TooltipTiming::Effect;

int TicksUntilShown(int interval) {
    TooltipTiming timing(interval);
    timing.Handle('D');
    for (int ticks = 1;; ++ticks)
        if (timing.Handle('T') == Effect::Show)
            return ticks;
}

TEST(TooltipTiming, ShowsAfterThreeHundredMilliseconds) {
    TooltipTiming timing(100);
    EXPECT_EQ(timing.Current(), State::Hidden);
    EXPECT_EQ(timing.Handle('D'), Effect::None);
    EXPECT_EQ(timing.Current(), State::Waiting);
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    EXPECT_EQ(timing.Current(), State::Waiting);
    EXPECT_EQ(timing.Handle('T'), Effect::Show);
    EXPECT_EQ(timing.Current(), State::Shown);
}

TEST(TooltipTiming, TheDelayIsRoundedToWholeTicks) {
    EXPECT_EQ(TicksUntilShown(1), 300);
    EXPECT_EQ(TicksUntilShown(50), 6);
    EXPECT_EQ(TicksUntilShown(110), 3); // 2.7
    EXPECT_EQ(TicksUntilShown(130), 2); // 2.3
    EXPECT_EQ(TicksUntilShown(120), 2); // 2.5: halves go to the even number
    EXPECT_EQ(TicksUntilShown(200), 2); // 1.5
}

TEST(TooltipTiming, ASlowTimerShowsAtItsFirstTick) {
    EXPECT_EQ(TicksUntilShown(600), 1);
    EXPECT_EQ(TicksUntilShown(60'000), 1);
}

TEST(TooltipTiming, AskingAgainStartsTheDelayAnew) {
    TooltipTiming timing(150);
    timing.Handle('D');
    timing.Handle('T');
    timing.Handle('D');
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    EXPECT_EQ(timing.Handle('T'), Effect::Show);
    timing.Handle('D');
    EXPECT_EQ(timing.Current(), State::Waiting);
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    EXPECT_EQ(timing.Handle('T'), Effect::Show);
}

TEST(TooltipTiming, CallingOffHidesInEveryState) {
    TooltipTiming timing(300);
    EXPECT_EQ(timing.Handle('U'), Effect::Hide);
    timing.Handle('D');
    EXPECT_EQ(timing.Handle('U'), Effect::Hide);
    EXPECT_EQ(timing.Current(), State::Hidden);
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    timing.Handle('D');
    timing.Handle('T');
    EXPECT_EQ(timing.Current(), State::Shown);
    EXPECT_EQ(timing.Handle('U'), Effect::Hide);
    EXPECT_EQ(timing.Current(), State::Hidden);
}

TEST(TooltipTiming, TicksWhileHiddenOrShownDoNothing) {
    TooltipTiming timing(300);
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    EXPECT_EQ(timing.Current(), State::Hidden);
    timing.Handle('D');
    timing.Handle('T');
    EXPECT_EQ(timing.Handle('T'), Effect::None);
    EXPECT_EQ(timing.Current(), State::Shown);
}

} // namespace
} // namespace orvane
