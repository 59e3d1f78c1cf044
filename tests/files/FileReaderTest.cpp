// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileReader.h"

#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace orvane {
namespace {

const FileSystem::Path kRead = "/work/pump.zfsm";

TEST(FileReader, GivesAllBytesAndTheStampOfTheFile) {
    MemoryFiles files;
    files.Put(kRead, std::string("some\0bytes", 10));
    const FileContent content = ReadFile(files, kRead, 100);
    EXPECT_TRUE(content);
    EXPECT_EQ(content.Bytes(), std::string_view("some\0bytes", 10));
    EXPECT_EQ(content.Stamp, StampOf(files.Find(kRead)->Facts));
    EXPECT_EQ(files.OpenHandles(), 0);
}

TEST(FileReader, AnEmptyFileHasNoBytes) {
    MemoryFiles files;
    files.Put(kRead, "");
    const FileContent content = ReadFile(files, kRead, 100);
    EXPECT_TRUE(content);
    EXPECT_EQ(content.Bytes(), "");
}

TEST(FileReader, ADriveThatGivesItPieceByPieceGivesItAll) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += static_cast<char>('a' + i % 26);
    MemoryFiles files;
    files.Put(kRead, bytes);
    files.Find(kRead)->Facts.Size = 7; // it has grown since it was looked at
    files.WriteInParts(1000);
    EXPECT_EQ(ReadFile(files, kRead, bytes.size()).Bytes(), bytes);
}

TEST(FileReader, AFileOfTheLimitIsReadAndOneOfAByteMoreRefusedUnread) {
    MemoryFiles files;
    files.Put(kRead, "12345");
    EXPECT_EQ(ReadFile(files, kRead, 5).Bytes(), "12345");
    const int calls = files.Calls();
    const FileContent larger = ReadFile(files, kRead, 4);
    EXPECT_EQ(larger.Failure, (FileError{FileStep::Read, make_error_code(std::errc::file_too_large)}));
    EXPECT_EQ(larger.Bytes(), "");
    EXPECT_EQ(files.Calls() - calls, 4); // two looks, open and close
}

TEST(FileReader, AFileThatGrowsOverTheLimitWhileItIsReadIsRefused) {
    MemoryFiles files;
    files.Put(kRead, std::string(1000, 'x'));
    files.Find(kRead)->Facts.Size = 1;
    const FileContent content = ReadFile(files, kRead, 999);
    EXPECT_EQ(content.Failure, (FileError{FileStep::Read, make_error_code(std::errc::file_too_large)}));
    EXPECT_EQ(content.Bytes(), "");
}

TEST(FileReader, AnyCallThatFailsIsToldAndGivesNoBytes) {
    MemoryFiles counted;
    counted.Put(kRead, "text");
    ASSERT_TRUE(ReadFile(counted, kRead, 100));
    for (int call = 1; call < counted.Calls(); ++call) { // but for the last, which closes what was read
        MemoryFiles files;
        files.Put(kRead, "text");
        files.FailAt(call, Errno(EIO));
        const FileContent content = ReadFile(files, kRead, 100);
        ASSERT_TRUE(content.Failure) << call;
        EXPECT_EQ(content.Failure->Reason, Errno(EIO));
        EXPECT_EQ(content.Bytes(), "");
        EXPECT_EQ(files.OpenHandles(), 0);
    }
}

TEST(FileReader, WhatIsNoFileIsRefusedBeforeItIsOpened) {
    for (const FileKind kind : {FileKind::Folder, FileKind::Pipe, FileKind::Device, FileKind::Socket}) {
        MemoryFiles files;
        files.PutSpecial(kRead, kind);
        const FileContent content = ReadFile(files, kRead, 100);
        ASSERT_TRUE(content.Failure);
        EXPECT_EQ(content.Failure->Refused, kind);
        EXPECT_EQ(files.Calls(), 1);
    }
}

TEST(FileReader, AStreamIsReadToItsEndAndAFolderIsNone) {
    MemoryFiles files;
    files.PutSpecial(kRead, FileKind::Pipe);
    files.Find(kRead)->Bytes = "what comes out";
    EXPECT_EQ(ReadStream(files, kRead, 100).Bytes(), "what comes out");
    EXPECT_EQ(ReadStream(files, kRead, 3).Failure,
              (FileError{FileStep::Read, make_error_code(std::errc::file_too_large)}));
    files.PutSpecial(kRead, FileKind::Folder);
    EXPECT_EQ(ReadStream(files, kRead, 100).Failure, Refusal(FileKind::Folder));
}

} // namespace
} // namespace orvane
