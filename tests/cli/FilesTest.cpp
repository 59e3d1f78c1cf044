// SPDX-License-Identifier: GPL-3.0-or-later
// What goes wrong with files, and what has to stay whole then.
#include "cli/Orvanec.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

namespace fs = std::filesystem;

class Files : public Orvanec {
  protected:
    Files() { WriteFile("pump.zfsm", PumpDocument()); }

    void ExpectUnread(const std::string& name, const std::string& why, const std::string& before = {}) const {
        const RunResult run = Run("check " + name, before);
        EXPECT_EQ(run.Status, 3);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, "orvanec: " + name + ": " + why + "\n");
    }
    // Generating to that output fails for the reason given.
    void ExpectUnwritten(const std::string& output, const std::string& why,
                         const std::string& before = {}) const {
        const RunResult run = Run("generate pump.zfsm -o " + output, before);
        EXPECT_EQ(run.Status, 3);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, std::string(kCleanReport) + "orvanec: pump.zfsm: " + output +
                                  " cannot be written (" + why + ")\n");
    }
    static bool IsRoot() { return geteuid() == 0; }

    // What runs the program as somebody for whom permissions hold: root reads and writes everything. None
    // where there is no such user to be had. The test's folder is that user's from then on.
    std::optional<std::string> AsUser() const {
        if (!IsRoot())
            return "";
        constexpr uid_t nobody = 65534;
        fs::permissions(Path("..").lexically_normal(), fs::perms::others_exec, fs::perm_options::add);
        std::vector<fs::path> paths{Path(".")};
        std::copy(fs::recursive_directory_iterator(Path(".")), {}, std::back_inserter(paths));
        for (const fs::path& path : paths)
            EXPECT_EQ(chown(path.c_str(), nobody, nobody), 0) << path;
        const std::string user = "setpriv --reuid=65534 --regid=65534 --clear-groups";
        return Run("--version", user).Status == 0 ? std::optional(user) : std::nullopt;
    }
};

TEST_F(Files, AMissingDocumentIsTold) {
    ExpectUnread("gone.zfsm", "cannot be read (No such file or directory)");
}

TEST_F(Files, AFolderIsNoDocument) {
    fs::create_directory(Path("folder"));
    ExpectUnread("folder", "cannot be read (Is a directory)");
}

TEST_F(Files, AnUnreadableDocumentIsTold) {
    const std::optional<std::string> user = AsUser();
    if (!user)
        GTEST_SKIP() << "root reads everything";
    fs::permissions(Path("pump.zfsm"), fs::perms::none);
    ExpectUnread("pump.zfsm", "cannot be read (Permission denied)", *user);
}

TEST_F(Files, AReadErrorIsTold) {
    if (!fs::exists("/proc/self/mem"))
        GTEST_SKIP() << "no file here that opens and cannot be read";
    if (IsForWindows())
        GTEST_SKIP() << "another reason is given there";
    ExpectUnread("/proc/self/mem", "cannot be read (Input/output error)");
}

TEST_F(Files, ABinaryFileIsNoDocument) {
    WriteFile("b.zfsm", std::string("\x7F"
                                    "ELF\0\0\n\r\xFF\xFE",
                                    10));
    const RunResult run = Run("generate b.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, "b.zfsm: The file is not a document: it holds no field\n");
    EXPECT_EQ(Listing(), "b.zfsm pump.zfsm ");
}

TEST_F(Files, AControlCharacterInANameStaysOnItsLine) {
    const RunResult run = Run("check \"$(printf 'a\\nb\\033')\"");
    EXPECT_EQ(run.Errors, "orvanec: a\\x0Ab\\x1B: cannot be read (No such file or directory)\n");
}

TEST_F(Files, APipeIsReadToItsEnd) {
    if (IsForWindows())
        GTEST_SKIP() << "standard input has no name there";
    const RunResult run = Run("check /dev/stdin", "cat pump.zfsm |");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, kCleanReport);
}

TEST_F(Files, AMissingFolderIsTold) {
    ExpectUnwritten("nowhere/pump.zls", "there is no folder nowhere: No such file or directory");
    EXPECT_EQ(Listing(), "pump.zfsm ");
}

TEST_F(Files, AFileInPlaceOfTheFolderIsTold) {
    ExpectUnwritten("pump.zfsm/pump.zls", IsForWindows() ? "there is no folder pump.zfsm: No such file or "
                                                           "directory"
                                                         : "Not a directory");
}

TEST_F(Files, AFolderIsNotWrittenOver) {
    fs::create_directory(Path("pump.zls"));
    ExpectUnwritten("pump.zls", "Is a directory");
    EXPECT_EQ(Listing(), "pump.zfsm pump.zls ");
}

TEST_F(Files, AReadOnlyFolderStaysAsItIs) {
    fs::create_directory(Path("kept"));
    const std::optional<std::string> user = AsUser();
    if (!user)
        GTEST_SKIP() << "root writes everywhere";
    fs::permissions(Path("kept"), fs::perms::owner_read | fs::perms::owner_exec);
    ExpectUnwritten("kept/pump.zls", "no file can be made in the folder kept: Permission denied", *user);
    EXPECT_EQ(Listing("kept"), "");
}

