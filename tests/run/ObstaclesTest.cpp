// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Obstacles.h"

#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::SmallTable;
using testing::ElementsAre;
using testing::IsEmpty;

SmallTable Pair() { return SmallTable().Cell(1, 6, 2).Cell(2, 6, 1); }

TEST(Obstacles, ASoundMachineHasNone) {
    EXPECT_THAT(Obstacles(Pair().Timing(1, kStartConstant, "3s").Cell(1, 4, 2).Document()), IsEmpty());
}

TEST(Obstacles, AnErrorOfTheDesignIsOneAndANoteIsNot) {
    EXPECT_THAT(Obstacles(Pair().Timing(1, kStartConstant, "").Cell(1, 4, 2).Document()),
                ElementsAre("State 1: needs a time constant"));
    EXPECT_THAT(Obstacles(Pair().Timing(1, kStartConstant, "").Document()), IsEmpty());
}

TEST(Obstacles, AMissingNameIsToldOnOneLine) {
    SmallTable table = Pair();
    table.Document().General.FsmName.clear();
    const std::vector<std::string> obstacles = Obstacles(table.Document());
    ASSERT_EQ(obstacles.size(), 1U);
    EXPECT_EQ(obstacles[0].find_first_of("\r\n"), std::string::npos);
}

TEST(Obstacles, AMachineThatNothingEntersHasNoProgram) {
    EXPECT_THAT(Obstacles(SmallTable().Name(1, "Idle").Document()),
                ElementsAre("No state is entered by a transition, so that the program has none"));
}

TEST(Obstacles, ALabelThatStandsTwiceIsNamed) {
    EXPECT_THAT(Obstacles(SmallTable()
                              .Timing(1, kStartConstant, "5", "3")
                              .Cell(1, 6, 3)
                              .Name(3, "Timer")
                              .Cell(3, 6, 1)
                              .Document()),
                ElementsAre("The label P_Timer_3 stands twice in the program"));
}

TEST(Obstacles, ALimitBelowZeroOrBeyondATimerIsRefusedWhereTheProgramHasIt) {
    const auto timed = [](const char* limit) {
        return Pair().Name(1, "Wait").Timing(1, kStartConstant, limit).Cell(1, 4, 2);
    };
    EXPECT_THAT(Obstacles(timed("-1").Document()),
                ElementsAre("State 1:Wait has a time constant below zero"));
    EXPECT_THAT(Obstacles(timed("16777216").Document()),
                ElementsAre("State 1:Wait has a time constant beyond the 16777215 that a timer can count"));
    EXPECT_THAT(Obstacles(timed("16777215").Document()), IsEmpty());
    EXPECT_THAT(Obstacles(timed("-1").Cell(1, 4, 0).Document()), IsEmpty());
}

} // namespace
} // namespace orvane::run
