// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/UndoRing.h"

#include <gtest/gtest.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace orvane {
namespace {

std::string Image(int number) { return "image " + std::to_string(number); }

// Image 0 and then this many commits.
UndoRing RingWith(int commits) {
    UndoRing ring;
    ring.Reset(Image(0));
    for (int number = 1; number <= commits; ++number)
        EXPECT_TRUE(ring.Commit(Image(number)));
    return ring;
}

int UndoneSteps(UndoRing& ring) {
    int steps = 0;
    while (ring.UndoStep())
        ++steps;
    return steps;
}

TEST(UndoRing, AfterAResetThereIsNothingToUndoOrRedo) {
    UndoRing ring = RingWith(5);
    ring.UndoStep();
    ring.Reset("fresh");
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(ring.UndoStep(), nullptr);
    EXPECT_EQ(ring.RedoStep(), nullptr);
    EXPECT_EQ(ring.Current(), "fresh");
    EXPECT_FALSE(ring.IsModified());
}

TEST(UndoRing, UndoAndRedoStepThroughTheImages) {
    UndoRing ring = RingWith(2);
    ASSERT_NE(ring.UndoStep(), nullptr);
    EXPECT_EQ(ring.Current(), Image(1));
    const std::string* oldest = ring.UndoStep();
    ASSERT_NE(oldest, nullptr);
    EXPECT_EQ(*oldest, Image(0));
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_TRUE(ring.CanRedo());
    const std::string* newer = ring.RedoStep();
    ASSERT_NE(newer, nullptr);
    EXPECT_EQ(*newer, Image(1));
    EXPECT_TRUE(ring.CanUndo());
    ring.RedoStep();
    EXPECT_EQ(ring.Current(), Image(2));
    EXPECT_FALSE(ring.CanRedo());
}

TEST(UndoRing, StepsAtTheEndsChangeNothing) {
    UndoRing ring = RingWith(1);
    EXPECT_EQ(ring.RedoStep(), nullptr);
    EXPECT_EQ(ring.Current(), Image(1));
    ring.UndoStep();
    EXPECT_EQ(ring.UndoStep(), nullptr);
    EXPECT_EQ(ring.Current(), Image(0));
}

TEST(UndoRing, AfterAHundredCommitsUndoGoesBackNinetyNineSteps) {
    UndoRing ring = RingWith(100);
    EXPECT_EQ(UndoneSteps(ring), 99);
    EXPECT_EQ(ring.Current(), Image(1));
}

TEST(UndoRing, UpToNinetyNineCommitsNothingIsLost) {
    UndoRing ring = RingWith(99);
    EXPECT_EQ(UndoneSteps(ring), 99);
    EXPECT_EQ(ring.Current(), Image(0));
}

TEST(UndoRing, TheRingGoesRoundManyTimes) {
    UndoRing ring = RingWith(350);
    EXPECT_EQ(UndoneSteps(ring), 99);
    EXPECT_EQ(ring.Current(), Image(251));
    int redone = 0;
    while (ring.RedoStep())
        ++redone;
    EXPECT_EQ(redone, 99);
    EXPECT_EQ(ring.Current(), Image(350));
}

TEST(UndoRing, AnEditAfterUndoEndsRedo) {
    UndoRing ring = RingWith(3);
    ring.UndoStep();
    ring.UndoStep();
    EXPECT_TRUE(ring.Commit("another"));
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(ring.RedoStep(), nullptr);
    EXPECT_EQ(UndoneSteps(ring), 2);
}

TEST(UndoRing, AnUnchangedDocumentIsNoStep) {
    UndoRing ring = RingWith(1);
    EXPECT_FALSE(ring.Commit(Image(1)));
    EXPECT_EQ(UndoneSteps(ring), 1);
}

TEST(UndoRing, AnUnchangedDocumentDoesNotEndRedo) {
    UndoRing ring = RingWith(2);
    ring.UndoStep();
    EXPECT_FALSE(ring.Commit(Image(1)));
    EXPECT_TRUE(ring.CanRedo());
}

TEST(UndoRing, RecreatingAnUndoneStateIsAStepOfItsOwn) {
    UndoRing ring = RingWith(1);
    ring.UndoStep();
    EXPECT_TRUE(ring.Commit(Image(1)));
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(UndoneSteps(ring), 1);
}

TEST(UndoRing, UndoBackToWhatWasSavedIsNotModified) {
    UndoRing ring = RingWith(1);
    EXPECT_TRUE(ring.IsModified());
    ring.MarkSaved(Image(1));
    EXPECT_FALSE(ring.IsModified());
    ring.Commit(Image(2));
    EXPECT_TRUE(ring.IsModified());
    ring.UndoStep();
    EXPECT_FALSE(ring.IsModified());
    ring.UndoStep();
    EXPECT_TRUE(ring.IsModified());
    ring.RedoStep();
    EXPECT_FALSE(ring.IsModified());
}

TEST(UndoRing, StepsAreCalledByWhatWasDone) {
    UndoRing ring;
    ring.Reset("0");
    ring.Commit("1", "insert state");
    ring.Commit("2", "paste state");
    EXPECT_EQ(ring.UndoName(), "paste state");
    EXPECT_EQ(ring.RedoName(), "");
    ring.UndoStep();
    EXPECT_EQ(ring.UndoName(), "insert state");
    EXPECT_EQ(ring.RedoName(), "paste state");
    ring.Commit("3", "state");
    EXPECT_EQ(ring.RedoName(), "");
}

void ExpectSameStory(const UndoRing& ring) {
    const UndoStory story = ring.Story();
    const UndoHistory history = ring.History();
    ASSERT_EQ(story.Steps.size() + 1, history.Snapshots.size());
    EXPECT_EQ(story.Current, history.Current);
    EXPECT_EQ(story.SavedText, history.SavedText);
    std::string image = story.Oldest;
    for (std::size_t i = 0; i < history.Snapshots.size(); ++i) {
        if (i > 0) {
            EXPECT_EQ(story.Steps[i - 1].Name, history.Snapshots[i].Name);
            ASSERT_TRUE(story.Steps[i - 1].Change.Fits(image.size()));
            Apply(story.Steps[i - 1].Change, image);
        }
        EXPECT_EQ(image, history.Snapshots[i].Image);
    }
}

TEST(UndoRing, ItsHistoryIsPutIntoAnotherRingAndToldInDifferences) {
    for (const int commits : {0, 1, 57, 99, 100, 250}) {
        for (const int undone : {0, 1, 40}) {
            UndoRing ring;
            ring.Reset("begin");
            for (int i = 0; i < commits; ++i)
                ring.Commit(std::to_string(i), "edit " + std::to_string(i));
            for (int i = 0; i < undone; ++i)
                ring.UndoStep();
            UndoRing other;
            other.Restore(ring.History());
            EXPECT_EQ(other.History().Snapshots, ring.History().Snapshots);
            EXPECT_EQ(other.Current(), ring.Current());
            EXPECT_EQ(other.IsModified(), ring.IsModified());
            EXPECT_EQ(other.CanUndo(), ring.CanUndo());
            EXPECT_EQ(other.CanRedo(), ring.CanRedo());
            ExpectSameStory(ring);
            other.Commit("more", "edit");
            EXPECT_FALSE(other.CanRedo());
        }
    }
}

TEST(UndoRing, OfALongerHistoryTheOldestAreLeftOut) {
    UndoHistory history;
    for (int i = 0; i < 150; ++i)
        history.Snapshots.push_back({std::to_string(i), {}});
    history.Current = 120;
    UndoRing ring;
    ring.Restore(history);
    EXPECT_EQ(ring.Current(), "120");
    EXPECT_EQ(ring.History().Snapshots.size(), UndoRing::kSlotCount - 1);
    EXPECT_EQ(ring.History().Snapshots.front().Image, "50");
}

// How many bytes the process has on the heap.
std::size_t HeapBytes() {
#ifdef __GLIBC__
    return mallinfo2().uordblks + mallinfo2().hblkhd;
#else
    return 0;
#endif
}

TEST(UndoRing, ALetterInALargeTextCostsALetter) {
    const std::string large(std::size_t{8} << 20, 'x');
    UndoRing ring;
    ring.Reset(large);
    ring.Commit(large + "0");
    const std::size_t before = HeapBytes();
    for (int i = 1; i < 90; ++i)
        ring.Commit(large + std::to_string(i));
    EXPECT_LE(HeapBytes(), before + large.size() / 2);
    while (ring.CanUndo())
        ring.UndoStep();
    EXPECT_EQ(ring.Current(), large);
}

TEST(UndoRing, WhatWasBeforeIsKnownRightAfterACommit) {
    UndoRing ring;
    ring.Reset("0");
    EXPECT_EQ(ring.Previous(), "");
    ring.Commit("1");
    EXPECT_EQ(ring.Previous(), "0");
    ring.Commit("2");
    EXPECT_EQ(ring.Previous(), "1");
    ring.UndoStep();
    EXPECT_EQ(ring.Previous(), "");
}

} // namespace
} // namespace orvane
