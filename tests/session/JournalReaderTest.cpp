// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalReader.h"

#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "support/EveryFieldDocument.h"
#include "support/JournalText.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace orvane::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> ImagesOf(const RecoveredJournal& journal) {
    std::vector<std::string> images;
    for (const JournalStep& step : journal.History)
        images.push_back(step.Image);
    return images;
}

std::string Present(const RecoveredJournal& journal) { return journal.History.at(journal.Current).Image; }

// Three steps, of which the last is taken back.
JournalText ShortJournal() {
    JournalText journal;
    journal.Begin("0 first").Commit("0 second", "insert state").Commit("0 the third", "delete event");
    journal.Commit("0 fourth").Add(MoveRecord{-1});
    return journal;
}

TEST(JournalReader, BringsBackTheHistoryWithItsNamesAndTimes) {
    const RecoveredJournal journal = Recover(ShortJournal().Bytes());
    EXPECT_THAT(ImagesOf(journal), ElementsAre("0 first", "0 second", "0 the third", "0 fourth"));
    EXPECT_EQ(journal.Current, 2u);
    EXPECT_EQ(journal.History[0].Name, "");
    EXPECT_EQ(journal.History[1].Name, "insert state");
    EXPECT_EQ(journal.History[2].Name, "delete event");
    EXPECT_EQ(journal.History[2].Time, SecondsAfterStart(3));
    EXPECT_EQ(journal.LastChange, SecondsAfterStart(5));
    EXPECT_EQ(journal.Changes, 4u);
    EXPECT_EQ(journal.Records, 6u);
    EXPECT_EQ(journal.End, JournalEnd::Clean);
    EXPECT_EQ(journal.Head.Path, "/work/pump.zfsm");
    EXPECT_EQ(journal.SavedImage, "0 first");
    EXPECT_TRUE(journal.HasUnsavedWork());
}

TEST(JournalReader, AStepAfterUndoEndsRedo) {
    JournalText text;
    text.Begin("0 first").Commit("0 second").Add(MoveRecord{-1});
    text.Add(CommitRecord{"other", Difference("0 first", "0 other")});
    const RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_THAT(ImagesOf(journal), ElementsAre("0 first", "0 other"));
    EXPECT_EQ(journal.Current, 1u);
}

TEST(JournalReader, OfManyStepsThoseAreKeptThatUndoCanReach) {
    JournalText text;
    text.Begin("0 0");
    for (int i = 1; i <= 250; ++i)
        text.Commit("0 " + std::to_string(i));
    const RecoveredJournal journal = Recover(text.Bytes());
    ASSERT_EQ(journal.History.size(), kMostImages);
    EXPECT_EQ(journal.History.front().Image, "0 151");
    EXPECT_EQ(journal.History.front().Name, "");
    EXPECT_EQ(Present(journal), "0 250");
    EXPECT_EQ(journal.Changes, 250u);
}

TEST(JournalReader, ASaveIsWhereModifiedIsMeasuredFrom) {
    JournalText text;
    text.Begin("0 first").Commit("0 second").Add(SavedRecord{"/work/new.zfsm", {7, 8, {}}});
    RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_FALSE(journal.IsModified());
    EXPECT_FALSE(journal.HasUnsavedWork());
    EXPECT_EQ(journal.Changes, 0u);
    EXPECT_EQ(journal.Head.Path, "/work/new.zfsm");
    EXPECT_EQ(journal.Head.Stamp, (JournalStamp{7, 8, {}}));

    text.Commit("0 third").Add(MoveRecord{-2});
    journal = Recover(text.Bytes());
    EXPECT_TRUE(journal.IsModified());
    EXPECT_EQ(Present(journal), "0 first");
    EXPECT_EQ(journal.SavedImage, "0 second");
}

TEST(JournalReader, TheSavedImageIsKnownWhenNoStepLeadsToItAnyMore) {
    JournalText text;
    text.Begin("0 first").Commit("0 saved").Add(SavedRecord{"p", {}}).Add(MoveRecord{-1});
    text.Add(CommitRecord{"", Difference("0 first", "0 other")});
    EXPECT_EQ(Recover(text.Bytes()).SavedImage, "0 saved");
    text.Add(ImageRecord{Difference("0 other", "0 anew"), false});
    RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_EQ(journal.SavedImage, "0 saved");
    EXPECT_THAT(ImagesOf(journal), ElementsAre("0 anew"));
    text.Add(ImageRecord{Difference("0 anew", "0 again"), true});
    EXPECT_EQ(Recover(text.Bytes()).SavedImage, "0 again");
}

