// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/NativeFiles.h"

#include "support/FileBytes.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#ifndef _WIN32
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#else
#include <string>
#include <windows.h>
#endif

namespace orvane {
namespace {

namespace fs = std::filesystem;

class LockedFileTest : public testing::Test {
  protected:
    void SetUp() override {
        fs::remove_all(Folder);
        ASSERT_FALSE(Files.MakePrivateFolder(Folder));
    }
    void TearDown() override { fs::remove_all(Folder.parent_path()); }

    FileHandle Open(Existence existence) {
        const Result<FileHandle> opened = Files.OpenLocked(Path, existence);
        EXPECT_FALSE(opened.Failure) << opened.Failure.message();
        return opened.Got;
    }
    std::error_code WhyNot(Existence existence) { return Files.OpenLocked(Path, existence).Failure; }

    NativeFiles Files;
    fs::path Folder =
        fs::temp_directory_path() /
        ("orvane-locked-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name())) /
        "deep" / "recovery";
    fs::path Path = Folder / "file";
};

TEST_F(LockedFileTest, NobodyElseGetsItWhileItIsOpen) {
    const FileHandle file = Open(Existence::New);
    EXPECT_EQ(WhyNot(Existence::Old), std::errc::device_or_resource_busy);
    EXPECT_FALSE(Files.Close(file));
    const FileHandle again = Open(Existence::Old);
    EXPECT_EQ(WhyNot(Existence::Old), std::errc::device_or_resource_busy);
    EXPECT_FALSE(Files.Close(again));
}

TEST_F(LockedFileTest, ANewOneMustNotBeThereAndAnOldOneMust) {
    EXPECT_EQ(WhyNot(Existence::Old), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(Files.Close(Open(Existence::New)));
    EXPECT_EQ(WhyNot(Existence::New), std::errc::file_exists);
}

TEST_F(LockedFileTest, IsReadFromItsFrontAndWrittenAtItsEnd) {
    WriteFileBytes(Path, "old ");
    const FileHandle file = Open(Existence::Old);
    EXPECT_EQ(Files.Write(file, "new!").Got, 4u);
    std::array<char, 20> room;
    EXPECT_EQ(Files.Read(file, room).Got, 0u); // both stand at the end now
    EXPECT_FALSE(Files.Truncate(file, 5));
    EXPECT_EQ(Files.Write(file, "EXT").Got, 3u);
    EXPECT_FALSE(Files.Sync(file));
    EXPECT_FALSE(Files.Close(file));
    EXPECT_EQ(FileBytes(Path), "old nEXT");
}

TEST_F(LockedFileTest, CanBeRenamedAndRemovedWhileItIsOpen) {
    const FileHandle file = Open(Existence::New);
    EXPECT_FALSE(Files.Rename(Path, Folder / "other"));
    EXPECT_EQ(Files.OpenLocked(Folder / "other", Existence::Old).Failure, std::errc::device_or_resource_busy);
    EXPECT_FALSE(Files.Remove(Folder / "other"));
    EXPECT_FALSE(Files.Close(file));
    EXPECT_TRUE(fs::is_empty(Folder));
}

#ifndef _WIN32

TEST_F(LockedFileTest, FolderAndFileAreTheUsersAlone) {
    EXPECT_FALSE(Files.Close(Open(Existence::New)));
    struct stat told {};
    ASSERT_EQ(stat(Path.c_str(), &told), 0);
    EXPECT_EQ(told.st_mode & 07777u, 0600u);
    ASSERT_EQ(stat(Folder.c_str(), &told), 0);
    EXPECT_EQ(told.st_mode & 07777u, 0700u);
    ASSERT_EQ(chmod(Folder.c_str(), 0755), 0);
    EXPECT_FALSE(Files.MakePrivateFolder(Folder));
    ASSERT_EQ(stat(Folder.c_str(), &told), 0);
    EXPECT_EQ(told.st_mode & 07777u, 0700u);
}

TEST_F(LockedFileTest, AFolderThatIsAFileIsTold) {
    WriteFileBytes(Path, "");
    EXPECT_EQ(Files.MakePrivateFolder(Path), std::errc::not_a_directory);
    EXPECT_EQ(Files.MakePrivateFolder(Path / "below"), std::errc::not_a_directory);
}

TEST_F(LockedFileTest, ALinkIsNotFollowed) {
    WriteFileBytes(Folder / "target", "");
    fs::create_symlink("target", Path);
    EXPECT_EQ(WhyNot(Existence::Old), std::errc::too_many_symbolic_link_levels);
}

// A program that this one starts would keep the lock beyond the end of this one.
TEST_F(LockedFileTest, IsNotHandedOnToOtherPrograms) {
    const FileHandle file = Open(Existence::New);
    EXPECT_NE(fcntl(file.Number, F_GETFD) & FD_CLOEXEC, 0);
    EXPECT_FALSE(Files.Close(file));
}

TEST_F(LockedFileTest, IsFreeWhenItsProcessWasKilled) {
    std::array<int, 2> ready{};
    ASSERT_EQ(pipe(ready.data()), 0);
    const pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        const bool opened = !Files.OpenLocked(Path, Existence::New).Failure;
        (void)!write(ready[1], opened ? "y" : "n", 1);
        pause();
        _exit(0);
    }
    char answer = ' ';
    ASSERT_EQ(read(ready[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'y');
    EXPECT_EQ(WhyNot(Existence::Old), std::errc::device_or_resource_busy);
    EXPECT_EQ(kill(child, SIGKILL), 0);
    EXPECT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(Files.Close(Open(Existence::Old)));
    close(ready[0]);
    close(ready[1]);
}

#else

constexpr const char* kFileToHold = "ORVANE_TEST_FILE_TO_HOLD";

// The other process of the test below, which ends it; by itself it does nothing.
TEST_F(LockedFileTest, DISABLED_HoldsAFileUntilItIsEnded) {
    const char* path = std::getenv(kFileToHold);
    if (path == nullptr || Files.OpenLocked(path, Existence::New).Failure)
        return;
    Sleep(INFINITE);
}

TEST_F(LockedFileTest, IsFreeWhenItsProcessWasEnded) {
    std::array<char, 1024> program{};
    GetModuleFileNameA(nullptr, program.data(), program.size());
    std::string command = '"' + std::string(program.data()) +
                          "\" --gtest_also_run_disabled_tests --gtest_filter=*HoldsAFileUntilItIsEnded";
    SetEnvironmentVariableA(kFileToHold, Path.string().c_str());
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION other{};
    ASSERT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                               &other));
    constexpr DWORD kPatience = 60'000; // milliseconds
    for (DWORD waited = 0; waited < kPatience && !fs::exists(Path); waited += 20)
        Sleep(20);
    EXPECT_EQ(WhyNot(Existence::Old), std::errc::device_or_resource_busy);
    EXPECT_TRUE(TerminateProcess(other.hProcess, 1));
    EXPECT_EQ(WaitForSingleObject(other.hProcess, kPatience), WAIT_OBJECT_0);
    EXPECT_FALSE(Files.Close(Open(Existence::Old)));
    CloseHandle(other.hThread);
    CloseHandle(other.hProcess);
}

#endif

} // namespace
} // namespace orvane
