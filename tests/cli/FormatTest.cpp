// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <algorithm>
#include <chrono>

namespace orvane {
namespace {

class Format : public Orvanec {};

// The pump as another tool may have written it: line ends of another system, no indentation, values missing.
std::string UntidyPump() {
    std::string untidy;
    for (const char byte : PumpDocument()) {
        if (byte != '\r' && byte != ' ')
            untidy += byte;
    }
    return untidy.replace(untidy.find(";idleentry"), 10, ";idle entry")
        .replace(untidy.find(";runentry"), 9, ";run entry")
        .replace(untidy.find(";stopaction"), 11, ";stop action");
}

TEST_F(Format, WhatTheEditorWroteStaysAsItIs) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("format pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(ReadFile("pump.zfsm"), PumpDocument());
    EXPECT_EQ(Listing(), "pump.zfsm ");
}

TEST_F(Format, ADocumentIsWrittenAsTheEditorWouldSaveIt) {
    WriteFile("pump.zfsm", UntidyPump());
    EXPECT_EQ(Run("format pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zfsm"), PumpDocument());
}

TEST_F(Format, WithAnOutputTheDocumentStaysAsItIs) {
    WriteFile("pump.zfsm", UntidyPump());
    EXPECT_EQ(Run("format pump.zfsm -o tidy.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zfsm"), UntidyPump());
    EXPECT_EQ(ReadFile("tidy.zfsm"), PumpDocument());
}

TEST_F(Format, StandardOutputGetsTheBytesOfTheFile) {
    WriteFile("pump.zfsm", UntidyPump());
    EXPECT_EQ(Run("format pump.zfsm -o -").Output, PumpDocument());
    EXPECT_EQ(ReadFile("pump.zfsm"), UntidyPump());
}

TEST_F(Format, AFileThatIsNamedAsStandardInputIsHasAFolderInFront) {
    WriteFile("-", UntidyPump());
    EXPECT_EQ(Run("format ./-").Status, 0);
    EXPECT_EQ(ReadFile("-"), PumpDocument());
}

TEST_F(Format, StandardInputIsFormattedToAnOutput) {
    WriteFile("pump.zfsm", UntidyPump());
    EXPECT_EQ(Run("format - -o -", "cat pump.zfsm |").Output, PumpDocument());
    EXPECT_EQ(Run("format - -o tidy.zfsm", "cat pump.zfsm |").Status, 0);
    EXPECT_EQ(ReadFile("tidy.zfsm"), PumpDocument());
}

TEST_F(Format, SeveralDocumentsAreWrittenAndThoseThatAreTidyKeepTheirDate) {
    WriteFile("untidy.zfsm", UntidyPump());
    WriteFile("tidy.zfsm", PumpDocument());
    const auto old = std::filesystem::last_write_time(Path("tidy.zfsm")) - std::chrono::hours(1);
    std::filesystem::last_write_time(Path("tidy.zfsm"), old);
    EXPECT_EQ(Run("format untidy.zfsm tidy.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("untidy.zfsm"), PumpDocument());
    EXPECT_EQ(std::filesystem::last_write_time(Path("tidy.zfsm")), old);
}

TEST_F(Format, ACheckNamesTheDocumentAndTheLineAndWritesNothing) {
    std::string untidy = PumpDocument();
    untidy.insert(untidy.find("\xA4<NAME>Idle"), " ");
    const auto line = 1 + std::count(untidy.begin(), untidy.begin() + untidy.find("\xA4<NAME>Idle"), '\n');
    WriteFile("untidy.zfsm", untidy);
    WriteFile("tidy.zfsm", PumpDocument());
    const RunResult run = Run("format --check tidy.zfsm untidy.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "untidy.zfsm:" + std::to_string(line) +
                              ": Not as the editor would save it; \"orvanec format\" writes it so\n");
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(ReadFile("untidy.zfsm"), untidy);
    const RunResult tidy = Run("format --check tidy.zfsm");
    EXPECT_EQ(tidy.Status, 0);
    EXPECT_EQ(tidy.Output, "");
}

TEST_F(Format, ACheckTellsADocumentThatLacksItsEnd) {
    const std::string cut = PumpDocument().substr(0, PumpDocument().size() - 2);
    WriteFile("cut.zfsm", cut);
    EXPECT_EQ(Run("format --check cut.zfsm").Status, 1);
    EXPECT_EQ(ReadFile("cut.zfsm"), cut);
}

TEST_F(Format, ADesignErrorIsNoReasonNotToWrite) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    const RunResult run = Run("format bad.zfsm -o tidy.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_TRUE(Exists("tidy.zfsm"));
}

class FormatOfABrokenDocument : public Format {
  protected:
    FormatOfABrokenDocument() { WriteFile("d.zfsm", kBroken); }

    static constexpr const char* kBroken = "\xA4<FSM_NAME>D\xA4/\r\n\xA4<EVENT>3:\xA4/\r\n\r\n";
    static constexpr const char* kWhereItBroke =
        "d.zfsm:2: The number \"3\" of EVENT is outside 4..54; reading stopped there\n";
    static constexpr const char* kNotWritten =
        "orvanec: d.zfsm: is not written over, because it was not read to its end\n";
};

TEST_F(FormatOfABrokenDocument, NeverWritesOverTheOriginal) {
    const RunResult run = Run("format d.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, std::string(kWhereItBroke) + kNotWritten);
    EXPECT_EQ(ReadFile("d.zfsm"), kBroken);
    EXPECT_EQ(Listing(), "d.zfsm ");
}

TEST_F(FormatOfABrokenDocument, NeverWritesOverTheOriginalUnderAnotherName) {
    std::filesystem::create_symlink("d.zfsm", Path("link"));
    const RunResult run = Run("format d.zfsm -o ./link");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, std::string(kWhereItBroke) + kNotWritten);
    EXPECT_EQ(ReadFile("d.zfsm"), kBroken);
}

TEST_F(FormatOfABrokenDocument, WritesWhatWasReadWithAnOutput) {
    const RunResult run = Run("format d.zfsm -o -");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, kWhereItBroke);
    EXPECT_EQ(run.Output, "\xA4<FSM_NAME>D\xA4/\r\n"
                          "\xA4<POLYTASK>False\xA4/\r\n"
                          "\xA4<SHOWTIMETARGET>False\xA4/\r\n"
                          "\xA4<SHOWTIMINGMODE>False\xA4/\r\n"
                          "\xA4<SHOWELSE>False\xA4/\r\n"
                          "\xA4<BUILDFILE>\xA4/\r\n"
                          "\xA4<LAUNCHSEG>1\xA4/\r\n"
                          "\xA4<CODESEG>\xA4/\r\n"
                          "\xA4<HEADERCOMMENT>\xA4/\r\n"
                          "\xA4<INITSEG>\xA4/\r\n"
                          "\xA4<NVEM0DATA>\xA4/\r\n"
                          "\xA4<TESTSEG>\xA4/\r\n"
                          "\xA4<INSTANCES>\xA4/\r\n"
                          "\xA4<COL0W>1890\xA4/\r\n"
                          "\xA4<POLYTASK>False\xA4/\r\n"
                          "\xA4<ROWVISIBLE>\xA4/\r\n"
                          "  \xA4<ELSE>0\xA4/\r\n"
                          "  \xA4<EXITACT>0\xA4/\r\n"
                          "  \xA4<TIMEMODE>0\xA4/\r\n"
                          "  \xA4<TIMETARGET>0\xA4/\r\n"
                          "\xA4</ROWVISIBLE>\xA4/\r\n");
}

TEST_F(Format, AFileThatIsNoDocumentIsNeverWritten) {
    WriteFile("text.zfsm", "just text\r\n");
    const RunResult run = Run("format text.zfsm -o tidy.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, "text.zfsm: The file is not a document: it holds no field\n");
    EXPECT_EQ(Listing(), "text.zfsm ");
}

} // namespace
} // namespace orvane
