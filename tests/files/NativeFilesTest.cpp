// SPDX-License-Identifier: GPL-3.0-or-later
// Writer and reader on the files of this machine.
#include "files/NativeFiles.h"

#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "support/FileBytes.h"
#include "support/SmallDisk.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace orvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

// A folder that is there for one test.
class NativeFilesTest : public testing::TestWithParam<Outlives> {
  protected:
    NativeFilesTest()
        : folder_(fs::canonical(fs::temp_directory_path()) /
                  ("orvane-files-" + std::to_string(std::random_device()()))) {
        fs::create_directory(folder_);
    }
    ~NativeFilesTest() override {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    fs::path Path(const std::string& name) const { return folder_ / name; }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    WrittenFile Write(const fs::path& path, std::initializer_list<std::string_view> pieces) {
        return WriteFile(Files, path, pieces, {GetParam()});
    }

    NativeFiles Files;

  private:
    fs::path folder_;
};

INSTANTIATE_TEST_SUITE_P(Of, NativeFilesTest, testing::Values(Outlives::Process, Outlives::Machine),
                         [](const auto& which) {
                             return which.param == Outlives::Process ? "AProgram" : "ADocument";
                         });

TEST_P(NativeFilesTest, AFileHoldsThePiecesInARow) {
    const WrittenFile written = Write(Path("a.zls"), {"one ", "two"});
    EXPECT_EQ(written.Failure, std::nullopt);
    EXPECT_THAT(written.Notes, IsEmpty());
    EXPECT_EQ(FileBytes(Path("a.zls")), "one two");
    EXPECT_THAT(Names(), ElementsAre("a.zls"));
}

TEST_P(NativeFilesTest, AShorterTextReplacesALongerOne) {
    EXPECT_TRUE(Write(Path("a.zls"), {"a long text"}));
    EXPECT_TRUE(Write(Path("a.zls"), {"short"}));
    EXPECT_EQ(FileBytes(Path("a.zls")), "short");
    EXPECT_THAT(Names(), ElementsAre("a.zls"));
}

TEST_P(NativeFilesTest, WhatWasWrittenIsRead) {
    const std::string bytes(200'000, 'x');
    const WrittenFile written = Write(Path("a.zls"), {bytes});
    const FileContent content = ReadFile(Files, Path("a.zls"), bytes.size());
    EXPECT_EQ(content.Bytes(), bytes);
    EXPECT_EQ(content.Stamp, written.Stamp);
}

TEST_P(NativeFilesTest, AnotherHandOnTheFileShowsInItsStamp) {
    const WrittenFile written = Write(Path("a.zls"), {"mine"});
    EXPECT_EQ(StampOf(Files.Look(Path("a.zls")).Got), written.Stamp);
    WriteFileBytes(Path("b"), "hers");
    fs::rename(Path("b"), Path("a.zls"));
    EXPECT_NE(StampOf(Files.Look(Path("a.zls")).Got), written.Stamp);
}

TEST_P(NativeFilesTest, AFolderInItsPlaceIsRefusedAndStays) {
    fs::create_directory(Path("a.zls"));
    EXPECT_EQ(Write(Path("a.zls"), {"text"}).Failure, Refusal(FileKind::Folder));
    EXPECT_EQ(ReadFile(Files, Path("a.zls"), 10).Failure, Refusal(FileKind::Folder));
    EXPECT_THAT(Names(), ElementsAre("a.zls"));
}

TEST_P(NativeFilesTest, AFolderThatIsGoneIsTold) {
    const WrittenFile written = Write(Path("gone/a.zls"), {"text"});
    ASSERT_TRUE(written.Failure);
    EXPECT_EQ(Sentence(*written.Failure), "There is no such folder");
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_P(NativeFilesTest, AFileThatIsGoneIsTold) {
    const FileContent content = ReadFile(Files, Path("gone"), 10);
    ASSERT_TRUE(content.Failure);
    EXPECT_EQ(Sentence(*content.Failure), "No such file or directory");
}

#ifndef _WIN32

TEST_P(NativeFilesTest, WhoHasTheOldFileOpenSeesAllOfTheOldBytes) {
    WriteFileBytes(Path("a.zls"), "the old text");
    const Result<FileHandle> reader = Files.OpenToRead(Path("a.zls"), Opening::AtOnce);
    ASSERT_TRUE(Write(Path("a.zls"), {"new"}));
    std::string bytes(100, '\0');
    const Result<std::size_t> read = Files.Read(reader.Got, bytes);
    EXPECT_EQ(bytes.substr(0, read.Got), "the old text");
    EXPECT_FALSE(Files.Close(reader.Got));
}

TEST_P(NativeFilesTest, PermissionsAndLinksStay) {
    WriteFileBytes(Path("a.zls"), "old");
    fs::permissions(Path("a.zls"), fs::perms(0600));
    fs::create_symlink("middle", Path("link.zls"));
    fs::create_symlink(Path("a.zls"), Path("middle"));
    EXPECT_THAT(Write(Path("link.zls"), {"new"}).Notes, IsEmpty());
    EXPECT_TRUE(fs::is_symlink(Path("link.zls")));
    EXPECT_TRUE(fs::is_symlink(Path("middle")));
    EXPECT_EQ(FileBytes(Path("a.zls")), "new");
    EXPECT_EQ(fs::status(Path("a.zls")).permissions(), fs::perms(0600));
    EXPECT_THAT(Names(), ElementsAre("a.zls", "link.zls", "middle"));
}

TEST_P(NativeFilesTest, LinksInACircleAreTold) {
    fs::create_symlink("b", Path("a"));
    fs::create_symlink("a", Path("b"));
    const WrittenFile written = Write(Path("a"), {"text"});
    ASSERT_TRUE(written.Failure);
    EXPECT_EQ(Sentence(*written.Failure), "Its links lead in a circle");
}

TEST_P(NativeFilesTest, AHardLinkIsPartedWithANoteAndKeepsTheOldBytes) {
    WriteFileBytes(Path("a.zls"), "old");
    fs::create_hard_link(Path("a.zls"), Path("other"));
    EXPECT_THAT(Write(Path("a.zls"), {"new"}).Notes, ElementsAre(FileNote::OtherNames));
    EXPECT_EQ(FileBytes(Path("a.zls")), "new");
    EXPECT_EQ(FileBytes(Path("other")), "old");
}

// It would wait for a reader or writer for ever.
TEST_P(NativeFilesTest, APipeIsRefusedInsteadOfWaitedFor) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(Write(Path("pipe"), {"text"}).Failure, Refusal(FileKind::Pipe));
    EXPECT_EQ(ReadFile(Files, Path("pipe"), 10).Failure, Refusal(FileKind::Pipe));
    EXPECT_TRUE(fs::is_fifo(Path("pipe")));
}

TEST_P(NativeFilesTest, DevicesAndSocketsAreRefused) {
    // Never one of the machine's own: what a fault would do to that reaches beyond the test.
    if (mknod(Path("null").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
        EXPECT_EQ(Write(Path("null"), {"text"}).Failure, Refusal(FileKind::Device));
    }
    EXPECT_EQ(ReadFile(Files, "/dev/zero", 10).Failure, Refusal(FileKind::Device));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = Path("s").string();
    ASSERT_LT(name.size(), sizeof(address.sun_path));
    std::copy(name.begin(), name.end(), address.sun_path);
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(Write(Path("s"), {"text"}).Failure, Refusal(FileKind::Socket));
    EXPECT_EQ(ReadFile(Files, Path("s"), 10).Failure, Refusal(FileKind::Socket));
    close(server);
}

TEST_P(NativeFilesTest, AFullDiskKeepsTheOldFileAndIsTold) {
    fs::create_directory(Path("disk"));
    const SmallDisk disk(Path("disk"), "2M");
    if (!disk.IsThere())
        GTEST_SKIP() << "a disk to fill cannot be mounted here";
    for (const std::size_t size : {std::size_t{10}, std::size_t{16'000}, std::size_t{3'000'000}}) {
        fs::remove(Path("disk/full"));
        ASSERT_TRUE(Write(Path("disk/a.zfsm"), {"old"}));
        disk.FillUp("full");
        const WrittenFile written = Write(Path("disk/a.zfsm"), {std::string(size, 'x')});
        ASSERT_TRUE(written.Failure) << size;
        EXPECT_EQ(written.Failure->Reason, std::errc::no_space_on_device);
        EXPECT_EQ(FileBytes(Path("disk/a.zfsm")), "old");
        EXPECT_EQ(std::distance(fs::directory_iterator(Path("disk")), {}), 2);
    }
}

// The system takes a part of the bytes and refuses the rest.
TEST_P(NativeFilesTest, AWriteThatStopsHalfWayKeepsTheOldFileAndIsTold) {
    WriteFileBytes(Path("a.zls"), "old");
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{5000, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const WrittenFile written = Write(Path("a.zls"), {std::string(8000, 'x')});
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(written.Failure, (FileError{FileStep::Write, make_error_code(std::errc::file_too_large)}));
    EXPECT_EQ(FileBytes(Path("a.zls")), "old");
    EXPECT_THAT(Names(), ElementsAre("a.zls"));
}

TEST_P(NativeFilesTest, OwnerAndGroupStayWhereRootWrites) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    WriteFileBytes(Path("a.zls"), "old");
    ASSERT_EQ(chown(Path("a.zls").c_str(), 1234, 2345), 0);
    fs::permissions(Path("a.zls"), fs::perms(0640));
    EXPECT_THAT(Write(Path("a.zls"), {"new"}).Notes, IsEmpty());
    const FileFacts facts = Files.Look(Path("a.zls")).Got;
    EXPECT_EQ(facts.Owner, 1234u);
    EXPECT_EQ(facts.Group, 2345u);
    EXPECT_EQ(facts.Mode, 0640u);
}

// As another user does it; root may do anything.
class AsNobody {
  public:
    AsNobody() : done_(geteuid() == 0 && setegid(kNobody) == 0 && seteuid(kNobody) == 0) {}
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody() {
        if (done_ && (seteuid(0) != 0 || setegid(0) != 0))
            std::abort();
    }
    static constexpr uid_t kNobody = 65534;

  private:
    bool done_;
};

TEST_P(NativeFilesTest, WhatMayNotBeChangedIsNotReplacedAndToldWhy) {
    if (geteuid() == 0)
        fs::permissions(Path("").parent_path(), fs::perms(0777));
    WriteFileBytes(Path("a.zls"), "old");
    fs::permissions(Path("a.zls"), fs::perms(0444));
    const WrittenFile written = [&] {
        const AsNobody nobody;
        return Write(Path("a.zls"), {"new"});
    }();
    ASSERT_TRUE(written.Failure);
    EXPECT_EQ(written.Failure->Step, FileStep::AskToWrite);
    EXPECT_EQ(Sentence(*written.Failure),
              "You may not change it: it is write-protected, or it belongs to another user");
    EXPECT_EQ(FileBytes(Path("a.zls")), "old");
    EXPECT_THAT(Names(), ElementsAre("a.zls"));
}

TEST_P(NativeFilesTest, AFolderThatMayNotBeChangedIsTold) {
    fs::create_directory(Path("kept"));
    fs::permissions(Path("kept"), fs::perms(0555));
    const WrittenFile written = [&] {
        const AsNobody nobody;
        return Write(Path("kept/a.zls"), {"new"});
    }();
    ASSERT_TRUE(written.Failure);
    EXPECT_EQ(Sentence(*written.Failure), "You may not make files in its folder");
}

TEST_P(NativeFilesTest, AFileOfAnotherOwnerAndGroupIsTakenOverWithANoteAndNoMoreRights) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file that belongs to somebody else";
    fs::permissions(Path("").parent_path(), fs::perms(0777));
    WriteFileBytes(Path("a.zls"), "old");
    fs::permissions(Path("a.zls"), fs::perms(0662)); // everybody may write, its group may read too
    const WrittenFile written = [&] {
        const AsNobody nobody;
        return Write(Path("a.zls"), {"new"});
    }();
    EXPECT_THAT(written.Notes, ElementsAre(FileNote::Group, FileNote::Owner));
    const FileFacts facts = Files.Look(Path("a.zls")).Got;
    EXPECT_EQ(facts.Owner, AsNobody::kNobody);
    EXPECT_EQ(facts.Mode, 0622u);
}

TEST_P(NativeFilesTest, AFolderThatMayBeWrittenToButNotReadIsNoHindrance) {
    fs::create_directory(Path("box"));
    fs::permissions(Path("box"), fs::perms(0333));
    const WrittenFile written = [&] {
        const AsNobody nobody;
        return Write(Path("box/a.zls"), {"new"});
    }();
    fs::permissions(Path("box"), fs::perms(0700));
    EXPECT_EQ(written.Failure, std::nullopt);
    const bool isWaitedFor = GetParam() == Outlives::Machine;
    EXPECT_EQ(written.Notes, std::vector<FileNote>(isWaitedFor ? 1 : 0, FileNote::Unsynced));
}

#endif

#ifdef __linux__

std::string Attribute(const fs::path& path, const char* name) {
    std::string value(1000, '\0');
    const ssize_t length = getxattr(path.c_str(), name, value.data(), value.size());
    return length < 0 ? "none" : value.substr(0, static_cast<std::size_t>(length));
}

TEST_P(NativeFilesTest, ExtendedAttributesStay) {
    WriteFileBytes(Path("a.zls"), "old");
    const std::string large(2000, 'v');
    if (setxattr(Path("a.zls").c_str(), "user.first", "one", 3, 0) != 0 ||
        setxattr(Path("a.zls").c_str(), "user.large", large.data(), 900, 0) != 0)
        GTEST_SKIP() << "the temporary folder has no extended attributes";
    EXPECT_THAT(Write(Path("a.zls"), {"new"}).Notes, IsEmpty());
    EXPECT_EQ(Attribute(Path("a.zls"), "user.first"), "one");
    EXPECT_EQ(Attribute(Path("a.zls"), "user.large"), large.substr(0, 900));
}

// Version 2; entries of tag, permissions and id: owner rw, user 1234 r, group none, mask r, others none.
const std::string kAccessList = std::string("\2\0\0\0"
                                            "\1\0\6\0\xFF\xFF\xFF\xFF"
                                            "\2\0\4\0\xD2\x04\0\0"
                                            "\4\0\0\0\xFF\xFF\xFF\xFF"
                                            "\x10\0\4\0\xFF\xFF\xFF\xFF"
                                            "\x20\0\0\0\xFF\xFF\xFF\xFF",
                                            44);

TEST_P(NativeFilesTest, AnAccessListStays) {
    WriteFileBytes(Path("a.zls"), "old");
    const std::string& list = kAccessList;
    if (setxattr(Path("a.zls").c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the temporary folder has no access lists";
    EXPECT_THAT(Write(Path("a.zls"), {"new"}).Notes, IsEmpty());
    EXPECT_EQ(Attribute(Path("a.zls"), "system.posix_acl_access"), list);
}

TEST_P(NativeFilesTest, TheAccessListThatTheFolderGivesNewFilesIsNotGivenToAnOldOne) {
    WriteFileBytes(Path("a.zls"), "old");
    const std::string& list = kAccessList;
    const fs::path folder = Path("").parent_path();
    if (setxattr(folder.c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the temporary folder has no access lists";
    EXPECT_THAT(Write(Path("a.zls"), {"new"}).Notes, IsEmpty());
    EXPECT_EQ(Attribute(Path("a.zls"), "system.posix_acl_access"), "none");
    EXPECT_TRUE(Write(Path("b.zls"), {"new"}));
    EXPECT_NE(Attribute(Path("b.zls"), "system.posix_acl_access"), "none");
}

#endif

} // namespace
} // namespace orvane
