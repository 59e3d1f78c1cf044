// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileWriter.h"

#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const FileSystem::Path kWritten = "/work/pump.zfsm";
const std::string kOld = "what was there before";
const std::string kNew = "the new text, which is longer than that";

// Every reason for which a call of the system may fail on a drive that is full, broken or somebody else's.
const std::vector<int> kReasons = {ENOSPC, EIO, EACCES, EROFS, EINTR,
#ifdef EDQUOT
                                   EDQUOT
#endif
};

class FileWriterTest : public testing::TestWithParam<Outlives> {
  protected:
    WrittenFile Write(MemoryFiles& files, const FileSystem::Path& path = kWritten) const {
        WriteOptions options;
        options.Must = GetParam();
        options.Patience = {};
        return WriteFile(files, path, {std::string_view(kNew).substr(0, 9), std::string_view(kNew).substr(9)},
                         options);
    }
    int CallsOfAWrite(MemoryFiles files) const {
        EXPECT_TRUE(Write(files));
        return files.Calls();
    }
    static MemoryFiles WithOldFile() {
        MemoryFiles files;
        files.Put(kWritten, kOld);
        return files;
    }
    // What was told is what happened: the file is as told, whole, and nothing is left behind unsaid.
    void ExpectOldOrNew(MemoryFiles& files, const WrittenFile& written,
                        const std::optional<std::string>& old) const {
        const bool isThere = !written.Failure || written.Failure->Step == FileStep::SyncFolder;
        EXPECT_EQ(files.Bytes(kWritten), isThere ? std::optional(kNew) : old);
        EXPECT_EQ(files.OpenHandles(), 0);
        const bool leftSaid =
            std::count(written.Notes.begin(), written.Notes.end(), FileNote::LeftBehind) > 0;
        const std::size_t own = files.Bytes(kWritten) ? 1 : 0;
        EXPECT_EQ(files.AllNames().size(), own + (leftSaid ? 1 : 0));
    }
};

INSTANTIATE_TEST_SUITE_P(Of, FileWriterTest, testing::Values(Outlives::Process, Outlives::Machine),
                         [](const auto& which) {
                             return which.param == Outlives::Process ? "AProgram" : "ADocument";
                         });

TEST_P(FileWriterTest, AFileHoldsThePiecesInARow) {
    MemoryFiles files;
    const WrittenFile written = Write(files);
    EXPECT_EQ(written.Failure, std::nullopt);
    EXPECT_THAT(written.Notes, IsEmpty());
    EXPECT_EQ(files.Bytes(kWritten), kNew);
    EXPECT_EQ(written.Stamp, StampOf(files.Find(kWritten)->Facts));
    EXPECT_THAT(files.AllNames(), ElementsAre(kWritten.generic_string()));
}

TEST_P(FileWriterTest, AnyCallThatFailsIsToldAndLeavesTheOldFileOrTheNewOneWhole) {
    for (const bool forGood : {false, true}) {
        for (const int reason : kReasons) {
            const int calls = CallsOfAWrite(WithOldFile());
            for (int call = 1; call <= calls; ++call) {
                MemoryFiles files;
                files.Put(kWritten, kOld);
                files.FailAt(call, Errno(reason), forGood);
                const WrittenFile written = Write(files);
                SCOPED_TRACE("call " + std::to_string(call) + ", errno " + std::to_string(reason));
                ExpectOldOrNew(files, written, kOld);
                EXPECT_EQ(written.Failure.value_or(FileError{{}, Errno(reason)}).Reason, Errno(reason));
            }
        }
    }
}

TEST_P(FileWriterTest, AnyCallThatFailsLeavesNoFileWhereThereWasNone) {
    for (const int reason : kReasons) {
        const int calls = CallsOfAWrite({});
        for (int call = 1; call <= calls; ++call) {
            MemoryFiles files;
            files.FailAt(call, Errno(reason));
            const WrittenFile written = Write(files);
            SCOPED_TRACE("call " + std::to_string(call) + ", errno " + std::to_string(reason));
            ExpectOldOrNew(files, written, std::nullopt);
        }
    }
}

// Where the failure is not one of keeping rights, which a note tells, it must not pass for a success.
TEST_P(FileWriterTest, NoFailureToWriteSyncOrCloseIsSwallowed) {
    std::vector<FileStep> told;
    const int calls = CallsOfAWrite(WithOldFile());
    for (int call = 1; call <= calls; ++call) {
        MemoryFiles files = WithOldFile();
        files.HaveNoSwap();
        files.FailAt(call, Errno(EIO));
        if (const WrittenFile written = Write(files); written.Failure)
            told.push_back(written.Failure->Step);
    }
    for (const FileStep step : {FileStep::Find, FileStep::AskToWrite, FileStep::Create, FileStep::Write,
                                FileStep::Close, FileStep::Replace})
        EXPECT_THAT(told, testing::Contains(step));
    if (GetParam() == Outlives::Machine) {
        EXPECT_THAT(told, testing::Contains(FileStep::Sync));
        EXPECT_THAT(told, testing::Contains(FileStep::SyncFolder));
    }
}

