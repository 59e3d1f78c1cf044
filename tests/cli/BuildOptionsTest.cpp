// SPDX-License-Identifier: GPL-3.0-or-later
// What generate and check do for those who build.
#include "cli/Orvanec.h"

#include "support/Json.h"

#include <chrono>

#include <gmock/gmock.h>

namespace orvane {
namespace {

namespace fs = std::filesystem;
using test::JsonValue;
using testing::HasSubstr;
using testing::StartsWith;

class Building : public Orvanec {
  protected:
    Building() {
        WriteFile("pump.zfsm", PumpDocument());
        WriteFile("bad.zfsm", DocumentWithErrors());
    }

    // Sets the file back by an hour, so that being written again shows.
    fs::file_time_type Aged(const std::string& name) const {
        const auto old = fs::last_write_time(Path(name)) - std::chrono::hours(1);
        fs::last_write_time(Path(name), old);
        return old;
    }
    bool IsUntouched(const std::string& name, fs::file_time_type since) const {
        return fs::last_write_time(Path(name)) == since;
    }
    // A machine whose second state leads nowhere: a warning and nothing else.
    static std::string DocumentWithAWarning() {
        std::string document = PumpDocument();
        for (const std::string transition : {"    \xA4<TRANS>4:1\xA4/\r\n", "    \xA4<TRANS>7:1\xA4/\r\n"})
            document.erase(document.find(transition), transition.size());
        return document.replace(document.find("TIMINGMODE>1"), 12, "TIMINGMODE>0");
    }
};

constexpr const char* kGccOfBad = "bad.zfsm:7: error: Missing event test code in row 6 [missing-event-code]\n"
                                  "bad.zfsm:4: error: State 1:K\xC3\xBChl needs a time constant "
                                  "[missing-time-constant]\n"
                                  "bad.zfsm:2: warning: State 1:K\xC3\xBChl is a dead end [dead-end]\n";

TEST_F(Building, GccMessagesGoWhereTheReportGoesAndACleanDocumentHasNone) {
    const RunResult check = Run("check --format=gcc pump.zfsm bad.zfsm");
    EXPECT_EQ(check.Status, 1);
    EXPECT_EQ(check.Output, kGccOfBad);
    EXPECT_EQ(check.Errors, "");
    const RunResult generate = Run("generate --format=gcc pump.zfsm bad.zfsm");
    EXPECT_EQ(generate.Status, 1);
    EXPECT_EQ(generate.Output, "");
    EXPECT_EQ(generate.Errors, kGccOfBad);
    EXPECT_EQ(Listing(), "bad.zfsm pump.zfsm pump.zls ");
}

TEST_F(Building, AMissingPrefixStandsAtTheNameOnOneLine) {
    WriteFile("nameless.zfsm", "\r\n\xA4<POLYTASK>False\xA4/\r\n\xA4<FSM_NAME>\xA4/\r\n\r\n");
    EXPECT_EQ(
        Run("check --format=gcc nameless.zfsm").Output,
        "nameless.zfsm:3: error: You must supply a distinguishing label prefix in the \"Name\" box of the "
        "General Code editor. This should be unique within your project as a whole. Typically this would "
        "be a 3-letter mnemonic for the overall function of this FSM, for example \"PMP\" for a pump "
        "control FSM [missing-prefix]\n");
}

TEST_F(Building, AFindingStandsInItsStateWhateverTheLineEndsAre) {
    std::string lf;
    for (const char byte : DocumentWithErrors()) {
        if (byte != '\r')
            lf += byte;
    }
    WriteFile("bad.zfsm", lf);
    EXPECT_EQ(Run("check --format=gcc bad.zfsm").Output, kGccOfBad);
}

TEST_F(Building, QuietSaysNothingOfACleanDocumentInAnyFormat) {
    for (const std::string format : {"text", "gcc", "json"}) {
        for (const std::string verb : {"check", "generate"}) {
            const RunResult run = Run(verb + " --quiet --format=" + format + " pump.zfsm");
            EXPECT_EQ(run.Status, 0);
            EXPECT_EQ(run.Output + run.Errors, "") << verb << format;
        }
    }
    const RunResult run = Run("check --quiet pump.zfsm bad.zfsm");
    EXPECT_THAT(run.Output, StartsWith("bad.zfsm:\nErrors and warnings\n** Error **"));
}

TEST_F(Building, WarningsAreErrorsWhereThatIsAskedForAndNotesAreNot) {
    WriteFile("warned.zfsm", DocumentWithAWarning());
    EXPECT_EQ(Run("check warned.zfsm").Status, 0);
    const RunResult run = Run("generate --werror warned.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, "Errors and warnings\n** Error ** State 2:Run is a dead end\n**** 1 Errors ****\n");
    EXPECT_FALSE(Exists("warned.zls"));
    EXPECT_THAT(Run("check --werror --format=gcc warned.zfsm").Output, HasSubstr(": error: State 2:Run"));
    EXPECT_THAT(Run("check --werror --format=json warned.zfsm").Output,
                HasSubstr("\"counts\":{\"notes\":0,\"warnings\":0,\"errors\":1}"));
    std::string noted = PumpDocument();
    noted.erase(noted.find("    \xA4<TRANS>4:1"), 17);
    WriteFile("noted.zfsm", noted);
    const RunResult notes = Run("generate --werror noted.zfsm");
    EXPECT_EQ(notes.Status, 0);
    EXPECT_THAT(notes.Errors, HasSubstr("Note: State 2:Run"));
    EXPECT_TRUE(Exists("noted.zls"));
}

TEST_F(Building, AdviceIsANoteThatChangesNoStatus) {
    std::string twins = PumpDocument();
    twins.replace(twins.find(";stop?"), 6, ";start?");
    WriteFile("twins.zfsm", twins);
    const RunResult gcc = Run("check --advice --werror --format=gcc twins.zfsm");
    EXPECT_EQ(gcc.Status, 0);
    EXPECT_THAT(gcc.Output, testing::MatchesRegex("twins.zfsm:[0-9]+: note: .*\\[same-test\\]\n"));
    const RunResult generate = Run("generate --advice twins.zfsm");
    EXPECT_EQ(generate.Status, 0);
    EXPECT_THAT(generate.Errors, HasSubstr("[same-test]\n"));
    EXPECT_TRUE(Exists("twins.zls"));
}

TEST_F(Building, AProgramThatWouldOnlyGetAnotherDateIsKept) {
    ASSERT_EQ(Run("generate pump.zfsm").Status, 0);
    const auto old = Aged("pump.zls");
    EXPECT_EQ(Run("generate --if-changed pump.zfsm", "SOURCE_DATE_EPOCH=1000000").Status, 0);
    EXPECT_TRUE(IsUntouched("pump.zls", old));
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    std::string changed = PumpDocument();
    changed.replace(changed.find(";run entry"), 10, ";run entrY");
    WriteFile("pump.zfsm", changed);
    EXPECT_EQ(Run("generate --if-changed pump.zfsm").Status, 0);
    EXPECT_THAT(ReadFile("pump.zls"), HasSubstr(";run entrY"));
}

TEST_F(Building, WhatIsNoProgramIsNeverKept) {
    for (const std::string old : {"", ";something else\r\n", "x code generated by Orvane \r\n"}) {
        WriteFile("pump.zls", old);
        EXPECT_EQ(Run("generate --if-changed pump.zfsm").Status, 0);
        EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    }
    const std::string program = PumpProgram(PathText("pump.zfsm"));
    WriteFile("pump.zls", program.substr(program.find("\r\n"))); // all but the words of the first line
    EXPECT_EQ(Run("generate --if-changed pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zls"), program);
    WriteFile("pump.zls", program + " ");
    EXPECT_EQ(Run("generate --if-changed pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
}

TEST_F(Building, AllProgramsGoIntoOneFolder) {
    fs::create_directories(Path("sub/out"));
    WriteFile("sub/fan.zfsm", PumpDocument());
    EXPECT_EQ(Run("generate --output-dir sub/out pump.zfsm sub/fan.zfsm").Status, 0);
    EXPECT_EQ(Listing("sub/out"), "fan.zls pump.zls ");
    EXPECT_EQ(ReadFile("sub/out/fan.zls"), PumpProgram(PathText("sub/fan.zfsm")));
    EXPECT_FALSE(Exists("pump.zls"));
    const RunResult missing = Run("generate --quiet --output-dir nowhere pump.zfsm");
    EXPECT_EQ(missing.Status, 3);
    EXPECT_EQ(missing.Errors, "orvanec: pump.zfsm: " + NativeText("nowhere/pump.zls") +
                                  " cannot be written (there is no folder nowhere: No such file or "
                                  "directory)\n");
}

TEST_F(Building, TwoDocumentsOfOneNameDoNotGoIntoOneFolder) {
    fs::create_directories(Path("a"));
    fs::create_directories(Path("b"));
    WriteFile("a/x.zfsm", PumpDocument());
    WriteFile("b/x.zfsm", PumpDocument());
    const RunResult run = Run("generate --output-dir . a/x.zfsm b/x.zfsm");
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Errors, HasSubstr("a/x.zfsm and b/x.zfsm would have the same program, "));
    EXPECT_FALSE(Exists("x.zls"));
}

TEST_F(Building, TwoDocumentsWithOneProgramAreNoticedThroughLinks) {
    fs::create_directories(Path("a"));
    WriteFile("a/x.zfsm", PumpDocument());
    fs::create_directory_symlink("a", Path("link"));
    const RunResult folder = Run("generate a/x.zfsm link/x.zfsm");
    EXPECT_EQ(folder.Status, 2);
    EXPECT_THAT(folder.Errors, HasSubstr("a/x.zfsm and link/x.zfsm would have the same program, "));
    EXPECT_EQ(Listing("a"), "x.zfsm ");
    WriteFile("a/x.zls", "older program");
    fs::create_symlink("a/x.zls", Path("pump.zls"));
    const RunResult file = Run("generate pump.zfsm a/x.zfsm");
    EXPECT_EQ(file.Status, 2);
    EXPECT_THAT(file.Errors, HasSubstr("pump.zfsm and a/x.zfsm would have the same program, "));
    EXPECT_EQ(ReadFile("a/x.zls"), "older program");
}

TEST_F(Building, TwoDocumentsWithOneProgramAreNoticedThroughALinkToWhatIsNotThereYet) {
    if (IsForWindows())
        GTEST_SKIP() << "there such a link is not seen";
    fs::create_directories(Path("a"));
    WriteFile("a/x.zfsm", PumpDocument());
    fs::create_symlink("a/x.zls", Path("pump.zls"));
    const RunResult run = Run("generate pump.zfsm a/x.zfsm");
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Errors, HasSubstr("pump.zfsm and a/x.zfsm would have the same program, "));
    EXPECT_EQ(Listing("a"), "x.zfsm ");
}

TEST_F(Building, ADependencyFileHasARuleForEachProgram) {
    WriteFile("two $ #words.zfsm", PumpDocument());
    EXPECT_EQ(Run("generate --depfile all.d pump.zfsm 'two $ #words.zfsm'").Status, 0);
    EXPECT_EQ(ReadFile("all.d"), "pump.zls: pump.zfsm\n"
                                 "two\\ $$\\ \\#words.zls: two\\ $$\\ \\#words.zfsm\n");
    EXPECT_EQ(Run("generate --depfile one.d -o build.zls --if-changed pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("one.d"), "build.zls: pump.zfsm\n");
    fs::create_directories(Path("sub/out"));
    EXPECT_EQ(Run("generate --depfile out.d --output-dir sub/out pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("out.d"), "sub/out/pump.zls: pump.zfsm\n");
    const RunResult unwritten = Run("generate --quiet --depfile no/d pump.zfsm");
    EXPECT_EQ(unwritten.Status, 3);
    EXPECT_EQ(unwritten.Errors,
              "orvanec: no/d: cannot be written (there is no folder no: No such file or directory)\n");
}

TEST_F(Building, AProgramThatIsNotThereHasNoRule) {
    EXPECT_EQ(Run("generate --quiet --depfile all.d bad.zfsm pump.zfsm").Status, 1);
    EXPECT_EQ(ReadFile("all.d"), "pump.zls: pump.zfsm\n");
}

TEST_F(Building, AFileHoldsArgumentsOneALineAsTheyStand) {
    WriteFile("two words.zfsm", PumpDocument());
    WriteFile("args", "\xEF\xBB\xBF--format=gcc\r\ntwo words.zfsm\r\n\r\nbad.zfsm");
    const RunResult run = Run("check @args");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, kGccOfBad);
    WriteFile("@pump", PumpDocument());
    EXPECT_EQ(Run("check -- @pump").Output, kCleanReport);
    EXPECT_EQ(Run("check ./@pump").Output, kCleanReport);
    const RunResult missing = Run("check @gone");
    EXPECT_EQ(missing.Status, 3);
    EXPECT_EQ(missing.Errors,
              "orvanec: @gone: the file of arguments cannot be read (No such file or directory)\n");
    EXPECT_EQ(Run("find @gone pump.zfsm").Status, 1); // there it is what is looked for
}

TEST_F(Building, StandardInputIsADocument) {
    const RunResult check = Run("check --format=gcc -", "cat bad.zfsm |");
    EXPECT_EQ(check.Status, 1);
    EXPECT_THAT(check.Output, StartsWith("-:7: error: "));
    const RunResult generate = Run("generate - -o -", "cat pump.zfsm |");
    EXPECT_EQ(generate.Status, 0);
    EXPECT_EQ(generate.Output, PumpProgram("-"));
    const RunResult closed = Run("check - <&-");
    EXPECT_EQ(closed.Status, 3);
    EXPECT_EQ(closed.Errors, std::string("orvanec: -: cannot be read (") +
                                 (IsForWindows() ? "Invalid argument" : "Bad file descriptor") + ")\n");
}

TEST_F(Building, TheNumberOfJobsChangesNothingButTheTime) {
    const RunResult one = Run("check -j 1 pump.zfsm bad.zfsm pump.zfsm");
    const RunResult four = Run("check --jobs=4 pump.zfsm bad.zfsm pump.zfsm");
    EXPECT_EQ(one.Output, four.Output);
    EXPECT_EQ(one.Status, four.Status);
}

TEST_F(Building, JsonOfGenerateStandsAloneOnStandardErrorWithWhatFailed) {
    WriteFile("odd.zfsm", PumpDocument() + "\xA4<ODD>x\xA4/\r\n\r\n");
    const RunResult run = Run("generate --format=json --output-dir nowhere odd.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, "");
    EXPECT_THAT(run.Errors, StartsWith("{\"version\":1,\"path\":\"odd.zfsm\","));
    EXPECT_THAT(run.Errors, HasSubstr("Unknown tag ODD"));
    const JsonValue messages = JsonValue::Parse(run.Errors)["messages"];
    EXPECT_THAT(messages.List().at(1)["message"].Text(),
                StartsWith(NativeText("nowhere/odd.zls") + " cannot be written"));
    EXPECT_EQ(std::count(run.Errors.begin(), run.Errors.end(), '\n'), 1);
}

} // namespace
} // namespace orvane
