// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

#include <vector>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// Events E6 to E8, each with a test of its own.
std::string Events() {
    std::string text = Field("FSM_NAME", "P");
    for (const std::string row : {"6", "7", "8"})
        text += Field("EVENT", row + ":") + Field("CODE", ";test " + row) + Field("NAME", "E" + row) +
                Field("/EVENT", "");
    return text;
}

std::string Timing(const std::string& mode, const std::string& limit, const std::string& timer) {
    return Field("TIMINGMODE", mode) + Field("TIMECONST", limit) + Field("TIMERID", timer);
}

class Explore : public Orvanec {
  protected:
    Explore() {
        WriteFile("pump.zfsm", PumpDocument());
        WriteFile("ends.zfsm", Events() + State("1", "Idle", "", {"6:2"}) +
                                   State("2", "Run", Timing("1", "LONG", ""), {"4:1", "7:1", "8:3"}) +
                                   State("3", "End", "", {}));
    }
};

TEST_F(Explore, IsSilentWhereThereIsNothingToSay) {
    const RunResult run = Run("explore pump.zfsm");
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Status, 0);
}

TEST_F(Explore, TellsAFindingALine) {
    const RunResult run = Run("explore ends.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, "no-way-back: From 3:End no way leads back to the start, 1:Idle\n"
                          "trap: Nothing leads out of 3:End: the machine stays there until power is off\n");
    EXPECT_EQ(
        Run("explore --json ends.zfsm").Output,
        "{\"version\":1,\"complete\":true,\"findings\":["
        "{\"kind\":\"no-way-back\",\"state\":3,\"row\":null,\"text\":\"From 3:End no way leads "
        "back to "
        "the start, 1:Idle\"},"
        "{\"kind\":\"trap\",\"state\":3,\"row\":null,\"text\":\"Nothing leads out of 3:End: the machine "
        "stays there until power is off\"}]}\n");
}

TEST_F(Explore, PrintsTheShortestWayAsATestThatPasses) {
    const RunResult run = Run("explore ends.zfsm --from Run --to End");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_THAT(run.Output, HasSubstr("test from 2:Run to 3:End\n"));
    EXPECT_THAT(run.Output, HasSubstr("pulse E6 => Run  via E6\n"));
    EXPECT_THAT(run.Output, HasSubstr("pulse E8 => End  via E8\n"));
    WriteFile("ends.ztest", run.Output);
    EXPECT_EQ(Run("test ends.zfsm").Status, 0);
    EXPECT_THAT(Run("explore pump.zfsm --to Run").Output, StartsWith("test to 2:Run\n"));
    EXPECT_THAT(Run("explore --json pump.zfsm --to '#2'").Output,
                StartsWith("{\"version\":1,\"way\":\"test"));
}

TEST_F(Explore, NoWayIsStatusOneAndSaysSo) {
    const RunResult run = Run("explore ends.zfsm --from End --to Idle");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "ends.zfsm: no way leads from End to Idle\n");
    EXPECT_EQ(Run("explore --json ends.zfsm --from End --to Idle").Output, "{\"version\":1,\"way\":null}\n");
}

TEST_F(Explore, WhatItCannotFindItSays) {
    EXPECT_EQ(Run("explore pump.zfsm --to Rum").Errors,
              "orvanec: no state is called \"Rum\" in pump.zfsm; did you mean \"Run\"?\n");
    EXPECT_EQ(Run("explore pump.zfsm --to Rum").Status, 3);
    EXPECT_EQ(Run("explore pump.zfsm --from Run").Status, 2);
    EXPECT_EQ(Run("explore gone.zfsm").Status, 3);
    WriteFile("bad.zfsm", DocumentWithErrors());
    EXPECT_EQ(Run("explore bad.zfsm").Status, 1);
    EXPECT_THAT(Run("explore bad.zfsm").Errors, StartsWith("bad.zfsm: Missing event test code in row 6\n"));
}

TEST_F(Explore, AMachineThatIsTooLargeIsToldAndNeverHangs) {
    WriteFile("large.zfsm", Events() + State("1", "A", Timing("1", "100000", "A"), {"4:1", "6:2"}) +
                                State("2", "B", Timing("1", "100000", "B"), {"4:1", "7:3"}) +
                                State("3", "C", Timing("3", "99999", "A"), {"4:4", "8:2"}) +
                                State("4", "D", Timing("3", "99997", "B"), {"4:1", "6:1"}));
    const RunResult run = Run("explore large.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Errors, StartsWith("large.zfsm: the machine can be in too many places"));
    EXPECT_THAT(Run("explore --json large.zfsm").Output, HasSubstr("\"complete\":false"));
}

TEST_F(Explore, CheckTellsItAsAdviceThatIsNoError) {
    const RunResult plain = Run("check ends.zfsm");
    const RunResult run = Run("check --advice ends.zfsm");
    EXPECT_EQ(run.Status, plain.Status);
    EXPECT_EQ(run.Output,
              plain.Output + "Advice: From 3:End no way leads back to the start, 1:Idle [no-way-back]\n"
                             "Advice: Nothing leads out of 3:End: the machine stays there until power is off "
                             "[trap]\n");
    const std::string json = Run("check --advice --format json ends.zfsm").Output;
    EXPECT_THAT(json, HasSubstr(",\"advice\":[{\"kind\":\"no-way-back\",\"line\":31,\"state\":3,"));
    EXPECT_THAT(Run("check --format json ends.zfsm").Output, testing::Not(HasSubstr("advice")));
}

} // namespace
} // namespace orvane
