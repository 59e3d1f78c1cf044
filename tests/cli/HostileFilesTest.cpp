// SPDX-License-Identifier: GPL-3.0-or-later
// Files as large as they may be, made to be slow, and files cut off anywhere.
#include "cli/Orvanec.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <sstream>

#include <gmock/gmock.h>
#include <sys/resource.h>

namespace orvane {
namespace {

constexpr std::size_t kLimit = 64u << 20; // bytes

std::string Repeated(std::string_view piece, std::size_t bytes) {
    std::string text;
    text.reserve(bytes + piece.size());
    while (text.size() + piece.size() <= bytes)
        text += piece;
    return text;
}

// Of those that have ended: a busy machine takes longer, but no more of this.
std::chrono::seconds ProcessorTimeOfPrograms() {
    rusage used{};
    EXPECT_EQ(getrusage(RUSAGE_CHILDREN, &used), 0);
    return std::chrono::seconds(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
}

class HostileFiles : public Orvanec {
  protected:
    // Far above what a pass over the file takes, far below what two nested ones take.
    static constexpr std::chrono::seconds kBound{20};

    RunResult TimedCheck(std::string_view bytes) const {
        WriteFile("d.zfsm", bytes);
        const std::chrono::seconds before = ProcessorTimeOfPrograms();
        const RunResult run = Run("check d.zfsm");
        const std::chrono::seconds spent = ProcessorTimeOfPrograms() - before;
        EXPECT_LT(spent, kBound);
        return run;
    }
};

TEST_F(HostileFiles, OneLineIsReadInOnePass) {
    const RunResult run = TimedCheck("\xA4<FSM_NAME>" + std::string(kLimit - 20, 'x'));
    EXPECT_EQ(run.Status, 3);
}

TEST_F(HostileFiles, TinyLinesAreReadInOnePass) {
    const RunResult run = TimedCheck("\xA4<FSM_NAME>D\xA4/\r\n" + Repeated("\r\n", kLimit - 20));
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, kCleanReport);
}

TEST_F(HostileFiles, TinyLinesOfAnotherSystemAreReadInOnePass) {
    const RunResult run = TimedCheck("\xA4<FSM_NAME>D\xA4/\n" + Repeated("a\n", kLimit - 20));
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, kCleanReport);
}

TEST_F(HostileFiles, ATextOfTinyLinesIsReadInOnePass) {
    const RunResult run =
        TimedCheck("\xA4<FSM_NAME>D\xA4/\n\xA4<CODESEG>" + Repeated("\n", kLimit / 2) + "\xA4/\n\n");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, kCleanReport);
}

TEST_F(HostileFiles, BlocksThatAreNeverClosedAreReadInOnePass) {
    const RunResult run = TimedCheck(Repeated("\xA4<STATE>1:\xA4/\r\n", kLimit));
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(std::count(run.Errors.begin(), run.Errors.end(), '\n'), 1002); // what is told has a limit
}

TEST_F(HostileFiles, TagsThatAreNeverClosedAreReadInOnePass) {
    const RunResult run = TimedCheck(Repeated("\xA4<", kLimit));
    EXPECT_NE(run.Status, -1);
    EXPECT_LE(std::count(run.Errors.begin(), run.Errors.end(), '\n'), 1002);
}

TEST_F(HostileFiles, TagsThatAreNeverClosedOnTheirLineAreReadInOnePass) {
    const RunResult run = TimedCheck(Repeated("\xA4<\r\n", kLimit));
    EXPECT_NE(run.Status, -1);
    EXPECT_LE(std::count(run.Errors.begin(), run.Errors.end(), '\n'), 1002);
}

TEST_F(HostileFiles, ValuesThatAreNeverClosedAreReadInOnePass) {
    const RunResult run = TimedCheck(Repeated("\xA4<CODESEG>\r\n", kLimit));
    EXPECT_EQ(run.Status, 3);
}

TEST_F(HostileFiles, AProgramOfTheLargestSizeIsWritten) {
    WriteFile("d.zfsm",
              "\xA4<FSM_NAME>D\xA4/\r\n\xA4<CODESEG>" + std::string(kLimit - 100, 'x') + "\xA4/\r\n\r\n");
    const RunResult run = Run("generate d.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_GT(std::filesystem::file_size(Path("d.zls")), kLimit - 100);
}

TEST_F(HostileFiles, AFileOfTheLargestSizeIsReadAndOfOneByteMoreRefused) {
    std::string bytes = "\xA4<FSM_NAME>D\xA4/\r\n";
    bytes.resize(kLimit, ' ');
    const RunResult largest = TimedCheck(bytes);
    EXPECT_EQ(largest.Status, 0);
    EXPECT_EQ(largest.Output, kCleanReport);
    EXPECT_EQ(largest.Errors, "");

    const RunResult larger = TimedCheck(bytes + " ");
    EXPECT_EQ(larger.Status, 3);
    EXPECT_EQ(larger.Output, "");
    EXPECT_EQ(larger.Errors, "orvanec: d.zfsm: is larger than 64 MiB, which no document is\n");
}

TEST_F(HostileFiles, AFileThatIsMuchTooLargeIsRefusedUnread) {
    WriteFile("d.zfsm", "");
    std::filesystem::resize_file(Path("d.zfsm"), std::uintmax_t{1} << 40);
    EXPECT_EQ(Run("check d.zfsm").Errors, "orvanec: d.zfsm: is larger than 64 MiB, which no document is\n");
}

TEST_F(HostileFiles, APipeWithoutEndIsRefused) {
    const RunResult run = Run("check /dev/zero");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, "orvanec: /dev/zero: is larger than 64 MiB, which no document is\n");
}

std::string CutName(std::size_t length) { return "c" + std::to_string(length); }

// A whole closing tag needs nothing behind it.
bool EndsAmidAField(std::string_view whole, std::size_t length) {
    const std::string_view line = whole.substr(0, length).substr(whole.rfind('\n', length - 1) + 1);
    return !line.empty() && line.find("\xA4</") == std::string::npos && whole.find('\n', length) - length > 1;
}

TEST_F(HostileFiles, ADocumentCutOffAnywhereIsToldInOneLine) {
    const std::string whole = PumpDocument();
    std::string names;
    for (std::size_t length = 1; length < whole.size(); ++length) {
        WriteFile(CutName(length), std::string_view(whole).substr(0, length));
        names += " " + CutName(length);
    }
    const RunResult run = Run("check" + names);
    EXPECT_EQ(run.Status, 3);
    std::map<std::string, int> told; // lines of each file
    std::istringstream errors(run.Errors);
    for (std::string line; std::getline(errors, line);)
        ++told[line.substr(0, line.find(':'))];
    for (std::size_t length = 1; length < whole.size(); ++length) {
        const int lines = told[CutName(length)];
        EXPECT_TRUE(lines == 1 || (lines == 0 && !EndsAmidAField(whole, length))) << length << ": " << lines;
        told.erase(CutName(length));
    }
    EXPECT_THAT(told, testing::IsEmpty()); // no line of anything else
}

} // namespace
} // namespace orvane
