// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalWriter.h"

#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "session/RecoveryFolder.h"
#include "support/DocumentText.h"
#include "support/EveryFieldDocument.h"
#include "support/JournaledWindow.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

#include <memory>

namespace orvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class JournalWriterTest : public testing::Test {
  protected:
    static constexpr const char* kFolder = "/recovery";

    JournalPlace Place() { return {Files, kFolder, "Orvane 1", TestClock, JournalSyncer::How::WhenTold}; }

    // What the next start finds: the process has ended, its locks are gone.
    std::vector<RecoveredJournal> Found() {
        std::vector<RecoveredJournal> found;
        for (const std::string& name : Files.AllNames()) {
            if (name.ends_with(kJournalSuffix))
                found.push_back(Recover(*Files.Bytes(name)));
        }
        return found;
    }
    RecoveredJournal Only() {
        const std::vector<RecoveredJournal> found = Found();
        EXPECT_THAT(found, SizeIs(1)) << testing::PrintToString(Files.AllNames());
        return found.empty() ? RecoveredJournal() : found.back();
    }

    MemoryFiles Files;
};

JournalDraft SomeDraft(int state, std::string text = "typed") {
    return {JournalDraftKind::Action, {6, state}, {{"Code", std::move(text)}}};
}

TEST_F(JournalWriterTest, WithoutAChangeThereIsNoFile) {
    JournaledWindow window(Place());
    window.Writer.ViewChanged({});
    window.Writer.DraftGone(SomeDraft(1));
    window.Save();
    window.Writer.Closed(JournalClose::NothingUnsaved);
    EXPECT_THAT(Files.AllNames(), IsEmpty());
    EXPECT_EQ(window.Writer.Name(), "");
}

TEST_F(JournalWriterTest, EveryCallIsInTheFileWhenItReturns) {
    JournaledWindow window(Place());
    const std::vector<void (*)(JournaledWindow&)> calls = {
        [](JournaledWindow& w) { w.Edit("0 second", "insert state"); },
        [](JournaledWindow& w) { w.Edit("0 third and longer", "delete event"); },
        [](JournaledWindow& w) { w.Move(-2); },
        [](JournaledWindow& w) { w.Move(1); },
        [](JournaledWindow& w) { w.Type(SomeDraft(1)); },
        [](JournaledWindow& w) { w.Type(SomeDraft(2)); },
        [](JournaledWindow& w) { w.Type(SomeDraft(1, "more")); },
        [](JournaledWindow& w) { w.CloseEditor(SomeDraft(2)); },
        [](JournaledWindow& w) { w.Edit("0 other"); },
        [](JournaledWindow& w) { w.Save(); },
        [](JournaledWindow& w) { w.Move(-1); },
    };
    for (std::size_t i = 0; i < calls.size(); ++i) {
        calls[i](window);
        EXPECT_EQ(Differences(Only(), window), "") << i;
        EXPECT_EQ(Only().End, JournalEnd::Clean) << i;
    }
    EXPECT_EQ(Only().Changes, 1u);
    EXPECT_EQ(window.Writer.TakeMessage(), std::nullopt);
}

TEST_F(JournalWriterTest, ChangesAreCountedOnceThoughTheFirstIsInWhatTheFileBeginsWith) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    EXPECT_EQ(Only().Changes, 1u);
    window.Edit("0 third");
    window.Move(-1);
    EXPECT_EQ(Only().Changes, 3u);
}

TEST_F(JournalWriterTest, TheViewIsBroughtBack) {
    const FsmDocument document = EveryFieldDocument();
    JournaledWindow window(Place(), Pack(FsmDocument()));
    window.Document = WriteDocument(FsmDocument());
    window.Edit(Pack(document));
    window.Writer.ViewChanged(ViewOf(document));
    EXPECT_EQ(WriteDocument(Only().Document), WriteDocument(document));
}