TEST_F(Files, AReadOnlyFileStaysAsItIs) {
    WriteFile("pump.zls", "older program");
    const std::optional<std::string> user = AsUser();
    if (!user)
        GTEST_SKIP() << "root writes everything";
    fs::permissions(Path("pump.zls"), fs::perms::owner_read);
    ExpectUnwritten("pump.zls", "Permission denied", *user);
    EXPECT_EQ(ReadFile("pump.zls"), "older program");
}

TEST_F(Files, AFullDeviceIsToldAndStaysADevice) {
    ExpectUnwritten("/dev/full", "No space left on device");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(Files, AFullDiskLeavesTheOlderFileWhole) {
    fs::create_directory(Path("disk"));
    const std::string mount = "mount -t tmpfs -o size=64k tmpfs '" + Path("disk").string() + "' 2>/dev/null";
    if (!IsRoot() || std::system(mount.c_str()) != 0)
        GTEST_SKIP() << "a disk to fill cannot be mounted here";
    std::string large = PumpDocument();
    large.replace(large.find(";pump"), 5, std::string(60000, 'x'));
    WriteFile("large.zfsm", large);
    WriteFile("disk/large.zls", "older program");
    WriteFile("disk/small.zfsm", PumpDocument());
    const RunResult program = Run("generate large.zfsm -o disk/large.zls");
    const RunResult document = Run("format large.zfsm -o disk/small.zfsm");
    const std::string left = Listing("disk");
    const std::string oldProgram = ReadFile("disk/large.zls");
    const std::string oldDocument = ReadFile("disk/small.zfsm");
    EXPECT_EQ(std::system(("umount '" + Path("disk").string() + "'").c_str()), 0);

    // What runs a program for Windows here has no word for a write that takes a part of the bytes.
    const std::string why = IsForWindows() ? "Invalid argument" : "No space left on device";
    EXPECT_EQ(program.Status, 3);
    EXPECT_EQ(program.Errors, std::string(kCleanReport) +
                                  "orvanec: large.zfsm: disk/large.zls cannot be written (" + why + ")\n");
    EXPECT_EQ(document.Status, 3);
    EXPECT_EQ(document.Errors, "orvanec: large.zfsm: disk/small.zfsm cannot be written (" + why + ")\n");
    EXPECT_EQ(left, "large.zls small.zfsm ");
    EXPECT_EQ(oldProgram, "older program");
    EXPECT_EQ(oldDocument, PumpDocument());
}

TEST_F(Files, AFullStandardOutputIsTold) {
    for (const char* arguments : {"check pump.zfsm", "generate -o - pump.zfsm 2>/dev/null",
                                  "format -o - pump.zfsm", "--help", "--version"}) {
        const RunResult run = Run(std::string(arguments) + " >/dev/full");
        EXPECT_EQ(run.Status, 3) << arguments;
    }
    EXPECT_EQ(Run("check pump.zfsm >/dev/full").Errors,
              "orvanec: standard output: cannot be written (No space left on device)\n");
}

TEST_F(Files, AClosedStandardOutputIsToldAndNoFileTakesItsPlace) {
    const RunResult run = Run("check pump.zfsm pump.zfsm >&-");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, "orvanec: standard output: cannot be written (Bad file descriptor)\n"
                          "orvanec: standard output: cannot be written (Bad file descriptor)\n");
    EXPECT_EQ(Run("generate pump.zfsm 2>&-").Status, 3);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
}

