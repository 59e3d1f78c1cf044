// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class TourVerb : public Orvanec {
  protected:
    TourVerb() { WriteFile("pump.zfsm", PumpDocument()); }
};

TEST_F(TourVerb, WritesTestsThatPassAndTakeEveryTransition) {
    const RunResult run = Run("tour pump.zfsm -o pump.ztest");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "pump.zfsm: 3 of 3 transitions in 6 steps\n");
    EXPECT_THAT(ReadFile("pump.ztest"),
                StartsWith("; Written by orvanec tour: what the machine did then. 3 of 3 transitions\n"
                           "reading at-limit\n"));
    const RunResult tests = Run("test --strict --notes-fail --coverage=100 pump.zfsm");
    EXPECT_EQ(tests.Status, 0) << tests.Output << tests.Errors;
    EXPECT_THAT(tests.Output, HasSubstr("pump.zfsm: 2 of 2 states, 3 of 3 transitions\n"));
}

TEST_F(TourVerb, TriesEmptyCellsAndNeighboursWhenAsked) {
    const RunResult run = Run("tour --empty-cells --together pump.zfsm -o pump.ztest");
    EXPECT_THAT(run.Errors, StartsWith("pump.zfsm: 3 of 3 transitions, 2 of 2 empty cells, 0 of 0 "
                                       "neighbouring events together in "));
    EXPECT_THAT(Run("test --coverage pump.zfsm").Output,
                HasSubstr("2 of 2 empty cells tried, 0 of 0 neighbouring events together\n"));
}

TEST_F(TourVerb, ATestFileElsewhereSaysWhoseItIs) {
    std::filesystem::create_directories(Path("tests"));
    EXPECT_EQ(Run("tour pump.zfsm -o tests/all.ztest").Status, 0);
    EXPECT_THAT(ReadFile("tests/all.ztest"), HasSubstr("\nmachine ../pump.zfsm\n"));
    EXPECT_EQ(Run("test tests").Status, 0);
    EXPECT_THAT(Run("tour pump.zfsm").Output, HasSubstr("\nmachine pump.zfsm\n"));
    EXPECT_EQ(Run("tour pump.zfsm").Output, Run("tour pump.zfsm -o -").Output);
}

TEST_F(TourVerb, EndsWhereTheStepsRunOutAndSaysSo) {
    const RunResult run = Run("tour --limit 2 pump.zfsm -o pump.ztest");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Errors, HasSubstr("pump.zfsm: the tests end after 2 steps; --limit allows more\n"));
    EXPECT_EQ(Run("test pump.zfsm").Status, 0);
    EXPECT_EQ(Run("tour --limit 0 pump.zfsm").Status, 2);
}

TEST_F(TourVerb, WhatItCannotRunItSays) {
    EXPECT_EQ(Run("tour gone.zfsm").Status, 3);
    EXPECT_EQ(Run("tour").Status, 2);
    WriteFile("bad.zfsm", DocumentWithErrors());
    EXPECT_EQ(Run("tour bad.zfsm -o bad.ztest").Status, 1);
    EXPECT_FALSE(Exists("bad.ztest"));
    EXPECT_EQ(Run("tour pump.zfsm -o no/such/folder").Status, 3);
}

} // namespace
} // namespace orvane
