// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/LatestWriter.h"

#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

#include <future>
#include <vector>

namespace orvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A drive whose writes stand until the test lets them go on. It is one for all, as `How` is a plain function.
struct Drive {
    std::mutex Mutex;
    std::condition_variable Changed;
    bool IsStuck = false;
    int Begun = 0;
    std::vector<std::string> Texts;
    bool Fails = false;

    void LetGo() {
        const std::lock_guard lock(Mutex);
        IsStuck = false;
        Changed.notify_all();
    }
    void AwaitWrites(int count) {
        std::unique_lock lock(Mutex);
        Changed.wait(lock, [&] { return Begun >= count; });
    }
};

Drive* drive = nullptr;

WrittenFile WriteSlowly(FileSystem&, const std::filesystem::path&, std::string_view text) {
    std::unique_lock lock(drive->Mutex);
    ++drive->Begun;
    drive->Changed.notify_all();
    drive->Changed.wait(lock, [] { return !drive->IsStuck; });
    drive->Texts.emplace_back(text);
    WrittenFile written;
    if (drive->Fails)
        written.Failure = FileError{FileStep::Write, make_error_code(std::errc::no_space_on_device)};
    return written;
}

class LatestWriterTest : public testing::Test, public LatestWriter::Listener {
  protected:
    LatestWriterTest() { drive = &drive_; }

    void OutcomeIsThere() override { told_.set_value(); }

    LatestWriter& Writer(std::chrono::milliseconds patience) {
        writer_.emplace(files_, &WriteSlowly, *this, patience);
        return *writer_;
    }

    MemoryFiles files_;
    Drive drive_;
    std::promise<void> told_;
    std::optional<LatestWriter> writer_; // goes first
};

constexpr std::chrono::milliseconds kLong{60'000};
constexpr std::chrono::milliseconds kShort{1};

TEST_F(LatestWriterTest, OnADriveThatAnswersEachTextIsThereWhenTheCallReturns) {
    LatestWriter& writer = Writer(kLong);
    for (const char* text : {"a", "b", "c"}) {
        const std::optional<WriteOutcome> outcome = writer.Write("/p", text);
        ASSERT_TRUE(outcome);
        EXPECT_EQ(outcome->Path, "/p");
        EXPECT_FALSE(outcome->Written.Failure);
        EXPECT_EQ(drive_.Texts.back(), text);
    }
    EXPECT_FALSE(writer.TakeOutcome());
}

TEST_F(LatestWriterTest, BehindASlowDriveNobodyWaitsAndTheNewestTextWins) {
    LatestWriter& writer = Writer(kShort);
    drive_.IsStuck = true;
    EXPECT_FALSE(writer.Write("/p", "first"));
    drive_.AwaitWrites(1);
    for (const char* text : {"second", "third", "fourth"})
        EXPECT_FALSE(writer.Write("/p", text));
    EXPECT_TRUE(writer.IsWriting());
    drive_.LetGo();
    told_.get_future().wait();
    ASSERT_TRUE(writer.TakeOutcome());
    EXPECT_FALSE(writer.TakeOutcome());
    EXPECT_THAT(drive_.Texts, ElementsAre("first", "fourth"));
}

TEST_F(LatestWriterTest, WhoAsksForTheFileWaitsForIt) {
    LatestWriter& writer = Writer(kShort);
    drive_.IsStuck = true;
    writer.Write("/p", "text");
    drive_.AwaitWrites(1);
    std::future<std::optional<WriteOutcome>> finished =
        std::async(std::launch::async, [&] { return writer.Finish(); });
    drive_.LetGo();
    EXPECT_TRUE(finished.get());
    EXPECT_FALSE(writer.IsWriting());
    EXPECT_THAT(drive_.Texts, ElementsAre("text"));
}

TEST_F(LatestWriterTest, WhatTheThreadCouldNotWriteIsToldLikeAnyOther) {
    LatestWriter& writer = Writer(kShort);
    drive_.IsStuck = true;
    drive_.Fails = true;
    writer.Write("/p", "text");
    drive_.LetGo();
    const std::optional<WriteOutcome> outcome = writer.Finish();
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->Written.Failure->Reason, std::errc::no_space_on_device);
}

TEST_F(LatestWriterTest, TheNewestTextIsWrittenBeforeTheProgramEnds) {
    Writer(kShort);
    drive_.IsStuck = true;
    writer_->Write("/p", "first");
    drive_.AwaitWrites(1);
    writer_->Write("/p", "last");
    drive_.LetGo();
    writer_.reset();
    EXPECT_THAT(drive_.Texts, ElementsAre("first", "last"));
}

TEST_F(LatestWriterTest, WithoutATextThereIsNothingToWaitFor) {
    EXPECT_FALSE(Writer(kLong).Finish());
    EXPECT_FALSE(writer_->IsWriting());
    EXPECT_THAT(drive_.Texts, IsEmpty());
}

} // namespace
} // namespace orvane::test
