// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <cstdlib>

namespace orvane {
namespace {

class Generate : public Orvanec {};

TEST_F(Generate, TheProgramIsWrittenBesideTheDocument) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("generate pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, kCleanReport);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(Listing(), "pump.zfsm pump.zls ");
}

TEST_F(Generate, StandardOutputGetsTheBytesOfTheFile) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("generate -o - pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(run.Errors, kCleanReport);
    EXPECT_EQ(Listing(), "pump.zfsm ");
}

TEST_F(Generate, AnotherOutputIsWrittenInsteadOfTheOneBesideTheDocument) {
    WriteFile("pump.zfsm", PumpDocument());
    EXPECT_EQ(Run("generate pump.zfsm -o 'other file.txt'").Status, 0);
    EXPECT_EQ(ReadFile("other file.txt"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(Listing(), "other file.txt pump.zfsm ");
}

TEST_F(Generate, ADesignWithErrorsTouchesNoFile) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    WriteFile("bad.zls", "older program");
    const RunResult run = Run("generate bad.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "Errors and warnings\n"
                          "** Error ** Missing event test code in row 6\n"
                          "** Error ** State 1:K\xC3\xBChl needs a time constant\n"
                          "Warning: State 1:K\xC3\xBChl is a dead end\n"
                          " 1 Warnings\n"
                          "**** 2 Errors ****\n");
    EXPECT_EQ(ReadFile("bad.zls"), "older program");
    EXPECT_EQ(Listing(), "bad.zfsm bad.zls ");
}

TEST_F(Generate, ADesignWithErrorsPutsNothingOnStandardOutput) {
    WriteFile("bad.zfsm", DocumentWithoutName());
    const RunResult run = Run("generate -o - bad.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, kNoNameReport);
}

TEST_F(Generate, SeveralReportsAreEachHeadedByTheirDocument) {
    WriteFile("a.zfsm", PumpDocument());
    WriteFile("b.zfsm", DocumentWithoutName());
    const RunResult run = Run("generate ./b.zfsm a.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors,
              "./b.zfsm:\n" + std::string(kNoNameReport) + "a.zfsm:\n" + std::string(kCleanReport));
    EXPECT_EQ(Listing(), "a.zfsm a.zls b.zfsm ");
}

TEST_F(Generate, ADotInAFolderIsTakenForTheExtension) {
    std::filesystem::create_directory(Path("my.dir"));
    WriteFile("my.dir/fsm", PumpDocument());
    EXPECT_EQ(Run("generate fsm", "cd my.dir;").Status, 0);
    EXPECT_EQ(ReadFile("my.zls"), PumpProgram(PathText("my.dir/fsm")));
    EXPECT_EQ(Listing("my.dir"), "fsm ");
}

TEST_F(Generate, DotsThatWalkFoldersAreNoExtension) {
    std::filesystem::create_directory(Path("sub"));
    WriteFile("pump", PumpDocument());
    EXPECT_EQ(Run("generate .././sub/../pump", "cd sub;").Status, 0);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump")));
    EXPECT_EQ(Listing(), "pump pump.zls sub ");
}

TEST_F(Generate, BlanksAndUmlautsInTheNameAreKeptInTheProgramAsAnsi) {
    WriteFile("Zw\xC3\xB6lf Pumpen \xE2\x82\xAC.zfsm", PumpDocument());
    const RunResult run = Run("generate 'Zw\xC3\xB6lf Pumpen \xE2\x82\xAC.zfsm'");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(ReadFile("Zw\xC3\xB6lf Pumpen \xE2\x82\xAC.zls"),
              PumpProgram(PathText("Zw\xF6lf Pumpen \x80.zfsm")));
}

TEST_F(Generate, CharactersOfTheNameThatACommentCannotHoldBecomeQuestionMarks) {
    if (IsForWindows())
        GTEST_SKIP() << "a name there has no control characters and is always text";
    const std::string name = "a\nb\tc\xE6\xB0\xB4"
                             "d\xFF.zfsm";
    WriteFile(name, PumpDocument());
    const RunResult run = Run("generate *.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(ReadFile("a\nb\tc\xE6\xB0\xB4"
                       "d\xFF.zls"),
              PumpProgram(PathText("a?b?c?d?.zfsm")));
}

TEST_F(Generate, SourceDateEpochStandsForTheClockInUtc) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("generate -o - pump.zfsm", "TZ=America/New_York SOURCE_DATE_EPOCH=1794790923");
    EXPECT_EQ(run.Output, PumpProgram(PathText("pump.zfsm"), "16/11/2026 01:02:03"));
}

TEST_F(Generate, ASourceDateEpochThatIsNoMomentIsWrongUsageAndWritesNothing) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("generate pump.zfsm", "SOURCE_DATE_EPOCH=12x");
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(run.Errors,
              "orvanec: SOURCE_DATE_EPOCH is \"12x\", which is no whole number of seconds from 0 to "
              "253402300799; correct it or unset it\nRun \"orvanec --help\" for how it is used.\n");
    EXPECT_EQ(Listing(), "pump.zfsm ");
    EXPECT_EQ(Run("check pump.zfsm", "SOURCE_DATE_EPOCH=12x").Status, 0); // a check has no date
}

TEST_F(Generate, WithoutSourceDateEpochTheProgramHasTheLocalTime) {
    WriteFile("pump.zfsm", PumpDocument());
    const auto banner = [](const std::string& date) { return ";PMP code generated by Orvane " + date; };
    const std::string clock = "TZ=UTC-5 date '+%d/%m/%Y %H:%M:%S' | tr -d '\\n'";
    // The clock is read before and after; between two readings that agree the program must agree too.
    for (int attempt = 0; attempt < 10; ++attempt) {
        const std::string before = Run("--version >/dev/null", clock + ";").Output;
        const RunResult run = Run("generate -o - pump.zfsm", "unset SOURCE_DATE_EPOCH; TZ=UTC-5");
        const std::string after = Run("--version >/dev/null", clock + ";").Output;
        if (before != after)
            continue;
        EXPECT_EQ(run.Output.substr(0, banner(before).size()), banner(before));
        return;
    }
    FAIL() << "the clock ran on in every attempt";
}

TEST_F(Generate, AProgramNeverTakesThePlaceOfItsDocument) {
    WriteFile("pump.zls", PumpDocument());
    const RunResult run = Run("generate pump.zls");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, std::string(kCleanReport) +
                              "orvanec: pump.zls: the program would take the place of "
                              "the document; name another file with -o\n");
    EXPECT_EQ(ReadFile("pump.zls"), PumpDocument());
}