TEST_F(JournalWriterTest, ADocumentThatImagesCannotCarryIsWrittenDownWithEachStep) {
    FsmDocument document = EveryFieldDocument();
    document.State(1).Tooltip = "half\xA4half";
    JournaledWindow window(Place(), Pack(document));
    window.ImagesFallShort = true;
    for (const char* name : {"one", "two", "three"}) {
        document.State(1).Name = name;
        window.View = ViewOf(document);
        window.Document = WriteDocument(document);
        window.Edit(Pack(document));
        EXPECT_EQ(WriteDocument(Only().Document), window.Document);
    }
    document.State(1).Name = "two";
    window.Document = WriteDocument(document);
    window.Move(-1);
    EXPECT_EQ(WriteDocument(Only().Document), window.Document);
    EXPECT_TRUE(Only().ImagesFallShort);
}

TEST_F(JournalWriterTest, TheFileAndItsFolderAreTheUsersAlone) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    EXPECT_EQ(Files.Find(Files.AllNames().front())->Facts.Mode, 0600u);
}

TEST_F(JournalWriterTest, WhoeverIsTypingDoesNotWaitForTheDisk) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    window.Edit("0 third");
    EXPECT_THAT(Files.Log, testing::Not(testing::Contains("sync")));
}

TEST_F(JournalWriterTest, AJournalThatIsNotClosedStaysAndTheDiskHasIt) {
    {
        JournaledWindow window(Place());
        window.Edit("0 second");
    }
    EXPECT_EQ(Files.OpenHandles(), 0);
    const std::string name = Files.AllNames().front();
    EXPECT_EQ(Files.AfterPowerFailure(name, true), Files.Bytes(name));
    EXPECT_TRUE(Only().HasUnsavedWork());
}

TEST_F(JournalWriterTest, WhatIsSavedAndClosedGoes) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    window.Save();
    window.Writer.Closed(JournalClose::NothingUnsaved);
    EXPECT_THAT(Files.AllNames(), IsEmpty());
    EXPECT_EQ(Files.OpenHandles(), 0);
}

TEST_F(JournalWriterTest, WhatTheUserDidNotWantIsKeptAmongTheDiscarded) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    window.Writer.Closed(JournalClose::Discarded);
    ASSERT_THAT(Files.AllNames(), SizeIs(1));
    const std::string name = Files.AllNames().front();
    EXPECT_THAT(name, testing::EndsWith(kDiscardedSuffix));
    const RecoveredJournal journal = Recover(*Files.Bytes(name));
    EXPECT_EQ(journal.Closed, JournalClose::Discarded);
    EXPECT_EQ(Differences(journal, window), "");
    EXPECT_EQ(Files.OpenHandles(), 0);
}

TEST_F(JournalWriterTest, TheNextDocumentHasAJournalOfItsOwn) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    window.Writer.Adopt({}, 0); // begins a file that replaces the first
    window.Writer.Closed(JournalClose::NothingUnsaved);
    window.Images = {{"0 other document", "", {}}};
    window.Current = 0;
    window.Saved = window.Present();
    window.Edit("0 other document, changed");
    EXPECT_EQ(Differences(Only(), window), "");
    EXPECT_EQ(Only().Changes, 1u);
    EXPECT_THAT(Only().Head.Replaces, IsEmpty());
}

TEST_F(JournalWriterTest, AfterTwoThousandRecordsANewFileIsBegun) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = window.Writer.Name();
    for (std::uint32_t i = 0; i < JournalWriter::kMostRecords - 1; ++i)
        window.Edit("0 " + std::to_string(i));
    EXPECT_EQ(window.Writer.Name(), first);
    window.Edit("0 last");
    EXPECT_NE(window.Writer.Name(), first);
    EXPECT_EQ(Recover(*Files.Bytes(std::string(kFolder) + "/" + window.Writer.Name())).Head.Replaces,
              std::vector{first});
    const RecoveredJournal newer = Recover(*Files.Bytes(std::string(kFolder) + "/" + window.Writer.Name()));
    EXPECT_EQ(Differences(newer, window), "");
    EXPECT_EQ(newer.Changes, JournalWriter::kMostRecords + 1);
}

TEST_F(JournalWriterTest, TheOldFileStaysLockedUntilTheDiskHasTheNewOne) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = std::string(kFolder) + "/" + window.Writer.Name();
    for (std::uint32_t i = 0; i < JournalWriter::kMostRecords; ++i)
        window.Edit("0 " + std::to_string(i));
    ASSERT_NE(std::string(kFolder) + "/" + window.Writer.Name(), first);
    EXPECT_EQ(Files.OpenLocked(first, Existence::Old).Failure, std::errc::device_or_resource_busy);
    window.Writer.Closed(JournalClose::Discarded);
    EXPECT_EQ(Files.OpenHandles(), 0);
}

