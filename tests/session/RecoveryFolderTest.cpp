// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/RecoveryFolder.h"

#include "support/JournalText.h"
#include "support/JournaledWindow.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RecoveryFolderTest : public testing::Test {
  protected:
    static constexpr const char* kFolder = "/recovery";

    JournalPlace Place() { return {Files, kFolder, "Orvane 1", TestClock, JournalSyncer::How::WhenTold}; }

    // A window that made some changes and crashed.
    std::string Crashed(const std::string& image, const std::string& path = "/work/pump.zfsm") {
        JournaledWindow window(Place());
        window.Path = path;
        window.Edit("0 before");
        window.Edit(image);
        return window.Writer.Name();
    }
    // A file of any content.
    std::string Put(const std::string& name, const std::string& bytes) {
        Files.Put(std::string(kFolder) + "/" + name, bytes);
        return name;
    }
    std::vector<std::string> OrphanNames() {
        std::vector<std::string> names;
        for (const OrphanedJournal& orphan : Folder.Orphans())
            names.push_back(orphan.Name);
        return names;
    }
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const std::string& path : Files.AllNames())
            names.push_back(path.substr(std::string(kFolder).size() + 1));
        return names;
    }

    MemoryFiles Files;
    RecoveryFolder Folder{Files, kFolder};
};

TEST_F(RecoveryFolderTest, AnOrphanTellsWhatItIs) {
    const std::string name = Crashed("0 after");
    ASSERT_THAT(Folder.Orphans(), SizeIs(1));
    const OrphanedJournal orphan = Folder.Orphans().front();
    EXPECT_EQ(orphan.Name, name);
    EXPECT_EQ(orphan.Path, "/work/pump.zfsm");
    EXPECT_EQ(orphan.LastChange, TestClock());
    EXPECT_EQ(orphan.Changes, 2u);
    EXPECT_TRUE(orphan.IsModified);
    EXPECT_FALSE(orphan.WasDamaged || orphan.WasDiscarded);
    EXPECT_EQ(Files.OpenHandles(), 0);
}

TEST_F(RecoveryFolderTest, AnOpenJournalIsNoOrphan) {
    JournaledWindow window(Place());
    window.Edit("0 after");
    EXPECT_THAT(Folder.Orphans(), IsEmpty());
    EXPECT_EQ(Folder.Adopt(window.Writer.Name(), TestClock()).Failure, std::errc::device_or_resource_busy);
    EXPECT_EQ(Folder.Discard(window.Writer.Name(), TestClock()), std::errc::device_or_resource_busy);
    Folder.Age(TestClock() + std::chrono::days(1000));
    EXPECT_EQ(Folder.DeleteAll(), 0u);
    EXPECT_THAT(Names(), ElementsAre(window.Writer.Name()));
}

TEST_F(RecoveryFolderTest, TheOneChangedLastComesFirst) {
    const std::string first = Crashed("0 one");
    TestTime() += std::chrono::hours(1);
    const std::string second = Crashed("0 two");
    EXPECT_THAT(OrphanNames(), ElementsAre(second, first));
}