// A journal that was begun anew repeats the steps before it, which are no new changes.
TEST(JournalReader, WhatStoodWhenTheFileWasBegunIsCountedOnce) {
    JournalText text;
    text.Begin("0 first").Commit("0 second").Commit("0 third").Add(StandRecord{40});
    EXPECT_EQ(Recover(text.Bytes()).Changes, 40u);
    EXPECT_EQ(Recover(text.Commit("0 fourth").Bytes()).Changes, 41u);
}

TEST(JournalReader, AClosedJournalHoldsNothingUnsaved) {
    JournalText text;
    text.Begin("0 first").Commit("0 second").Add(ClosedRecord{JournalClose::Discarded});
    const RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_EQ(journal.Closed, JournalClose::Discarded);
    EXPECT_TRUE(journal.IsModified());
    EXPECT_FALSE(journal.HasUnsavedWork());
}

TEST(JournalReader, OfEachOpenEditorTheLastDraftIsBroughtBack) {
    const auto draft = [](int state, std::string text) {
        return JournalDraft{JournalDraftKind::Action, {6, state}, {{"Code", std::move(text)}}};
    };
    JournalText text;
    text.Begin("0 first").Add(DraftRecord{draft(1, "a")}).Add(DraftRecord{draft(2, "b")});
    text.Add(DraftRecord{draft(3, "c")}).Add(DraftRecord{draft(1, "again")});
    text.Add(DraftGoneRecord{draft(2, "")});
    const RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_THAT(journal.Drafts, ElementsAre(draft(3, "c"), draft(1, "again")));
    EXPECT_FALSE(journal.IsModified());
    EXPECT_TRUE(journal.HasUnsavedWork());
}

// The image of a document, and what is not in it.
TEST(JournalReader, TheDocumentComesBackWithAllThatNoImageHolds) {
    const FsmDocument before = EveryFieldDocument();
    FsmDocument after = before;
    after.State(2).Name = "another";
    after.State(7).ColWidth = 4321;
    after.View.Polytask = !after.View.Polytask;
    after.General.BuildFile = "other.b1d";
    JournalText text;
    const std::string document = WriteDocument(before);
    text.Begin(Pack(before)).Add(DocumentRecord{{0, 0, document}, false}).Commit(Pack(after));
    text.Add(ViewRecord{ViewOf(after)});

    const RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_TRUE(journal.Messages.empty());
    EXPECT_EQ(WriteDocument(journal.Document), WriteDocument(after));
}

// Undo would take the second half of such a text for the field behind it.
TEST(JournalReader, ADocumentThatImagesCannotCarryComesBackAsItWasWritten) {
    FsmDocument before = EveryFieldDocument();
    before.State(1).Tooltip = "half\xA4half";
    FsmDocument after = before;
    after.State(1).Name = "another";
    const std::string older = WriteDocument(before);
    const std::string newer = WriteDocument(after);
    JournalText text;
    text.Begin(Pack(before)).Add(DocumentRecord{{0, 0, older}, true}).Commit(Pack(after));
    EXPECT_EQ(WriteDocument(Recover(text.Bytes()).Document), older); // cut between the two records of a step

    text.Add(DocumentRecord{Difference(older, newer), true});
    const RecoveredJournal journal = Recover(text.Bytes());
    EXPECT_EQ(WriteDocument(journal.Document), newer);
    EXPECT_TRUE(journal.ImagesFallShort);
}

TEST(JournalReader, CutAtAnyByteItEndsSilentlyBehindTheLastWholeRecord) {
    const JournalText text = ShortJournal();
    const std::vector<std::size_t>& ends = text.Ends();
    for (std::size_t size = 0; size < text.Bytes().size(); ++size) {
        const RecoveredJournal journal = Recover(text.Bytes().substr(0, size));
        const auto whole = std::upper_bound(ends.begin(), ends.end(), size) - ends.begin();
        const bool atAnEnd = whole > 0 && ends[std::size_t(whole) - 1] == size;
        EXPECT_EQ(journal.End, atAnEnd ? JournalEnd::Clean : JournalEnd::Torn) << size;
        EXPECT_EQ(journal.Records, whole > 0 ? whole - 1 : 0) << size;
        EXPECT_EQ(journal.GoodBytes, whole > 0 ? ends[std::size_t(whole) - 1] : 0) << size;
    }
}

TEST(JournalReader, NoFlippedBitPassesAndWholeRecordsBehindItAreTold) {
    const JournalText text = ShortJournal();
    const std::vector<std::size_t>& ends = text.Ends();
    for (std::size_t bit = ends[0] * 8; bit < text.Bytes().size() * 8; ++bit) {
        std::string flipped = text.Bytes();
        flipped[bit / 8] ^= char(1 << bit % 8);
        const RecoveredJournal journal = Recover(flipped);
        const auto record = std::upper_bound(ends.begin(), ends.end(), bit / 8) - ends.begin() - 1;
        EXPECT_EQ(journal.Records, record) << bit;
        const bool isLast = bit / 8 >= ends[ends.size() - 2];
        EXPECT_EQ(journal.End, isLast ? JournalEnd::Torn : JournalEnd::Damaged) << bit;
    }
}