TEST_F(JournalWriterTest, AfterThirtyTwoMegabytesANewFileIsBegun) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = window.Writer.Name();
    const std::string large(9u << 20, 'x');
    for (const char letter : std::string_view("abc")) {
        window.Edit(std::string("0") + letter + large + letter);
        EXPECT_EQ(window.Writer.Name(), first);
    }
    window.Edit("0d" + large + "d");
    EXPECT_NE(window.Writer.Name(), first);
}

TEST_F(JournalWriterTest, AnImageThatIsNotThePresentOneIsNoDelta) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = window.Writer.Name();
    window.Images.push_back({"0 unheard", "", {}}); // nobody told
    window.Current = 2;
    window.Edit("0 third");
    EXPECT_NE(window.Writer.Name(), first);
    const RecoveredJournal newer = Recover(*Files.Bytes(std::string(kFolder) + "/" + window.Writer.Name()));
    EXPECT_EQ(Differences(newer, window), "");
}

TEST_F(JournalWriterTest, AWriteInPartsIsAWholeOne) {
    Files.WriteInParts(3);
    JournaledWindow window(Place());
    window.Edit("0 second");
    window.Edit("0 third");
    EXPECT_EQ(Differences(Only(), window), "");
}

const std::error_code kFull = make_error_code(std::errc::no_space_on_device);

// After a failed write nothing more is written behind what may stand there.
TEST_F(JournalWriterTest, AfterAFailedWriteANewFileHasEverything) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = window.Writer.Name();
    Files.FailAt(1, make_error_code(std::errc::io_error));
    window.Edit("0 third");
    EXPECT_NE(window.Writer.Name(), first);
    EXPECT_EQ(window.Writer.TakeMessage(), std::nullopt);
    const RecoveredJournal newer = Recover(*Files.Bytes(std::string(kFolder) + "/" + window.Writer.Name()));
    EXPECT_EQ(Differences(newer, window), "");
    EXPECT_EQ(Recover(*Files.Bytes(std::string(kFolder) + "/" + first)).End, JournalEnd::Clean);
}

TEST_F(JournalWriterTest, AWriteThatFailsInTheMiddleIsCutOff) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = std::string(kFolder) + "/" + window.Writer.Name();
    const std::string before = *Files.Bytes(first);
    Files.WriteInParts(5);
    Files.FailAt(3, kFull);
    window.Edit("0 third");
    EXPECT_EQ(Files.Bytes(first), before);
}

TEST_F(JournalWriterTest, WhileNothingCanBeWrittenTheUserIsToldOnceAndDrawingGoesOn) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    Files.FailAt(1, kFull, true);
    window.Edit("0 third");
    EXPECT_THAT(window.Writer.TakeMessage().value_or(""), HasSubstr("No space left on device"));
    window.Edit("0 fourth");
    TestTime() += JournalWriter::kRetryAfter;
    window.Edit("0 fifth");
    EXPECT_EQ(window.Writer.TakeMessage(), std::nullopt);
    EXPECT_EQ(Only().History.size(), 2u); // what stood before
}

TEST_F(JournalWriterTest, WhenThereIsRoomAgainEverythingIsThereAgain) {
    JournaledWindow window(Place());
    Files.FailAt(1, kFull, true);
    window.Edit("0 second");
    EXPECT_TRUE(window.Writer.TakeMessage());
    Files.FailAt(0, {});
    window.Edit("0 third");
    EXPECT_EQ(window.Writer.Name(), ""); // too soon to try
    TestTime() += JournalWriter::kRetryAfter;
    window.Edit("0 fourth");
    EXPECT_EQ(window.Writer.TakeMessage(), "Changes are kept for recovery again");
    EXPECT_EQ(Differences(Only(), window), "");
    EXPECT_EQ(Only().Changes, 3u);
}

