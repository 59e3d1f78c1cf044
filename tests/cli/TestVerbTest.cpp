// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// The pump's events have no names in its document: they are rows 6 and 7.
constexpr const char* kGoodTests = "unit 0.1 s\n"
                                   "test stops by itself\n"
                                   "  pulse #6  => Run  runs \"run entry\"\n"
                                   "  +9.9 s    => Run  stays\n"
                                   "  +2        => Idle via Timeout\n"
                                   "test stops when told\n"
                                   "  pulse #6  => Run\n"
                                   "  pulse #7  => Idle runs \"stop action\"\n";
constexpr const char* kBadTests = "test stops too early\n"
                                  "  pulse #6  => Run\n"
                                  "  +99       => Idle\n"
                                  "test passes\n"
                                  "  => Idle\n";

class TestVerb : public Orvanec {
  protected:
    TestVerb() { WriteFile("pump.zfsm", PumpDocument()); }
};

TEST_F(TestVerb, TellsWhatWasCoveredAndHowManyPassed) {
    WriteFile("pump.ztest", kGoodTests);
    const RunResult run = Run("test pump.ztest");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, "pump.zfsm: 2 of 2 states, 3 of 3 transitions\n2 passed, 0 failed\n");
}

TEST_F(TestVerb, AFailureStandsWithItsPlace) {
    WriteFile("pump.ztest", kBadTests);
    const RunResult run = Run("test pump.ztest");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output,
              "pump.ztest:3:16: failed: stops too early: expected 1:Idle, but at 99 the machine is in "
              "2:Run, since 0 from 1:Idle by row 6\n"
              "pump.zfsm: 2 of 2 states, 1 of 3 transitions\n1 passed, 1 failed\n");
}

TEST_F(TestVerb, ASlipIsStatusThreeAndNothingOfTheFileIsRun) {
    WriteFile("pump.ztest", "test t\n  pulse #6 => Rn\n");
    const RunResult run = Run("test pump.ztest");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors,
              "pump.ztest:2:15: error: no state is called \"Rn\" in pump.zfsm; did you mean \"Run\"?\n");
    EXPECT_EQ(run.Output, "0 passed, 0 failed\n");
}

TEST_F(TestVerb, TakesDocumentsFoldersAndTheFolderItStandsIn) {
    std::filesystem::create_directories(Path("sub/deep"));
    WriteFile("sub/pump.zfsm", PumpDocument());
    WriteFile("sub/pump.ztest", kGoodTests);
    WriteFile("sub/deep/more.ztest", std::string("machine ../pump.zfsm\n") + kBadTests);
    EXPECT_THAT(Run("test sub/pump.zfsm").Output, HasSubstr("2 passed, 0 failed\n"));
    EXPECT_EQ(Run("test --list sub").Output, NativeText("sub/deep/more.ztest:2: stops too early\n"
                                                        "sub/deep/more.ztest:5: passes\n"
                                                        "sub/pump.ztest:2: stops by itself\n"
                                                        "sub/pump.ztest:6: stops when told\n"));
    EXPECT_EQ(Run("test --list").Output, Run("test --list .").Output);
    // Two files of one document are counted together.
    for (const std::string files : {"sub", "sub/pump.ztest sub/deep/more.ztest"}) {
        EXPECT_THAT(Run("test " + files).Output,
                    HasSubstr(NativeText("sub/pump.zfsm: 2 of 2 states, 3 of 3 transitions\n3 passed, 1 "
                                         "failed\n")));
    }
}

TEST_F(TestVerb, WhatCannotBeReadIsStatusThree) {
    EXPECT_EQ(Run("test nothing.ztest").Errors,
              "orvanec: nothing.ztest: cannot be read (No such file or directory)\n");
    EXPECT_EQ(Run("test nothing.ztest").Status, 3);
    EXPECT_EQ(Run("test .").Errors, "orvanec: .: holds no .ztest file\n");
    EXPECT_EQ(Run("test .").Status, 3);
    WriteFile("pump.ztest", "machine gone.zfsm\ntest t\n=> Idle\n");
    EXPECT_EQ(Run("test pump.ztest").Errors,
              "orvanec: gone.zfsm: cannot be read (No such file or directory)\n");
}

TEST_F(TestVerb, ADesignWithErrorsIsStatusOneWithItsFindings) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    WriteFile("bad.ztest", "test t\n=> #1\n");
    const RunResult run = Run("test bad.ztest");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, "bad.zfsm: Missing event test code in row 6\n"
                          "bad.zfsm: State 1:K\xC3\xBChl needs a time constant\n");
    EXPECT_EQ(run.Output,
              "bad.ztest:1:1: failed: t: bad.zfsm cannot be run: Missing event test code in row 6\n"
              "0 passed, 1 failed\n");
}