TEST_F(Generate, DocumentsWhoseProgramsWouldBeTheSameFileAreWrongUsage) {
    WriteFile("pump.a", PumpDocument());
    WriteFile("pump.b", PumpDocument());
    const RunResult run = Run("generate pump.a pump.b");
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(run.Errors, "orvanec: pump.a and pump.b would have the same program, " + PathText("pump.zls") +
                              "\nRun \"orvanec --help\" for how it is used.\n");
    EXPECT_EQ(Listing(), "pump.a pump.b ");
}

TEST_F(Generate, TheSameDocumentManyTimesIsWrittenWhole) {
    WriteFile("pump.zfsm", PumpDocument());
    std::string names;
    std::string reports;
    for (int i = 0; i < 50; ++i) {
        names += " pump.zfsm";
        reports += "pump.zfsm:\n" + std::string(kCleanReport);
    }
    const RunResult run = Run("generate" + names);
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, reports);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(Listing(), "pump.zfsm pump.zls ");
}

TEST_F(Generate, ManyDocumentsReportInTheOrderOfTheArguments) {
    std::string names;
    std::string reports;
    for (int i = 99; i >= 0; --i) {
        const std::string name = "d" + std::to_string(i) + ".zfsm";
        WriteFile(name, i % 3 == 0 ? DocumentWithoutName() : PumpDocument());
        names += " " + name;
        reports += name + ":\n" + std::string(i % 3 == 0 ? kNoNameReport : kCleanReport);
    }
    const RunResult run = Run("generate" + names);
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, reports);
    EXPECT_EQ(ReadFile("d1.zls"), PumpProgram(PathText("d1.zfsm")));
    EXPECT_FALSE(Exists("d3.zls"));
}

} // namespace
} // namespace orvane