TEST(JournalReader, AFlippedBitOfTheSaltLeavesNothing) {
    std::string bytes = ShortJournal().Bytes();
    bytes[kJournalMark.size()] ^= 1;
    EXPECT_TRUE(Recover(bytes).History.empty());
    EXPECT_EQ(Recover(bytes).End, JournalEnd::Torn);
}

TEST(JournalReader, BytesThatAreNoJournalAreDamaged) {
    EXPECT_EQ(Recover("any other file, longer than a head").End, JournalEnd::Damaged);
    EXPECT_EQ(Recover("short").End, JournalEnd::Damaged);
    EXPECT_EQ(Recover(std::string(4096, '\0')).End, JournalEnd::Damaged);
    EXPECT_TRUE(Recover(std::string(4096, '\0')).History.empty());
    EXPECT_EQ(Recover("").End, JournalEnd::Torn);
}

TEST(JournalReader, ZerosBehindTheLastRecordAreATornEnd) {
    const std::string bytes = ShortJournal().Bytes();
    const RecoveredJournal journal = Recover(bytes + std::string(5000, '\0'));
    EXPECT_EQ(journal.Records, 6u);
    EXPECT_EQ(journal.End, JournalEnd::Torn);
    EXPECT_EQ(journal.GoodBytes, bytes.size());
}

TEST(JournalReader, BytesOfAnOlderJournalBehindTheCutAreATornEnd) {
    JournalText older("old salt");
    older.Begin("0 older");
    for (int i = 0; i < 30; ++i)
        older.Commit("0 older " + std::to_string(i));
    const JournalText text = ShortJournal();
    for (std::size_t cut = text.Ends()[3]; cut <= text.Bytes().size(); ++cut) {
        const RecoveredJournal journal = Recover(text.Bytes().substr(0, cut) + older.Bytes().substr(cut));
        EXPECT_EQ(journal.End, JournalEnd::Torn) << cut;
        EXPECT_GE(journal.Records, 3u) << cut;
    }
}

// What holds by its check may still not follow what stands before it.
TEST(JournalReader, ARecordThatCannotFollowEndsTheJournal) {
    const std::vector<RecordContent> misplaced = {
        HeadRecord{},
        MoveRecord{-2},
        MoveRecord{1},
        MoveRecord{0},
        MoveRecord{std::numeric_limits<std::int64_t>::min()},
        CommitRecord{"", {6, 3, "too much"}},
        CommitRecord{"", {std::string::npos, 1, ""}},
        CommitRecord{"", {0, 0, ""}}, // no image is empty
        ImageRecord{{9, 0, ""}, false},
        DocumentRecord{{1, 0, "of nothing"}, false},
    };
    for (const RecordContent& content : misplaced) {
        JournalText text;
        text.Begin("0 first").Commit("0 second").Add(content);
        EXPECT_EQ(Recover(text.Bytes()).Records, 3u) << content.index();
        EXPECT_EQ(Recover(text.Bytes()).End, JournalEnd::Damaged) << content.index();
    }
}

TEST(JournalReader, NothingStandsBeforeTheHeadOrBehindTheClose) {
    EXPECT_EQ(Recover(JournalText().Add(MoveRecord{1}).Bytes()).Records, 0u);
    EXPECT_EQ(Recover(JournalText().Add(ImageRecord{{0, 0, "0"}, true}).Bytes()).Records, 0u);
    JournalText text;
    text.Begin("0 first").Add(ClosedRecord{}).Commit("0 late");
    EXPECT_EQ(Recover(text.Bytes()).Records, 3u);
}

TEST(JournalReader, WithoutAnImageThereIsNothingToMoveSaveOrCommit) {
    for (const RecordContent& content : {RecordContent(MoveRecord{1}), RecordContent(SavedRecord{}),
                                         RecordContent(CommitRecord{"", {0, 0, "0 image"}})}) {
        const JournalText text = JournalText().Add(HeadRecord{}).Add(content);
        EXPECT_EQ(Recover(text.Bytes()).Records, 1u) << content.index();
        EXPECT_TRUE(Recover(text.Bytes()).History.empty());
    }
}

TEST(JournalReader, ARecordWithTheWrongNumberEndsTheJournal) {
    std::string bytes = JournalText().Begin("0 first").Bytes();
    ASSERT_TRUE(AppendRecord({7, {}, CommitRecord{"", Difference("0 first", "0 second")}}, kTestSalt, bytes));
    EXPECT_EQ(Recover(bytes).Records, 2u);
    EXPECT_EQ(Recover(bytes).End, JournalEnd::Damaged);
}

} // namespace
} // namespace orvane::test
