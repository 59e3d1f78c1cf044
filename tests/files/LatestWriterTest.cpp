// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/LatestWriter.h"

#include <gmock/gmock.h>

#include <future>
#include <vector>

namespace orvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kAll = 1000;

// A drive whose writes stand until the test lets them go on.
struct Drive final : LatestWriter::Target {
    std::mutex Mutex;
    std::condition_variable Changed;
    int Through = kAll; // so many writes go through
    int Begun = 0;
    std::vector<std::string> Texts;
    std::string Fault;

    WriteOutcome WriteTo(const std::filesystem::path& path, std::string_view text) override {
        std::unique_lock lock(Mutex);
        const int number = ++Begun;
        Changed.notify_all();
        Changed.wait(lock, [&] { return number <= Through; });
        Texts.emplace_back(path.generic_string() + ": " + std::string(text));
        return {Fault};
    }
    void LetGo(int count = kAll) {
        const std::lock_guard lock(Mutex);
        Through = count;
        Changed.notify_all();
    }
    void AwaitWrites(int count) {
        std::unique_lock lock(Mutex);
        Changed.wait(lock, [&] { return Begun >= count; });
    }
};

class LatestWriterTest : public testing::Test, public LatestWriter::Listener {
  protected:
    void OutcomeIsThere() override {
        if (!std::exchange(wasTold_, true))
            told_.set_value();
    }

    LatestWriter& Writer(std::chrono::milliseconds patience) {
        writer_.emplace(drive_, *this, patience);
        return *writer_;
    }

    Drive drive_;
    bool wasTold_ = false;
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
        EXPECT_EQ(outcome->Failure, "");
        EXPECT_EQ(drive_.Texts.back(), std::string("/p: ") + text);
    }
    EXPECT_FALSE(writer.TakeOutcome());
}

TEST_F(LatestWriterTest, BehindASlowDriveNobodyWaitsAndTheNewestTextWins) {
    LatestWriter& writer = Writer(kShort);
    drive_.Through = 0;
    EXPECT_FALSE(writer.Write("/p", "first"));
    drive_.AwaitWrites(1);
    for (const char* text : {"second", "third", "fourth"})
        EXPECT_FALSE(writer.Write("/p", text));
    EXPECT_TRUE(writer.IsWriting());
    drive_.LetGo();
    told_.get_future().wait();
    ASSERT_TRUE(writer.TakeOutcome());
    EXPECT_FALSE(writer.TakeOutcome());
    EXPECT_THAT(drive_.Texts, ElementsAre("/p: first", "/p: fourth"));
}

// It would be taken for the newest one's.
TEST_F(LatestWriterTest, TheOutcomeOfAnOlderTextIsNotHandedOutWhileANewerOneWaits) {
    LatestWriter& writer = Writer(kShort);
    drive_.Through = 0;
    writer.Write("/p", "first");
    drive_.AwaitWrites(1);
    writer.Write("/p", "second");
    drive_.LetGo(1);
    drive_.AwaitWrites(2);
    EXPECT_FALSE(writer.TakeOutcome());
    drive_.LetGo();
    EXPECT_TRUE(writer.Finish());
}

TEST_F(LatestWriterTest, ADriveThatIsKnownToBeSlowIsNotWaitedForUntilItIsQuickAgain) {
    LatestWriter& writer = Writer(std::chrono::milliseconds(20));
    drive_.Through = 0;
    EXPECT_FALSE(writer.Write("/p", "slow"));
    drive_.AwaitWrites(1);
    const auto enough = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    while (std::chrono::steady_clock::now() < enough)
        std::this_thread::yield();
    drive_.LetGo();
    writer.Finish();
    EXPECT_FALSE(writer.Write("/p", "quick"));
    writer.Finish();
    EXPECT_TRUE(writer.Write("/p", "known to be quick"));
}

TEST_F(LatestWriterTest, WhoAsksForTheFileWaitsForIt) {
    LatestWriter& writer = Writer(kShort);
    drive_.Through = 0;
    writer.Write("/p", "text");
    drive_.AwaitWrites(1);
    std::future<std::optional<WriteOutcome>> finished =
        std::async(std::launch::async, [&] { return writer.Finish(); });
    drive_.LetGo();
    EXPECT_TRUE(finished.get());
    EXPECT_FALSE(writer.IsWriting());
    EXPECT_THAT(drive_.Texts, ElementsAre("/p: text"));
}

TEST_F(LatestWriterTest, WhatTheThreadCouldNotWriteIsToldLikeAnyOther) {
    LatestWriter& writer = Writer(kShort);
    drive_.Through = 0;
    drive_.Fault = "The disk is full";
    writer.Write("/p", "text");
    drive_.LetGo();
    const std::optional<WriteOutcome> outcome = writer.Finish();
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->Failure, "The disk is full");
}

TEST_F(LatestWriterTest, TheNewestTextIsWrittenBeforeTheProgramEnds) {
    Writer(kShort);
    drive_.Through = 0;
    writer_->Write("/p", "first");
    drive_.AwaitWrites(1);
    writer_->Write("/p", "last");
    drive_.LetGo();
    writer_.reset();
    EXPECT_THAT(drive_.Texts, ElementsAre("/p: first", "/p: last"));
}

TEST_F(LatestWriterTest, WithoutATextThereIsNothingToWaitFor) {
    EXPECT_FALSE(Writer(kLong).Finish());
    EXPECT_FALSE(writer_->IsWriting());
    EXPECT_THAT(drive_.Texts, IsEmpty());
}

} // namespace
} // namespace orvane::test
