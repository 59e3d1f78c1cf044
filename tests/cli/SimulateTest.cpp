// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kTests = "test stops by itself\n"
                               "  pulse #6  => Run\n"
                               "  +100      => Run\n"
                               "test stops when told\n"
                               "  pulse #6  => Run\n"
                               "  pulse #7  => Idle\n";

class Simulate : public Orvanec {
  protected:
    Simulate() {
        WriteFile("pump.zfsm", PumpDocument());
        WriteFile("pump.ztest", kTests);
    }
};

TEST_F(Simulate, WithoutTestsSwitchesTheMachineOn) {
    const RunResult run = Run("simulate pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, "0         => 1:Idle  power on  runs \";idle entry\"\n");
}

TEST_F(Simulate, PrintsTheRunOfATestAndGoesOn) {
    const RunResult run = Run("simulate pump.zfsm pump.ztest 'stops when told'");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_THAT(run.Output, HasSubstr("0         => 2:Run  via \"row 6\"  runs \""));
    EXPECT_THAT(run.Output, HasSubstr("0         => 1:Idle  via \"row 7\"  runs \""));
    EXPECT_EQ(run.Output, Run("simulate pump.zfsm pump.ztest told").Output);
}

TEST_F(Simulate, WhatFailsStandsWhereItFails) {
    const RunResult run = Run("simulate pump.zfsm pump.ztest itself");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Output, HasSubstr("=> 1:Idle  via Timeout"));
    EXPECT_THAT(run.Output, HasSubstr("\npump.ztest:3:16: failed: expected 2:Run, but at 100"));
}

TEST_F(Simulate, AllTestsHaveTheirNamesAbove) {
    const std::string output = Run("simulate pump.zfsm pump.ztest").Output;
    EXPECT_THAT(output, StartsWith("test stops by itself\n0 "));
    EXPECT_THAT(output, HasSubstr("\n\ntest stops when told\n0 "));
    EXPECT_EQ(Run("simulate pump.zfsm pump.ztest --csv out.csv").Status, 2);
    EXPECT_EQ(Run("simulate pump.zfsm pump.ztest --csv out.csv").Errors,
              "orvanec: --csv and --vcd take one run; name one of the 2 tests in pump.ztest\n"
              "Run \"orvanec --help\" for how it is used.\n");
}

TEST_F(Simulate, TakesStepsFromStandardInput) {
    const RunResult run = Run("simulate pump.zfsm - <<'END'\npulse #6 => Run\n+1 => Idle\nEND\n");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Output, HasSubstr("standard input:2:7: failed: expected 1:Idle"));
    EXPECT_EQ(Run("simulate pump.zfsm - told <pump.ztest").Output,
              Run("simulate pump.zfsm pump.ztest told").Output);
    EXPECT_EQ(Run("simulate pump.zfsm - <<'END'\npuls #6\nEND\n").Errors,
              "standard input:1:1: error: no line begins with \"puls\"; did you mean \"pulse\"?\n");
}

TEST_F(Simulate, WhatItCannotRunItSays) {
    EXPECT_EQ(Run("simulate").Status, 2);
    EXPECT_EQ(Run("simulate gone.zfsm").Status, 3);
    EXPECT_EQ(Run("simulate pump.zfsm gone.ztest").Status, 3);
    const RunResult nearly = Run("simulate pump.zfsm pump.ztest 'stops when tolt'");
    EXPECT_EQ(nearly.Status, 3);
    EXPECT_EQ(nearly.Errors, "orvanec: pump.ztest: holds no test \"stops when tolt\"; did you mean \"stops "
                             "when told\"?\n");
    WriteFile("bad.zfsm", DocumentWithErrors());
    EXPECT_EQ(Run("simulate bad.zfsm").Status, 1);
    EXPECT_THAT(Run("simulate bad.zfsm").Errors, StartsWith("bad.zfsm: Missing event test code in row 6\n"));
    EXPECT_EQ(Run("simulate pump.zfsm pump.ztest told --csv no/such/folder").Status, 3);
}

TEST_F(Simulate, WritesTheRunForOtherPrograms) {
    ASSERT_EQ(Run("simulate pump.zfsm pump.ztest told --csv out.csv --vcd out.vcd").Status, 0);
    EXPECT_THAT(ReadFile("out.csv"), StartsWith("time,moment,state,state_name,via,ran,row 6,row 7,timer\n"));
    EXPECT_THAT(ReadFile("out.vcd"), HasSubstr("$enddefinitions $end\n#0\n"));
}

TEST_F(Simulate, OtherProgramsReadWhatItWrites) {
    ASSERT_EQ(Run("simulate pump.zfsm pump.ztest told --csv out.csv --vcd out.vcd").Status, 0);
    const auto succeeds = [&](const std::string& command) {
        return std::system(("cd '" + Path("").string() + "' && " + command + " >log 2>&1").c_str()) == 0;
    };
    if (succeeds("python3 --version")) {
        EXPECT_TRUE(
            succeeds("python3 -c \"import csv\n"
                     "rows = list(csv.DictReader(open('out.csv', newline='')))\n"
                     "assert [r['state'] for r in rows] == ['1', '1', '2', '2', '2', '1', '1'], rows\n"
                     "assert None not in rows[0]\""))
            << ReadFile("log") << ReadFile("out.csv");
    }
    if (!succeeds("which vcd2fst"))
        GTEST_SKIP() << "no vcd2fst to read the dump";
    EXPECT_TRUE(succeeds("vcd2fst out.vcd out.fst && fst2vcd out.fst -o back.vcd")) << ReadFile("log");
    EXPECT_THAT(ReadFile("back.vcd"), HasSubstr("s2:Run \""));
    EXPECT_THAT(ReadFile("back.vcd"), HasSubstr("srow_7 #"));
}

} // namespace
} // namespace orvane
