// SPDX-License-Identifier: GPL-3.0-or-later
// What users give the verbs that run machines by mistake: a clear word each, and an end.
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

#include <vector>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string Head(bool polytask = false) {
    return Field("FSM_NAME", "P") + Field("POLYTASK", polytask ? "True" : "False") + Field("EVENT", "6:") +
           Field("CODE", ";go") + Field("NAME", "Go") + Field("/EVENT", "") + Field("EVENT", "7:") +
           Field("CODE", ";back") + Field("NAME", "Back") + Field("/EVENT", "");
}

using BadInput = Orvanec;

TEST_F(BadInput, ASlipHasItsPlaceAndTheNearestName) {
    WriteFile("pump.zfsm", PumpDocument());
    WriteFile("pump.ztest", "test t\n=> Idl\n");
    EXPECT_EQ(Run("test pump.ztest").Status, 3);
    EXPECT_EQ(Run("test pump.ztest").Errors,
              "pump.ztest:2:4: error: no state is called \"Idl\" in pump.zfsm; did you mean \"Idle\"?\n");
    EXPECT_EQ(Run("simulate pump.zfsm pump.ztest").Errors, Run("test pump.ztest").Errors);
    EXPECT_EQ(Run("simulate pump.zfsm pump.ztest").Status, 3);
}

TEST_F(BadInput, ADocumentWithErrorsIsNotRun) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    WriteFile("bad.ztest", "test t\n=> #1\n");
    for (const char* command : {"test bad.ztest", "simulate bad.zfsm", "explore bad.zfsm", "tour bad.zfsm"}) {
        const RunResult run = Run(command);
        EXPECT_EQ(run.Status, 1) << command;
        EXPECT_THAT(run.Errors, StartsWith("bad.zfsm: Missing event test code in row 6\n")) << command;
    }
}

TEST_F(BadInput, LimitsThatAreNamesAreAskedFor) {
    WriteFile("named.zfsm",
              Head() + State("1", "Idle", "", {"6:2"}) +
                  State("2", "Run", Field("TIMINGMODE", "1") + Field("TIMECONST", "LONG"), {"4:1"}));
    WriteFile("named.ztest", "test t\npulse Go => Run\n+5 => Run\n");
    const RunResult asked = Run("test named.ztest");
    EXPECT_EQ(asked.Status, 3);
    EXPECT_THAT(asked.Errors, HasSubstr("the limit of 2:Run is needed and not given; write \"constant LONG = "
                                        "...\" at the top of the file\n"));
    EXPECT_EQ(Run("explore named.zfsm").Status, 0);
    EXPECT_THAT(Run("tour named.zfsm").Output, HasSubstr("\nconstant LONG = 10\n"));
}

TEST_F(BadInput, LabelsThatStandTwiceAreNamed) {
    WriteFile("twice.zfsm",
              Head() + State("1", "Idle", "", {"6:2"}) +
                  State("2", "Run",
                        Field("TIMINGMODE", "1") + Field("TIMECONST", "5") + Field("TIMERID", "3"),
                        {"4:1", "6:3"}) +
                  State("3", "Timer", "", {"6:1"}));
    WriteFile("twice.ztest", "test t\n=> Idle\n");
    for (const char* command : {"test twice.ztest", "simulate twice.zfsm", "tour twice.zfsm"}) {
        const RunResult run = Run(command);
        EXPECT_EQ(run.Status, 1) << command;
        EXPECT_THAT(run.Errors, StartsWith("twice.zfsm: The label P_Timer_3 stands twice in the program\n"))
            << command;
    }
    EXPECT_THAT(Run("explore twice.zfsm").Output, StartsWith("label-twice: The label P_Timer_3 "));
}

TEST_F(BadInput, AMachineWithoutTransitionsHasNoProgramToRun) {
    WriteFile("empty.zfsm", Head() + State("1", "Idle", "", {}));
    WriteFile("empty.ztest", "test t\n=> Idle\n");
    for (const char* command :
         {"test empty.ztest", "simulate empty.zfsm", "explore empty.zfsm", "tour empty.zfsm"}) {
        const RunResult run = Run(command);
        EXPECT_EQ(run.Status, 1) << command;
        EXPECT_EQ(run.Errors,
                  "empty.zfsm: No state is entered by a transition, so that the program has none\n")
            << command;
    }
}

TEST_F(BadInput, TenThousandTestsAreRun) {
    WriteFile("pump.zfsm", PumpDocument());
    std::string tests;
    for (int i = 0; i < 10'000; ++i)
        tests += "test number " + std::to_string(i) + "\npulse #6 => Run\n+100 => Idle\n";
    WriteFile("pump.ztest", "reading at-limit\n" + tests);
    const RunResult run = Run("test pump.ztest");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Output, testing::EndsWith("\n10000 passed, 0 failed\n"));
}

TEST_F(BadInput, AnEndlessRingIsToldEverywhere) {
    WriteFile("ring.zfsm", Head(true) + State("1", "Idle", "", {"6:2"}) +
                               State("2", "A", "", {"5:3", "7:1"}) + State("3", "B", "", {"5:2"}));
    WriteFile("ring.ztest", "test t\n=> Idle\npulse Go => A\n");
    const RunResult run = Run("test ring.ztest");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Output, HasSubstr("t: a scan never ends: the machine comes to "));
    EXPECT_EQ(Run("simulate ring.zfsm ring.ztest").Status, 1);
    EXPECT_THAT(Run("explore ring.zfsm").Output, HasSubstr("never-yields: "));
    EXPECT_EQ(Run("tour ring.zfsm").Status, 0);
}

} // namespace
} // namespace orvane
