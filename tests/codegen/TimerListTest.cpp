// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/TimerList.h"

#include "support/DocumentText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> IdsAfter(std::initializer_list<std::string_view> added) {
    TimerList timers;
    for (const std::string_view id : added)
        timers.Add(id);
    return timers.Ids();
}

TEST(TimerList, KeepsIdsInTheOrderOfFirstUse) {
    EXPECT_THAT(IdsAfter({"C", "A", "B", "A", "C"}), ElementsAre("C", "A", "B"));
}

TEST(TimerList, TheEmptyIdIsTheDefaultTimerAndNotListed) {
    TimerList timers;
    EXPECT_FALSE(timers.DefaultTimerUsed());
    timers.Add("A");
    EXPECT_FALSE(timers.DefaultTimerUsed());
    timers.Add("");
    EXPECT_TRUE(timers.DefaultTimerUsed());
    EXPECT_THAT(timers.Ids(), ElementsAre("A"));
    EXPECT_THAT(TimerList().Ids(), IsEmpty());
}

TEST(TimerList, AnIdThatIsTheTailOfOneListedBeforeIsNotAdded) {
    EXPECT_THAT(IdsAfter({"BA", "A"}), ElementsAre("BA"));
    EXPECT_THAT(IdsAfter({"A", "BA"}), ElementsAre("A", "BA"));
    EXPECT_THAT(IdsAfter({"AB", "A"}), ElementsAre("AB", "A"));
}

TEST(TimerList, IdsAreListedUntrimmed) {
    EXPECT_THAT(IdsAfter({" A", "A ", "  "}), ElementsAre(" A", "A ", "  "));
    EXPECT_THAT(IdsAfter({" A", "A"}), ElementsAre(" A"));
}

TEST(TimerList, AHundredLongLookAlikesAreListedOnce) {
    // Each differs in its first character only: the worst case of a search that compares from the front.
    TimerList timers;
    for (int round = 0; round < 2; ++round)
        for (char first = 'A'; first <= 'Z'; ++first)
            timers.Add(first + Repeated("ab", 20'000));
    EXPECT_EQ(timers.Ids().size(), 26u);
}

} // namespace
} // namespace orvane
