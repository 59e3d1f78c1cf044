// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/OwnSave.h"

#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "support/MemoryFiles.h"
#include "text/Sha256.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr const char* kSaved = "/work/pump.zfsm";

class OwnSaveTest : public testing::Test {
  protected:
    OwnSaveTest() {
        Journal.Head.Path = kSaved;
        Journal.Head.Stamp = JournalStamp{1, 2, {}};
        Journal.History = {{"older", "", {}}, {"0 present", "transition", {}}};
        Journal.Current = 1;
        Journal.SavedImage = "older";
        Journal.Changes = 3;
        Journal.Document.General.FsmName = "PMP";
        Journal.Document.View.Polytask = true;
    }

    MemoryFiles Files;
    RecoveredJournal Journal;
};

TEST_F(OwnSaveTest, AFileThatSaysWhatTheJournalSaysWasSavedByItsWindow) {
    const std::string bytes = WriteDocument(Journal.Document);
    Files.Put(kSaved, bytes);
    EXPECT_TRUE(TakeOwnSave(Files, Journal));
    EXPECT_FALSE(Journal.HasUnsavedWork());
    EXPECT_EQ(Journal.Changes, 0u);
    ASSERT_TRUE(Journal.Head.Stamp);
    EXPECT_EQ(Journal.Head.Stamp->Size, bytes.size());
    EXPECT_EQ(Journal.Head.Stamp->Modified, Files.Find(kSaved)->Facts.Changed);
    EXPECT_EQ(Journal.Head.Stamp->Sha256, Sha256(bytes));
}

// Of what no image has, too.
TEST_F(OwnSaveTest, AFileThatSaysAnythingElseIsSomebodysWork) {
    FsmDocument other = Journal.Document;
    other.View.Polytask = false;
    Files.Put(kSaved, WriteDocument(other));
    EXPECT_FALSE(TakeOwnSave(Files, Journal));
    EXPECT_EQ(Journal.SavedImage, "older");
    EXPECT_EQ(Journal.Changes, 3u);
    EXPECT_EQ(Journal.Head.Stamp, (JournalStamp{1, 2, {}}));
}

TEST_F(OwnSaveTest, WithoutAFileNothingIsSaved) {
    EXPECT_FALSE(TakeOwnSave(Files, Journal));
    Journal.Head.Path.clear();
    EXPECT_FALSE(TakeOwnSave(Files, Journal));
    EXPECT_TRUE(Journal.HasUnsavedWork());
}

} // namespace
} // namespace orvane