TEST_F(TestVerb, CoverageTellsWhatWasMissedAndMayFail) {
    WriteFile("pump.ztest", "test t\n=> Idle\n");
    const std::string missed = "pump.zfsm: not entered: 2:Run\n"
                               "pump.zfsm: not taken: 1:Idle by row 6\n"
                               "pump.zfsm: not taken: 2:Run by Timeout\n"
                               "pump.zfsm: not taken: 2:Run by row 7\n"
                               "pump.zfsm: 0 of 2 empty cells tried, 0 of 0 neighbouring events together\n"
                               "pump.zfsm: 1 of 2 states, 0 of 3 transitions\n"
                               "1 passed, 0 failed\n";
    EXPECT_EQ(Run("test --coverage pump.ztest").Output, missed);
    EXPECT_EQ(Run("test --coverage pump.ztest").Status, 0);
    const RunResult run = Run("test --coverage=1 pump.ztest");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, missed);
    EXPECT_EQ(run.Errors, "pump.zfsm: 0 % of the transitions were taken, 1 % are wanted\n");
    EXPECT_EQ(Run("test --coverage=101 pump.ztest").Status, 2);
}

TEST_F(TestVerb, AFilterChoosesTestsByPartOfTheirNames) {
    WriteFile("pump.ztest", kBadTests);
    EXPECT_THAT(Run("test --filter passes pump.ztest").Output, HasSubstr("1 passed, 0 failed\n"));
    EXPECT_THAT(Run("test --filter nothing pump.ztest").Output, HasSubstr("0 passed, 0 failed\n"));
}

TEST_F(TestVerb, AVerdictThatDependsOnAReadingHasANoteThatMayFail) {
    WriteFile("pump.ztest", "test t\npulse #6 => Run\n+100 => Idle\n");
    const RunResult run = Run("test pump.ztest");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(
        run.Output,
        StartsWith("pump.ztest:3:9: note: t: it fails when a constant limit is up one unit after it: "));
    EXPECT_EQ(Run("test --notes-fail pump.ztest").Status, 1);
    EXPECT_THAT(Run("test --reading at-limit pump.ztest").Output, StartsWith("pump.zfsm: "));
    EXPECT_EQ(Run("test --reading after-limit pump.ztest").Status, 1);
    EXPECT_EQ(Run("test --reading sometimes pump.ztest").Status, 2);
}

TEST_F(TestVerb, StrictWantsEveryStateToBeExpected) {
    WriteFile("pump.ztest", "test t\npulse #6\n=> Run\n");
    EXPECT_EQ(Run("test pump.ztest").Status, 0);
    const RunResult run = Run("test --strict pump.ztest");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Output,
                StartsWith("pump.ztest:2:1: failed: t: not every state that is passed is expected"));
}

TEST_F(TestVerb, JsonHasALineForEachTestAndOneForTheRun) {
    WriteFile("pump.ztest", kBadTests);
    WriteFile("slip.ztest", "machine pump.zfsm\ntest s\n=> Idl\n");
    const RunResult run = Run("test --json pump.ztest slip.ztest");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(
        run.Output,
        "{\"file\":\"pump.ztest\",\"line\":3,\"test\":\"stops too early\",\"verdict\":\"failed\",\"message\":"
        "\"expected 1:Idle, but at 99 the machine is in 2:Run, since 0 from 1:Idle by row 6\",\"notes\":[]}\n"
        "{\"file\":\"pump.ztest\",\"line\":4,\"test\":\"passes\",\"verdict\":\"passed\",\"message\":null,"
        "\"notes\":[]}\n"
        "{\"file\":\"slip.ztest\",\"line\":3,\"test\":\"s\",\"verdict\":\"error\",\"message\":\"no state is "
        "called "
        "\\\"Idl\\\" in pump.zfsm; did you mean \\\"Idle\\\"?\",\"notes\":[]}\n"
        "{\"version\":1,\"passed\":1,\"failed\":1,\"errors\":1,\"coverage\":{\"states\":{\"taken\":2,\"all\":"
        "2},"
        "\"transitions\":{\"taken\":1,\"all\":3},\"emptyCells\":{\"taken\":0,\"all\":2},"
        "\"pairs\":{\"taken\":0,\"all\":0}}}\n");
}