TEST_F(RecoveryFolderTest, WorkThatWasSavedIsNotOfferedAndGoes) {
    {
        JournaledWindow window(Place());
        window.Edit("0 after");
        window.Save();
    }
    EXPECT_THAT(Folder.Orphans(), IsEmpty());
    EXPECT_THAT(Names(), SizeIs(1));
    Folder.Age(TestClock());
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(RecoveryFolderTest, OnlyOneStarterGetsAnOrphan) {
    const std::string name = Crashed("0 after");
    const Result<AdoptedJournal> first = Folder.Adopt(name, TestClock());
    ASSERT_FALSE(first.Failure);
    EXPECT_EQ(Folder.Adopt(name, TestClock()).Failure, std::errc::device_or_resource_busy);
    Folder.LetGo(first.Got);
    EXPECT_FALSE(Folder.Adopt(name, TestClock()).Failure);
}

TEST_F(RecoveryFolderTest, AdoptedWorkSurvivesASecondAndAThirdCrash) {
    std::string name = Crashed("0 after");
    for (const char* image : {"0 second life", "0 third life"}) {
        Result<AdoptedJournal> adopted = Folder.Adopt(name, TestClock());
        ASSERT_FALSE(adopted.Failure);
        JournaledWindow window(Place());
        window.Continue(std::move(adopted.Got));
        EXPECT_NE(window.Writer.Name(), name);
        window.Edit(image);
        window.Move(-1);
        window.Move(1);
        name = window.Writer.Name();
        window.Writer.SyncNow();
        EXPECT_EQ(Differences(Recover(*Files.Bytes(std::string(kFolder) + "/" + name)), window), "");
        EXPECT_EQ(Names(), std::vector{name});
        TestTime() += std::chrono::minutes(1);
    }
    const RecoveredJournal journal = Folder.Adopt(name, TestClock()).Got.Journal;
    EXPECT_THAT(journal.History, SizeIs(5));
    EXPECT_EQ(journal.Changes, 8u);
    EXPECT_EQ(journal.SavedImage, "0 first");
}

// A crash between the new journal and the end of the old one.
TEST_F(RecoveryFolderTest, WhatANewerJournalReplacesIsNotOfferedAndGoesWithIt) {
    const std::string old = Crashed("0 after");
    JournaledWindow window(Place());
    window.Continue(std::move(Folder.Adopt(old, TestClock()).Got));
    const std::string name = window.Writer.Name();
    ASSERT_THAT(Names(), SizeIs(2));
    Files.CloseAll(); // killed before the disk had the new one
    EXPECT_THAT(OrphanNames(), ElementsAre(name));

    const Result<AdoptedJournal> again = Folder.Adopt(name, TestClock());
    EXPECT_THAT(again.Got.Files, SizeIs(2));
    Folder.LetGo(again.Got);
    EXPECT_FALSE(Folder.Discard(name, TestClock()));
    EXPECT_THAT(Names(), SizeIs(1));
    EXPECT_TRUE(Folder.Orphans().front().WasDiscarded);
}

TEST_F(RecoveryFolderTest, WhenTheNewJournalCannotBeWrittenTheAdoptedOneStays) {
    const std::string old = Crashed("0 after");
    Result<AdoptedJournal> adopted = Folder.Adopt(old, TestClock());
    JournaledWindow window(Place());
    Files.FailAt(1, make_error_code(std::errc::no_space_on_device), true);
    window.Continue(std::move(adopted.Got));
    EXPECT_TRUE(window.Writer.TakeMessage());
    Files.FailAt(0, {});
    EXPECT_THAT(Names(), ElementsAre(old));
    EXPECT_THAT(Folder.Orphans(), IsEmpty()); // it has one
    window.Writer.Closed(JournalClose::Discarded);
    ASSERT_THAT(Folder.Orphans(), SizeIs(1));
    EXPECT_TRUE(Folder.Orphans().front().WasDiscarded);
}

TEST_F(RecoveryFolderTest, ADamagedJournalIsKeptWhenItsWorkIsAdopted) {
    JournalText text;
    text.Begin("0 first").Commit("0 second");
    const std::size_t end = text.Bytes().size();
    text.Commit("0 third").Commit("0 fourth");
    std::string bytes = text.Bytes();
    bytes[end + 30] ^= 1;
    const std::string name = Put("20261121T205300Z-0123ABCD.orj", bytes);
    ASSERT_THAT(Folder.Orphans(), SizeIs(1));
    EXPECT_TRUE(Folder.Orphans().front().WasDamaged);
    {
        JournaledWindow window(Place());
        window.Continue(std::move(Folder.Adopt(name, TestClock()).Got));
        EXPECT_EQ(window.Present(), "0 second");
    }
    EXPECT_THAT(Names(), testing::UnorderedElementsAre(testing::EndsWith(kJournalSuffix),
                                                       testing::EndsWith(kDiscardedSuffix)));
}

TEST_F(RecoveryFolderTest, DiscardedWorkIsOfferedForSevenDays) {
    const std::string name = Crashed("0 after");
    EXPECT_FALSE(Folder.Discard(name, TestClock()));
    Folder.Age(TestClock() + RecoveryFolder::kDiscardedAge);
    ASSERT_THAT(Folder.Orphans(), SizeIs(1));
    EXPECT_TRUE(Folder.Orphans().front().WasDiscarded);
    EXPECT_EQ(Folder.Adopt(Folder.Orphans().front().Name, TestClock()).Got.Journal.History.back().Image,
              "0 after");
    Files.CloseAll();
    Folder.Age(TestClock() + RecoveryFolder::kDiscardedAge + std::chrono::seconds(1));
    EXPECT_THAT(Names(), IsEmpty());
}

// It was last changed long after it was begun.
TEST_F(RecoveryFolderTest, AnOrphanIsOfferedForNinetyDaysFromItsLastChange) {
    const JournalTime begun = TestClock();
    {
        JournaledWindow window(Place());
        window.Edit("0 after");
        TestTime() += std::chrono::days(50);
        window.Edit("0 later");
    }
    Folder.Age(begun + std::chrono::days(50) + RecoveryFolder::kAge);
    EXPECT_THAT(Names(), SizeIs(1));
    Folder.Age(begun + std::chrono::days(50) + RecoveryFolder::kAge + std::chrono::seconds(1));
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(RecoveryFolderTest, AJournalThatCannotBeReadIsLeftToItsAge) {
    const std::string empty = Put("20260901T000000Z-0123ABCD.orj", "");
    const std::string other = Put("20260901T000000Z-0123ABCE.orj", "something else entirely");
    const JournalTime begun = ParseRecoveryName(empty)->Time;
    Folder.Age(begun + RecoveryFolder::kAge);
    EXPECT_THAT(Names(), ElementsAre(empty, other));
    Folder.Age(begun + RecoveryFolder::kAge + std::chrono::seconds(1));
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(RecoveryFolderTest, ForeignFilesAreNeverTouched) {
    Put("notes.txt", "mine");
    Put("20261121T205300Z-0123ABCD.orj.bak", "mine");
    Put("20261121T205300Z.orj", "mine");
    Put("20269921T205300Z-0123ABCD.orj", "mine");
    Folder.Age(TestClock() + std::chrono::days(10000));
    EXPECT_EQ(Folder.DeleteAll(), 0u);
    EXPECT_THAT(Names(), SizeIs(4));
    EXPECT_THAT(Folder.Orphans(), IsEmpty());
}

TEST_F(RecoveryFolderTest, OfTooMuchTheOldestGoesAndDiscardedWorkFirst) {
    constexpr std::uint64_t most = 20'000;
    const std::string large(7'000, 'x');
    const auto crashed = [&](char letter) {
        TestTime() += std::chrono::hours(1);
        return Crashed(std::string("0") + letter + large);
    };
    const std::string a = crashed('a');
    const std::string b = crashed('b');
    const std::string c = crashed('c');
    EXPECT_FALSE(Folder.Discard(b, TestClock()));
    Folder.Age(TestClock(), most);
    EXPECT_THAT(OrphanNames(), ElementsAre(c, a));
    const std::string d = crashed('d');
    Folder.Age(TestClock(), most);
    EXPECT_THAT(OrphanNames(), ElementsAre(d, c));
    Folder.Age(TestClock());
    EXPECT_THAT(OrphanNames(), ElementsAre(d, c));
}

TEST_F(RecoveryFolderTest, TheNewestOrphanStaysHoweverLargeItIs) {
    const std::string name = Crashed("0" + std::string(10'000, 'x'));
    Folder.Age(TestClock(), 1);
    EXPECT_THAT(Names(), ElementsAre(name));
}

TEST_F(RecoveryFolderTest, PartsOfNewJournalsGoWhenNobodyCanBeWritingThem) {
    const std::string part = Put("20261121T205300Z-0123ABCD.orj.new", "part");
    const JournalTime begun = ParseRecoveryName(part)->Time;
    Folder.Age(begun + RecoveryFolder::kUnfinishedAge, 0);
    EXPECT_THAT(Names(), ElementsAre(part));
    Folder.Age(begun + RecoveryFolder::kUnfinishedAge + std::chrono::seconds(1));
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(RecoveryFolderTest, ReplacedBytesAreKeptUnderTheirNameAndSynced) {
    const Result<FileSystem::Path> kept = Folder.KeepReplaced("/work/pump.zls", "their program", TestClock());
    ASSERT_FALSE(kept.Failure);
    EXPECT_THAT(kept.Got.string(), testing::EndsWith("-pump.zls"));
    EXPECT_EQ(Files.AfterPowerFailure(kept.Got, true), "their program");
    EXPECT_EQ(Files.Find(kept.Got)->Facts.Mode, 0600u);
    EXPECT_EQ(Files.OpenHandles(), 0);
    EXPECT_THAT(Folder.Orphans(), IsEmpty());
    Folder.Age(TestClock() + RecoveryFolder::kAge);
    EXPECT_THAT(Names(), SizeIs(1));
    Folder.Age(TestClock() + RecoveryFolder::kAge + std::chrono::seconds(2));
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(RecoveryFolderTest, ReplacedBytesThatCannotBeKeptAreTold) {
    for (int call = 1; call <= 6; ++call) {
        Files = MemoryFiles();
        Files.FailAt(call, make_error_code(std::errc::no_space_on_device));
        EXPECT_EQ(Folder.KeepReplaced("/work/pump.zls", "bytes", TestClock()).Failure,
                  std::errc::no_space_on_device)
            << call;
        EXPECT_THAT(Names(), IsEmpty()) << call;
    }
}

TEST_F(RecoveryFolderTest, DeleteAllLeavesNothingAndTellsWhatItCouldNot) {
    Crashed("0 one");
    EXPECT_FALSE(Folder.Discard(Crashed("0 two"), TestClock()));
    EXPECT_FALSE(Folder.KeepReplaced("/work/pump.zls", "bytes", TestClock()).Failure);
    Put("20261121T205300Z-0123ABCD.orj.new", "part");
    Files.FailAt(3, make_error_code(std::errc::permission_denied)); // the first removal
    EXPECT_EQ(Folder.DeleteAll(), 1u);
    EXPECT_EQ(Folder.DeleteAll(), 0u);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST(RecoveryFolderPath, IsWhereTheEnvironmentSays) {
#ifdef _WIN32
    EXPECT_EQ(RecoveryFolderPath({"", "", "C:\\Users\\me\\AppData\\Local"}),
              FileSystem::Path("C:\\Users\\me\\AppData\\Local\\Orvane\\recovery"));
    EXPECT_EQ(RecoveryFolderPath({"C:\\state", "C:\\home", ""}), std::nullopt);
#else
    EXPECT_EQ(RecoveryFolderPath({"/state", "/home/me", ""}), "/state/orvane/recovery");
    EXPECT_EQ(RecoveryFolderPath({"", "/home/me", ""}), "/home/me/.local/state/orvane/recovery");
    EXPECT_EQ(RecoveryFolderPath({"relative", "/home/me", ""}), "/home/me/.local/state/orvane/recovery");
    EXPECT_EQ(RecoveryFolderPath({"", "", ""}), std::nullopt);
#endif
}

TEST(RecoveryName, BeginsWithTheTimeAndIsReadBack) {
    const JournalTime time = SecondsAfterStart(61);
    const std::string stem = RecoveryStem(time + std::chrono::milliseconds(999));
    EXPECT_EQ(stem.substr(0, 17), "20260921T141421Z-");
    EXPECT_EQ(stem.size(), 25u);
    EXPECT_NE(stem, RecoveryStem(time));
    for (const auto& [suffix, kind] : {std::pair(kJournalSuffix, RecoveryFileKind::Journal),
                                       std::pair(kUnfinishedSuffix, RecoveryFileKind::Unfinished),
                                       std::pair(kDiscardedSuffix, RecoveryFileKind::Discarded),
                                       std::pair("-x.orj", RecoveryFileKind::ReplacedBytes)}) {
        const std::optional<RecoveryName> parsed = ParseRecoveryName(stem + suffix);
        ASSERT_TRUE(parsed) << suffix;
        EXPECT_EQ(parsed->Kind, kind) << suffix;
        EXPECT_EQ(parsed->Time, time) << suffix;
    }
}

} // namespace
} // namespace orvane::test
