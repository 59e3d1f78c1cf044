// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/LivePicture.h"

#include "diagram/SceneOf.h"

#include <gtest/gtest.h>

#include <map>

namespace orvane::diagram {
namespace {

// Each state leads to the next, the last to the first.
FsmDocument Ring(int states, int linesEach = 1) {
    FsmDocument document;
    for (int state = 1; state <= states; ++state) {
        document.State(state).Name = "State" + std::to_string(state);
        for (int line = 0; line < linesEach; ++line)
            document.State(state).Targets[6 + line] = (state + line) % states + 1;
    }
    return document;
}

std::map<int, Point> Places(const LivePicture& picture) {
    std::map<int, Point> places;
    for (const PlacedState& state : picture.Places().States)
        places[state.Number.Number()] = {state.Box.X, state.Box.Y};
    return places;
}

LivePicture Begun(const FsmDocument& document, const PictureWish& wish = {}) {
    LivePicture picture(kSizes);
    picture.Begin(document, wish);
    return picture;
}

// Lines that cross, drawn one after the other: 1..6 lead to 7..12 in the other order.
LivePicture Rotten() {
    FsmDocument document = Ring(12);
    LivePicture picture = Begun(document);
    for (int state = 1; state <= 12; ++state) {
        for (int line = 1; line <= 3; ++line) {
            document.State(state).Targets[10 + line] = (state * 5 + line * 3) % 12 + 1;
            picture.Follow(document, {});
        }
    }
    return picture;
}

TEST(LivePicture, OfAnEmptyTableIsEmptyAndFollowsTheFirstState) {
    FsmDocument document;
    LivePicture picture = Begun(document);
    EXPECT_TRUE(picture.Shown().States.empty());
    EXPECT_FALSE(picture.Job());
    document.State(1).Name = "First";
    picture.Follow(document, {});
    EXPECT_EQ(picture.Shown().States.size(), 1u);
}

TEST(LivePicture, AfterAnEditWhatWasThereStays) {
    FsmDocument document = Ring(10);
    LivePicture picture = Begun(document);
    const auto before = Places(picture);
    document.State(3).Targets[9] = 1;
    picture.Follow(document, {});
    int moved = 0;
    for (const auto& [state, place] : Places(picture))
        moved += before.at(state) == place ? 0 : 1;
    EXPECT_LE(moved, 4);
    EXPECT_EQ(picture.Shown().Edges.size(), 11u);
}

TEST(LivePicture, UpToSixStatesAreAlwaysTidy) {
    FsmDocument document = Ring(6);
    LivePicture picture = Begun(document);
    document.State(1).Targets[9] = 4;
    document.State(4).Targets[9] = 2;
    picture.Follow(document, {});
    EXPECT_EQ(Places(picture), Places(Begun(document)));
    EXPECT_FALSE(picture.Job());
}

TEST(LivePicture, WhatWasDrawnLineByLineIsTidiedWhenTheUserSaysSo) {
    LivePicture picture = Rotten();
    std::optional<ColdJob> job = picture.Job();
    ASSERT_TRUE(job);
    EXPECT_FALSE(job->IsAwaited);
    const int before = picture.Places().Crossings;
    const auto places = Places(picture);
    picture.Take(*job, ColdLayout(job->Drawn, kSizes, job->Way));
    ASSERT_GE(picture.Saved(), 3);
    EXPECT_EQ(Places(picture), places); // nothing moves by itself
    const int saved = picture.Saved();
    picture.Tidy();
    EXPECT_EQ(picture.Places().Crossings, before - saved);
    EXPECT_EQ(picture.Saved(), 0);
    EXPECT_FALSE(picture.Job());
}

TEST(LivePicture, AnEditTakesTheOfferBack) {
    LivePicture picture = Rotten();
    std::optional<ColdJob> job = picture.Job();
    ASSERT_TRUE(job);
    picture.Take(*job, ColdLayout(job->Drawn, kSizes, job->Way));
    ASSERT_GT(picture.Saved(), 0);
    picture.Follow(Ring(12), {});
    EXPECT_EQ(picture.Saved(), 0);
    picture.Tidy(); // of what is not offered
    EXPECT_EQ(picture.Shown().Edges.size(), picture.Places().Edges.size());
}

TEST(LivePicture, BegunAgainItIsTidyUnasked) {
    LivePicture picture = Begun(Ring(12));
    FsmDocument document = Ring(12, 3);
    picture.Follow(document, {});
    picture.Begin(document, {});
    EXPECT_EQ(Places(picture), Places(Begun(document)));
}

TEST(LivePicture, AboveFortyStatesItIsTheNeighbourhoodOfTheChosenOne) {
    EXPECT_EQ(Begun(Ring(40)).ShownPart(), Part::Whole);
    PictureWish wish;
    wish.Chosen = 20;
    LivePicture picture = Begun(Ring(41), wish);
    EXPECT_EQ(picture.ShownPart(), Part::Readable);
    EXPECT_EQ(picture.Around(), StateNumber(20));
    EXPECT_EQ(picture.Shown().States.size(), 3u);
    EXPECT_EQ(picture.StatesInAll(), 41u);
    wish.Chosen = kNoState; // a row's head: the picture stays where it was
    picture.Follow(Ring(41), wish);
    EXPECT_EQ(picture.Around(), StateNumber(20));
    EXPECT_EQ(Begun(Ring(39, 4)).ShownPart(), Part::Readable); // 156 lines
    EXPECT_EQ(Begun(Ring(39, 3)).ShownPart(), Part::Whole);
}

TEST(LivePicture, AllOfALargeMachineIsShownWhenAThreadHasLaidItOut) {
    PictureWish wish;
    wish.All = true;
    LivePicture picture = Begun(Ring(60), wish);
    EXPECT_EQ(picture.ShownPart(), Part::InTheMaking);
    EXPECT_EQ(picture.Shown().States.size(), 3u); // as long as that takes
    std::optional<ColdJob> job = picture.Job();
    ASSERT_TRUE(job && job->IsAwaited);
    picture.Take(*job, ColdLayout(job->Drawn, kSizes, job->Way));
    EXPECT_EQ(picture.ShownPart(), Part::Whole);
    EXPECT_EQ(picture.Shown().States.size(), 60u);
    FsmDocument document = Ring(60);
    document.State(60).Targets[20] = 30;
    picture.Follow(document, wish); // and then it follows
    EXPECT_EQ(picture.ShownPart(), Part::Whole);
    EXPECT_EQ(picture.Shown().Edges.size(), 61u);
    wish.All = false;
    picture.Follow(document, wish);
    EXPECT_EQ(picture.ShownPart(), Part::Readable);
}

TEST(LivePicture, WhatTakesTooLongIsNotTriedAgainUntilTheNextDocument) {
    PictureWish wish;
    wish.All = true;
    LivePicture picture = Begun(Ring(60), wish);
    picture.GiveUp();
    EXPECT_EQ(picture.ShownPart(), Part::TooSlow);
    picture.Follow(Ring(60), wish);
    EXPECT_EQ(picture.ShownPart(), Part::TooSlow);
    EXPECT_FALSE(picture.Job() && picture.Job()->IsAwaited);
    picture.Begin(Ring(60), wish);
    EXPECT_EQ(picture.ShownPart(), Part::InTheMaking);
}

TEST(LivePicture, MoreThanSixHundredLinesAreNeverShownAtOnce) {
    PictureWish wish;
    wish.All = true;
    EXPECT_EQ(Begun(Ring(100, 6), wish).ShownPart(), Part::InTheMaking);
    FsmDocument document = Ring(100, 6);
    document.State(1).Targets[40] = 50;
    const LivePicture picture = Begun(document, wish);
    EXPECT_EQ(picture.ShownPart(), Part::TooMany);
    EXPECT_LE(picture.Shown().States.size(), 14u);
    wish.Options.OnlyRow = 6; // one event's lines are few
    EXPECT_EQ(Begun(document, wish).ShownPart(), Part::InTheMaking);
}

TEST(LivePicture, TurnedItKeepsTheDirection) {
    FsmDocument document = Ring(8);
    LivePicture picture = Begun(document);
    const Direction before = picture.Places().Way;
    picture.Turn();
    const Direction after = picture.Places().Way;
    EXPECT_NE(before, after);
    document.State(2).Targets[9] = 5;
    picture.Follow(document, {});
    EXPECT_EQ(picture.Places().Way, after);
}

TEST(LivePicture, AStoppedLayoutIsSoonThereAndWhole) {
    const Scene scene = MakeScene(Ring(100, 4), kSizes);
    std::stop_source source;
    source.request_stop();
    const Layout layout = ColdLayout(scene, kSizes, Direction::LeftToRight, source.get_token());
    EXPECT_EQ(layout.States.size(), 100u);
    EXPECT_EQ(layout.Edges.size(), 400u);
    EXPECT_GE(layout.Crossings, ColdLayout(scene, kSizes, Direction::LeftToRight).Crossings);
}

} // namespace
} // namespace orvane::diagram