// The steps that failed are not in the old file, and a later one says only how it differs from them.
TEST_F(JournalWriterTest, NothingIsAddedToAFileThatStepsAreMissingFrom) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = std::string(kFolder) + "/" + window.Writer.Name();
    const std::string before = *Files.Bytes(first);
    Files.FailAt(1, kFull, true);
    window.Edit("0 third");
    Files.FailAt(0, {});
    window.Edit("0 fourth"); // too soon for a new file
    EXPECT_EQ(Files.Bytes(first), before);
    TestTime() += JournalWriter::kRetryAfter;
    window.Edit("0 fifth");
    window.Writer.SyncNow();
    EXPECT_EQ(Differences(Only(), window), "");
}

TEST_F(JournalWriterTest, AFailedSyncBeginsANewFile) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = window.Writer.Name();
    Files.FailAt(1, make_error_code(std::errc::io_error));
    window.Writer.SyncNow();
    window.Edit("0 third");
    EXPECT_NE(window.Writer.Name(), first);
}

TEST_F(JournalWriterTest, AnOldFileStaysUntilASyncOfSomethingNewerSucceeds) {
    JournaledWindow window(Place());
    window.Edit("0 second");
    const std::string first = std::string(kFolder) + "/" + window.Writer.Name();
    window.Writer.Adopt({}, 0); // begins a file that replaces the first
    Files.FailAt(1, make_error_code(std::errc::io_error));
    window.Writer.SyncNow();
    EXPECT_EQ(Files.OpenLocked(first, Existence::Old).Failure, std::errc::device_or_resource_busy);
    window.Edit("0 third");
    EXPECT_THAT(Found(), SizeIs(3));
    window.Writer.SyncNow();
    EXPECT_EQ(Differences(Only(), window), "");
}

// One session with every kind of call, and then every call to the system failing in turn, for each reason
// and once or for good. Whatever happens, what the next start finds is the session or an earlier moment of
// it, and not earlier than the last moment at which the writer had nothing to complain of.
class JournalFailures : public JournalWriterTest {
  protected:
    struct Moment {
        std::string Present;
        bool WasTold = false; // that the journal is not written
    };

    // The moment that the window was at when it was killed. It has to be gone before the files are.
    Moment Run() {
        Killed = std::make_unique<JournaledWindow>(Place());
        JournaledWindow& window = *Killed;
        bool wasTold = false;
        for (int i = 0; i < 6; ++i) {
            TestTime() += std::chrono::seconds(3);
            window.Edit("0 image " + Repeated("x", std::size_t(i)));
            if (i == 2)
                window.Move(-1);
            if (i == 3)
                window.Type(SomeDraft(1));
            if (i == 4)
                window.Writer.SyncNow();
            if (const std::optional<std::string> message = window.Writer.TakeMessage())
                wasTold = message->find("not kept") != std::string::npos;
        }
        Files.CloseAll();
        return {window.Present(), wasTold};
    }

    std::unique_ptr<JournaledWindow> Killed;

    // The present image of the work that the next start offers first.
    std::string Offered() {
        const RecoveryFolder folder(Files, kFolder);
        const std::vector<OrphanedJournal> orphans = folder.Orphans();
        if (orphans.empty())
            return {};
        const RecoveredJournal journal = folder.Adopt(orphans.front().Name, TestClock()).Got.Journal;
        return journal.History.at(journal.Current).Image;
    }
};

TEST_F(JournalFailures, LoseNothingThatWasNotTold) {
    Run();
    const int calls = Files.Calls();
    ASSERT_GT(calls, 10);
    int told = 0;
    for (const std::errc reason :
         {std::errc::no_space_on_device, std::errc::io_error, std::errc::permission_denied,
          std::errc::read_only_file_system, std::errc::file_too_large}) {
        for (int call = 1; call <= 2 * calls; ++call) {
            const bool forGood = call > calls;
            Killed.reset();
            Files = MemoryFiles();
            Files.FailAt(forGood ? call - calls : call, make_error_code(reason), forGood);
            const Moment end = Run();
            Files.FailAt(0, {});
            told += end.WasTold ? 1 : 0;
            EXPECT_TRUE(end.WasTold || Offered() == end.Present)
                << call << ' ' << int(reason) << ' ' << forGood;
            EXPECT_TRUE(forGood || !end.WasTold) << call; // one failure is overcome
        }
    }
    EXPECT_GT(told, 0);
}

} // namespace
} // namespace orvane::test