TEST_F(TestVerb, JUnitIsWrittenAlsoWhenAFileCouldNotBeUnderstood) {
    WriteFile("pump.ztest", "test a <b> & \"c\"\n=> Run\ntest d\n=> Idle\n");
    WriteFile("slip.ztest", "puls\n");
    EXPECT_EQ(Run("test --junit out.xml pump.ztest slip.ztest").Status, 3);
    EXPECT_EQ(
        ReadFile("out.xml"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<testsuites name=\"orvanec test\">\n"
        "  <testsuite name=\"pump.ztest\" tests=\"2\" failures=\"1\" errors=\"0\">\n"
        "    <testcase classname=\"pump.ztest\" name=\"a &lt;b&gt; &amp; &quot;c&quot;\">\n"
        "      <failure message=\"expected 2:Run, but at 0 the machine is in 1:Idle, since power came on\">"
        "pump.ztest:2:4: expected 2:Run, but at 0 the machine is in 1:Idle, since power came on</failure>\n"
        "    </testcase>\n"
        "    <testcase classname=\"pump.ztest\" name=\"d\"/>\n"
        "  </testsuite>\n"
        "  <testsuite name=\"slip.ztest\" tests=\"1\" failures=\"0\" errors=\"1\">\n"
        "    <testcase classname=\"slip.ztest\" name=\"line 1\">\n"
        "      <error message=\"no line begins with &quot;puls&quot;; did you mean &quot;pulse&quot;?\">"
        "slip.ztest:1:1: no line begins with &quot;puls&quot;; did you mean &quot;pulse&quot;?</error>\n"
        "    </testcase>\n"
        "  </testsuite>\n"
        "</testsuites>\n");
    if (std::system("xmllint --version 2>/dev/null") == 0) {
        EXPECT_EQ(std::system(("xmllint --noout '" + Path("out.xml").string() + "'").c_str()), 0);
    }
}

TEST_F(TestVerb, MarkdownHasTheFailuresAndTheCoverage) {
    WriteFile("pump.ztest", "test a|b\n=> Run\n");
    EXPECT_EQ(Run("test --markdown out.md pump.ztest").Status, 1);
    EXPECT_EQ(ReadFile("out.md"),
              "# Tests\n\n0 passed, 1 failed\n\n"
              "| where | test | what |\n| --- | --- | --- |\n"
              "| pump.ztest:2 | a\\|b | expected 2:Run, but at 0 the machine is in 1:Idle, since "
              "power came on |\n\n"
              "| machine | states | transitions | % |\n| --- | ---: | ---: | ---: |\n"
              "| pump.zfsm | 1 of 2 | 0 of 3 | 0 |\n");
}

TEST_F(TestVerb, UpdateShowsAndWritesTheLinesThatFail) {
    WriteFile("pump.ztest", kBadTests);
    const RunResult run = Run("test --update pump.ztest");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Output, StartsWith("pump.ztest:3:\n-  +99       => Idle\n+  +99       => Run\n"));
    EXPECT_THAT(run.Output, HasSubstr("2 passed, 0 failed\n"));
    EXPECT_THAT(ReadFile("pump.ztest"), HasSubstr("  +99       => Run\n"));
    EXPECT_THAT(Run("test --update pump.ztest").Output, StartsWith("pump.zfsm: "));
}

TEST_F(TestVerb, ARenamedStateIsToldAndWrittenByRename) {
    WriteFile("pump.ztest", "names 1:Waiting 2:Run\ntest t\n=> Waiting\n");
    const RunResult told = Run("test pump.ztest");
    EXPECT_EQ(told.Status, 0);
    EXPECT_THAT(told.Output,
                StartsWith("pump.ztest:3:4: note: \"Waiting\" is now called \"Idle\" in pump.zfsm; "
                           "--rename writes that\n"));
    const RunResult renamed = Run("test --rename pump.ztest");
    EXPECT_EQ(renamed.Status, 0);
    EXPECT_THAT(renamed.Output, StartsWith("pump.ztest:1:\n-names 1:Waiting 2:Run\n+names 1:Idle 2:Run\n"
                                           "pump.ztest:3:\n-=> Waiting\n+=> Idle\n"));
    EXPECT_EQ(ReadFile("pump.ztest"), "names 1:Idle 2:Run\ntest t\n=> Idle\n");
}

TEST_F(TestVerb, TheOutputIsTheSameWhateverTheNumberOfThreads) {
    std::string arguments;
    for (int i = 0; i < 20; ++i) {
        const std::string name = "t" + std::to_string(i) + ".ztest";
        WriteFile(name, std::string("machine pump.zfsm\n") + (i % 3 == 0 ? kBadTests : kGoodTests));
        arguments += " " + name;
    }
    const RunResult one = Run("test -j 1" + arguments);
    const RunResult many = Run("test -j 8" + arguments);
    EXPECT_EQ(one.Output, many.Output);
    EXPECT_EQ(one.Status, 1);
    EXPECT_EQ(Run("test -j 0" + arguments).Status, 2);
}

} // namespace
} // namespace orvane