TEST_P(FileWriterTest, ADriveThatTakesOneByteAtATimeGetsThemAll) {
    MemoryFiles files = WithOldFile();
    files.WriteInParts(1);
    EXPECT_TRUE(Write(files));
    EXPECT_EQ(files.Bytes(kWritten), kNew);
}

TEST_P(FileWriterTest, ADriveThatTakesNothingIsTold) {
    MemoryFiles files = WithOldFile();
    files.WriteInParts(0);
    const WrittenFile written = Write(files);
    ASSERT_TRUE(written.Failure);
    EXPECT_EQ(written.Failure->Step, FileStep::Write);
    EXPECT_EQ(files.Bytes(kWritten), kOld);
}

TEST_P(FileWriterTest, ALinkStaysALinkAndTheFileItLeadsToIsWrittenInItsOwnFolder) {
    MemoryFiles files;
    files.Put("/far/real.zfsm", kOld);
    files.PutLink("/far/middle", "real.zfsm");
    files.PutLink(kWritten, "/far/middle");
    EXPECT_TRUE(Write(files));
    EXPECT_EQ(files.Bytes("/far/real.zfsm"), kNew);
    EXPECT_THAT(files.AllNames(), ElementsAre("/far/real.zfsm"));
}

TEST_P(FileWriterTest, LinksInACircleAreTold) {
    MemoryFiles files;
    files.PutLink(kWritten, "/work/other");
    files.PutLink("/work/other", kWritten);
    const WrittenFile written = Write(files);
    EXPECT_EQ(written.Failure, (FileError{FileStep::Find, Errno(ELOOP)}));
    EXPECT_THAT(files.Log, IsEmpty());
}

TEST_P(FileWriterTest, WhatMayNotBeChangedIsNotReplaced) {
    MemoryFiles files;
    files.Put(kWritten, kOld, 0444);
    const WrittenFile written = Write(files);
    EXPECT_EQ(written.Failure, (FileError{FileStep::AskToWrite, Errno(EACCES)}));
    EXPECT_EQ(files.Bytes(kWritten), kOld);
    EXPECT_THAT(files.Log, IsEmpty());
}

TEST_P(FileWriterTest, WhatIsNoFileIsRefusedBeforeItIsOpened) {
    for (const FileKind kind : {FileKind::Folder, FileKind::Pipe, FileKind::Device, FileKind::Socket}) {
        MemoryFiles files;
        files.PutSpecial(kWritten, kind);
        const WrittenFile written = Write(files);
        ASSERT_TRUE(written.Failure);
        EXPECT_EQ(written.Failure->Refused, kind);
        EXPECT_THAT(files.Log, IsEmpty());
    }
}

TEST_P(FileWriterTest, ThePermissionsOfTheOldFileAreKept) {
    MemoryFiles files;
    files.Put(kWritten, kOld, 0640);
    EXPECT_THAT(Write(files).Notes, IsEmpty());
    EXPECT_EQ(files.Find(kWritten)->Facts.Mode, 0640u);
}

TEST_P(FileWriterTest, ANewFileHasThePermissionsThatTheUserGivesNewFiles) {
    MemoryFiles files;
    EXPECT_TRUE(Write(files));
    EXPECT_EQ(files.Find(kWritten)->Facts.Mode, 0644u);
}

// Wherever the drive breaks down for good, what cannot be cleaned up any more shows how it stood there.
TEST_P(FileWriterTest, TheTemporaryFileIsNeverMoreReadableThanTheFile) {
    for (int call = 1; call <= CallsOfAWrite(WithOldFile()); ++call) {
        MemoryFiles files;
        files.Put(kWritten, kOld, 0600);
        files.FailAt(call, Errno(EIO), true);
        (void)Write(files);
        for (const std::string& name : files.AllNames())
            EXPECT_EQ(files.Find(name)->Facts.Mode & 0077u, 0u) << name << " at call " << call;
    }
}

TEST_P(FileWriterTest, OwnerGroupAndAttributesAreKeptWhereTheRightsAllow) {
    MemoryFiles files;
    files.Put(kWritten, kOld, 0666);
    files.Find(kWritten)->Facts.Owner = 7;
    files.Find(kWritten)->Facts.Group = 8;
    files.Find(kWritten)->Attributes = "user.comment";
    EXPECT_THAT(Write(files).Notes, IsEmpty());
    EXPECT_EQ(files.Find(kWritten)->Facts.Owner, 7u);
    EXPECT_EQ(files.Find(kWritten)->Facts.Group, 8u);
    EXPECT_EQ(files.Find(kWritten)->Attributes, "user.comment");
}

TEST_P(FileWriterTest, WhatCannotBeKeptIsNotedAndAnotherGroupGetsNoMoreThanEverybody) {
    MemoryFiles files;
    files.Put(kWritten, kOld, 06664);
    files.Find(kWritten)->Facts.Group = 8;
    files.KeepNothing();
    EXPECT_THAT(Write(files).Notes, ElementsAre(FileNote::Group, FileNote::Attributes));
    EXPECT_EQ(files.Find(kWritten)->Facts.Mode, 0644u);

    files.Put(kWritten, kOld, 06666);
    files.Find(kWritten)->Facts.Owner = 7;
    EXPECT_THAT(Write(files).Notes, ElementsAre(FileNote::Owner, FileNote::Attributes));
    EXPECT_EQ(files.Find(kWritten)->Facts.Mode, 0666u);
}

