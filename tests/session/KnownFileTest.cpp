// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/KnownFile.h"

#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const FileSystem::Path kPath = "/work/pump.zfsm";

class KnownFileTest : public testing::Test {
  protected:
    KnownFileTest() {
        files_.Put(kPath, "bytes");
        known_ = Now();
    }

    Result<KnownFile> Look() { return LookAgain(files_, kPath, known_); }
    KnownFile Now() { return {StampOf(files_.Look(kPath).Got), Sha256(*files_.Bytes(kPath))}; }

    MemoryFiles files_;
    KnownFile known_;
};

TEST_F(KnownFileTest, OfAFileWithTheSameStampNothingIsRead) {
    const int calls = files_.Calls();
    EXPECT_EQ(Look().Got, known_);
    EXPECT_EQ(files_.Calls() - calls, 1);
}

TEST_F(KnownFileTest, AnotherStampIsLookedBehind) {
    known_.Stamp.Changed -= 1;
    EXPECT_EQ(Look().Got, Now());
    files_.Put(kPath, "other");
    EXPECT_EQ(Look().Got.Digest, Sha256("other"));
}

TEST_F(KnownFileTest, WhatIsNoFileIsGone) {
    EXPECT_FALSE(files_.Remove(kPath));
    EXPECT_EQ(Look().Failure, std::errc::no_such_file_or_directory);
    files_.PutSpecial(kPath, FileKind::Pipe);
    EXPECT_EQ(Look().Failure, std::errc::no_such_file_or_directory);
}

TEST_F(KnownFileTest, OneThatCannotBeReadSaysWhy) {
    known_.Stamp.Changed -= 1;
    files_.FailAt(files_.Calls() + 3, make_error_code(std::errc::permission_denied)); // opening it
    EXPECT_EQ(Look().Failure, std::errc::permission_denied);
}

} // namespace
} // namespace orvane
