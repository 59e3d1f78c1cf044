// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileReader.h"

#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace orvane {
namespace {

const FileSystem::Path kPath = "/work/pump.zfsm";

std::error_code Errno(int number) { return {number, std::generic_category()}; }

TEST(FileReader, GivesAllBytesAndTheStampOfTheFile) {
    MemoryFiles files;
    files.Put(kPath, std::string("some\0bytes", 10));
    const FileContent content = ReadFile(files, kPath, 100);
    EXPECT_TRUE(content);
    EXPECT_EQ(content.Bytes(), std::string_view("some\0bytes", 10));
    EXPECT_EQ(content.Stamp, StampOf(files.Find(kPath)->Facts));
    EXPECT_EQ(files.OpenHandles(), 0);
}

TEST(FileReader, AnEmptyFileHasNoBytes) {
    MemoryFiles files;
    files.Put(kPath, "");
    const FileContent content = ReadFile(files, kPath, 100);
    EXPECT_TRUE(content);
    EXPECT_EQ(content.Bytes(), "");
}

TEST(FileReader, ADriveThatGivesItPieceByPieceGivesItAll) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += static_cast<char>('a' + i % 26);
    MemoryFiles files;
    files.Put(kPath, bytes);
    files.Find(kPath)->Facts.Size = 7; // it has grown since it was looked at
    files.WriteInParts(1000);
    EXPECT_EQ(ReadFile(files, kPath, bytes.size()).Bytes(), bytes);
}

TEST(FileReader, AFileOfTheLimitIsReadAndOneOfAByteMoreRefusedUnread) {
    MemoryFiles files;
    files.Put(kPath, "12345");
    EXPECT_EQ(ReadFile(files, kPath, 5).Bytes(), "12345");
    const int calls = files.Calls();
    const FileContent larger = ReadFile(files, kPath, 4);
    EXPECT_EQ(larger.Failure, (FileError{FileStep::Read, make_error_code(std::errc::file_too_large)}));
    EXPECT_EQ(larger.Bytes(), "");
    EXPECT_EQ(files.Calls() - calls, 4); // two looks, open and close
}

TEST(FileReader, AFileThatGrowsOverTheLimitWhileItIsReadIsRefused) {
    MemoryFiles files;
    files.Put(kPath, std::string(1000, 'x'));
    files.Find(kPath)->Facts.Size = 1;
    const FileContent content = ReadFile(files, kPath, 999);
    EXPECT_EQ(content.Failure, (FileError{FileStep::Read, make_error_code(std::errc::file_too_large)}));
    EXPECT_EQ(content.Bytes(), "");
}

TEST(FileReader, AnyCallThatFailsIsToldAndGivesNoBytes) {
    MemoryFiles counted;
    counted.Put(kPath, "text");
    ASSERT_TRUE(ReadFile(counted, kPath, 100));
    for (int call = 1; call < counted.Calls(); ++call) { // but for the last, which closes what was read
        MemoryFiles files;
        files.Put(kPath, "text");
        files.FailAt(call, Errno(EIO));
        const FileContent content = ReadFile(files, kPath, 100);
        ASSERT_TRUE(content.Failure) << call;
        EXPECT_EQ(content.Failure->Reason, Errno(EIO));
        EXPECT_EQ(content.Bytes(), "");
        EXPECT_EQ(files.OpenHandles(), 0);
    }
}

TEST(FileReader, WhatIsNoFileIsRefusedBeforeItIsOpened) {
    for (const FileKind kind : {FileKind::Folder, FileKind::Pipe, FileKind::Device, FileKind::Socket}) {
        MemoryFiles files;
        files.PutSpecial(kPath, kind);
        const FileContent content = ReadFile(files, kPath, 100);
        ASSERT_TRUE(content.Failure);
        EXPECT_EQ(content.Failure->Refused, kind);
        EXPECT_EQ(files.Calls(), 1);
    }
}

TEST(FileReader, AStreamIsReadToItsEndAndAFolderIsNone) {
    MemoryFiles files;
    files.PutSpecial(kPath, FileKind::Pipe);
    files.Find(kPath)->Bytes = "what comes out";
    EXPECT_EQ(ReadStream(files, kPath, 100).Bytes(), "what comes out");
    EXPECT_EQ(ReadStream(files, kPath, 3).Failure,
              (FileError{FileStep::Read, make_error_code(std::errc::file_too_large)}));
    files.PutSpecial(kPath, FileKind::Folder);
    EXPECT_EQ(ReadStream(files, kPath, 100).Failure, Refusal(FileKind::Folder));
}

} // namespace
} // namespace orvane