TEST_P(FileWriterTest, OtherNamesThatKeepTheOldBytesAreNoted) {
    MemoryFiles files = WithOldFile();
    files.Find(kWritten)->Facts.Names = 2;
    EXPECT_THAT(Write(files).Notes, ElementsAre(FileNote::OtherNames));
}

TEST(FileWriterOfADocument, APowerFailureAtAnyMomentLeavesTheOldFileOrTheNewOneWhole) {
    MemoryFiles counted;
    counted.Put(kWritten, kOld);
    ASSERT_TRUE(WriteFile(counted, kWritten, {kNew}));
    for (int call = 1; call <= counted.Calls() + 1; ++call) {
        MemoryFiles files;
        files.Put(kWritten, kOld);
        files.FailAt(call, Errno(EIO), true);
        const WrittenFile written = WriteFile(files, kWritten, {kNew});
        for (const bool renamesWereLost : {false, true}) {
            const auto left = files.AfterPowerFailure(kWritten, renamesWereLost);
            EXPECT_TRUE(written.Failure ? left == kOld || left == kNew : left == kNew) << call;
        }
    }
}

TEST(FileWriterOfADocument, AFolderThatCannotBeWaitedForIsNotedAndOneThatFailsIsAnError) {
    MemoryFiles files;
    ASSERT_TRUE(WriteFile(files, kWritten, {kNew}));
    const int last = files.Calls();
    files.Remove(kWritten);
    files.FailAt(last, Errno(EINVAL));
    EXPECT_THAT(WriteFile(files, kWritten, {kNew}).Notes, ElementsAre(FileNote::Unsynced));
    files.FailAt(0, {});
    files.Remove(kWritten);
    files.FailAt(last, Errno(EIO));
    const WrittenFile written = WriteFile(files, kWritten, {kNew});
    EXPECT_EQ(written.Failure, (FileError{FileStep::SyncFolder, Errno(EIO)}));
}

TEST(FileWriterOfAProgram, NeitherFileNorFolderIsWaitedForAndTheOldOneIsSwappedOut) {
    MemoryFiles files;
    files.Put(kWritten, kOld);
    ASSERT_TRUE(WriteFile(files, kWritten, {kNew}, {Outlives::Process}));
    EXPECT_THAT(files.Log, ElementsAre("create", "write", "mode", "swap", "remove"));
}

TEST(FileWriterOfAProgram, WhereFilesCannotBeSwappedTheNewOneReplacesTheOldOne) {
    MemoryFiles files;
    files.Put(kWritten, kOld);
    files.HaveNoSwap();
    ASSERT_TRUE(WriteFile(files, kWritten, {kNew}, {Outlives::Process}));
    EXPECT_THAT(files.Log, ElementsAre("create", "write", "mode", "rename"));
    EXPECT_EQ(files.Bytes(kWritten), kNew);
}

// An output that its user named.
TEST(FileWriterIntoWhatIsNoFile, ADeviceTakesTheBytesAndStaysWhatItIs) {
    const WriteOptions options{Outlives::Machine, SpecialFiles::WrittenInto};
    MemoryFiles files;
    files.PutSpecial(kWritten, FileKind::Device);
    EXPECT_TRUE(WriteFile(files, kWritten, {kNew}, options));
    EXPECT_EQ(files.Bytes(kWritten), kNew);
    EXPECT_EQ(files.Find(kWritten)->Facts.Kind, FileKind::Device);
    EXPECT_THAT(files.AllNames(), ElementsAre(kWritten.generic_string()));
}

TEST(FileWriterIntoWhatIsNoFile, AnyCallThatFailsIsTold) {
    const WriteOptions options{Outlives::Machine, SpecialFiles::WrittenInto};
    for (int call = 2; call <= 4;
         ++call) { // open, write, close; after a look that finds nothing a file is made
        MemoryFiles files;
        files.PutSpecial(kWritten, FileKind::Pipe);
        files.FailAt(call, Errno(EPIPE));
        const WrittenFile written = WriteFile(files, kWritten, {kNew}, options);
        ASSERT_TRUE(written.Failure) << call;
        EXPECT_EQ(written.Failure->Reason, Errno(EPIPE));
        EXPECT_EQ(files.OpenHandles(), 0);
    }
}

TEST(FileWriterIntoWhatIsNoFile, AFolderIsRefusedAllTheSame) {
    MemoryFiles files;
    files.PutSpecial(kWritten, FileKind::Folder);
    const WrittenFile written =
        WriteFile(files, kWritten, {kNew}, {Outlives::Machine, SpecialFiles::WrittenInto});
    ASSERT_TRUE(written.Failure);
    EXPECT_EQ(written.Failure->Reason, std::errc::is_a_directory);
}

} // namespace
} // namespace orvane