TEST_F(Files, AnOlderProgramIsReplacedAndKeepsItsPermissions) {
    if (IsForWindows())
        GTEST_SKIP() << "permissions are those of the folder there";
    WriteFile("pump.zls", std::string(5000, 'x'));
    fs::permissions(Path("pump.zls"), fs::perms(0640));
    EXPECT_EQ(Run("generate pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(fs::status(Path("pump.zls")).permissions(), fs::perms(0640));
}

TEST_F(Files, ANewProgramHasThePermissionsThatTheUserGivesNewFiles) {
    if (IsForWindows())
        GTEST_SKIP() << "permissions are those of the folder there";
    EXPECT_EQ(Run("generate pump.zfsm", "umask 027;").Status, 0);
    EXPECT_EQ(fs::status(Path("pump.zls")).permissions(), fs::perms(0640));
}

TEST_F(Files, ALinkStaysALink) {
    fs::create_directory(Path("far"));
    WriteFile("far/real.zls", "older program");
    fs::create_symlink("far/middle", Path("pump.zls"));
    fs::create_symlink("real.zls", Path("far/middle"));
    EXPECT_EQ(Run("generate pump.zfsm").Status, 0);
    EXPECT_TRUE(fs::is_symlink(Path("pump.zls")));
    EXPECT_TRUE(fs::is_symlink(Path("far/middle")));
    EXPECT_EQ(ReadFile("far/real.zls"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(Listing("far"), "middle real.zls ");
}

TEST_F(Files, ALinkToAFileThatIsNotThereYetStaysALink) {
    if (IsForWindows())
        GTEST_SKIP() << "such a link is not seen there";
    fs::create_symlink("real.zls", Path("pump.zls"));
    EXPECT_EQ(Run("generate pump.zfsm").Status, 0);
    EXPECT_TRUE(fs::is_symlink(Path("pump.zls")));
    EXPECT_EQ(ReadFile("real.zls"), PumpProgram(PathText("pump.zfsm")));
}

TEST_F(Files, TwoDotsBehindALinkLeadWhereTheFileSystemLeads) {
    if (IsForWindows())
        GTEST_SKIP() << "two dots take a name away there, before links are looked at";
    fs::create_directories(Path("far/deep"));
    fs::create_directory_symlink("far/deep", Path("link"));
    WriteFile("far/valve.zfsm", PumpDocument());
    EXPECT_EQ(Run("generate link/../valve.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("far/valve.zls"), PumpProgram(PathText("far/valve.zfsm")));
    EXPECT_EQ(Listing(), "far link pump.zfsm ");
}

TEST_F(Files, LinksInACircleAreTold) {
    fs::create_symlink("b", Path("a"));
    fs::create_symlink("a", Path("b"));
    ExpectUnwritten("a", "Too many levels of symbolic links");
    EXPECT_EQ(Listing(), "a b pump.zfsm ");
}

TEST_F(Files, APipeIsWrittenToAndStaysAPipe) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    const RunResult run = Run("generate pump.zfsm -o pipe 2>/dev/null; wait", "cat pipe &");
    EXPECT_EQ(run.Output, PumpProgram(PathText("pump.zfsm")));
    EXPECT_TRUE(fs::is_fifo(Path("pipe")));
    EXPECT_EQ(Listing(), "pipe pump.zfsm ");
}

TEST_F(Files, TheDeviceOfStandardOutputIsWrittenToAndNotReplaced) {
    if (!fs::exists("/dev/stdout") || IsForWindows())
        GTEST_SKIP() << "no such device here";
    const RunResult toFile = Run("generate pump.zfsm -o /dev/stdout >captured");
    EXPECT_EQ(toFile.Status, 0);
    EXPECT_EQ(ReadFile("captured"), PumpProgram(PathText("pump.zfsm")));
    const RunResult toPipe = Run("generate pump.zfsm -o /dev/stdout 2>/dev/null | cat");
    EXPECT_EQ(toPipe.Output, PumpProgram(PathText("pump.zfsm")));
}

TEST_F(Files, AVeryLongNameIsStillWritten) {
    const std::string name(250, 'n');
    WriteFile(name + ".zfs", PumpDocument());
    EXPECT_EQ(Run("generate " + name + ".zfs").Status, 0);
    EXPECT_EQ(ReadFile(name + ".zls"), PumpProgram(PathText(name + ".zfs")));
}

TEST_F(Files, OnlyANamedOutputIsWrittenIntoWhatIsNoFile) {
    ASSERT_EQ(mkfifo(Path("pump.zls").c_str(), 0600), 0);
    const RunResult run = Run("generate pump.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, std::string(kCleanReport) + "orvanec: pump.zfsm: " + PathText("pump.zls") +
                              " cannot be written (It is a pipe, not a file)\n");
}

TEST_F(Files, WhatAWrittenFileHasLostIsTold) {
    WriteFile("pump.zls", "older program");
    fs::create_hard_link(Path("pump.zls"), Path("other"));
    const RunResult run = Run("generate pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, std::string(kCleanReport) + "orvanec: pump.zfsm: " + PathText("pump.zls") +
                              " is written. The file has other names (hard links): these keep what was there "
                              "before\n");
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(ReadFile("other"), "older program");
}

TEST_F(Files, AFileLargerThanTheUserMayMakeIsToldAndLeavesTheOlderOne) {
    if (IsForWindows())
        GTEST_SKIP() << "there is no such limit, and here it ends what runs the program";
    WriteFile("pump.zls", "older program");
    const RunResult run = Run("generate pump.zfsm", "ulimit -f 0;"); // captured streams are files too
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(ReadFile("pump.zls"), "older program");
    EXPECT_EQ(Listing(), "pump.zfsm pump.zls ");
}

TEST_F(Files, WhatAKilledRunLeftBehindADayAgoIsRemoved) {
    const fs::path old = Path(".orvane-0123456789abcdef.tmp");
    WriteFile(old.filename().string(), "half a prog");
    fs::last_write_time(old, fs::file_time_type::clock::now() - std::chrono::hours(25));
    WriteFile(".orvane-fedcba9876543210.tmp", "being written by somebody else");
    EXPECT_EQ(Run("generate pump.zfsm").Status, 0);
    EXPECT_EQ(Listing(), ".orvane-fedcba9876543210.tmp pump.zfsm pump.zls ");
}

} // namespace
} // namespace orvane
