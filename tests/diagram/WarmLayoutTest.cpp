// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Layout.h"
#include "diagram/SceneOf.h"
#include "support/PictureFaults.h"

#include <gtest/gtest.h>

namespace orvane::diagram {
namespace {

FsmDocument Ring(int states) {
    FsmDocument document;
    document.General.FsmName = "M";
    for (int state = 1; state <= states; ++state) {
        document.State(state).Name = "State" + std::to_string(state);
        document.State(state).Targets[6] = state % states + 1;
    }
    return document;
}

int CentreX(const Rect& box) { return box.X + box.Width / 2; }

Layout Cold(const FsmDocument& document) {
    return ColdLayout(SceneOf(document), kSizes, Direction::LeftToRight);
}

Layout Warm(const FsmDocument& document, const Layout& before) {
    const Layout warm = WarmLayout(SceneOf(document), kSizes, before.Memory);
    const test::PictureFaults faults = test::FaultsOf(warm);
    EXPECT_EQ(faults.All(), 0) << test::Told(faults);
    return warm;
}

TEST(DiagramWarmLayout, OfTheSameMachineIsTheSamePicture) {
    const Layout cold = Cold(Ring(8));
    const Layout warm = Warm(Ring(8), cold);
    for (std::size_t i = 0; i < cold.States.size(); ++i)
        EXPECT_EQ(warm.States[i].Box, cold.States[i].Box);
    for (std::size_t i = 0; i < cold.Edges.size(); ++i) {
        EXPECT_EQ(warm.Edges[i].Line, cold.Edges[i].Line);
        EXPECT_EQ(warm.Edges[i].Label, cold.Edges[i].Label);
    }
    EXPECT_EQ(warm.Bounds, cold.Bounds);
}

TEST(DiagramWarmLayout, BeginsFromNothing) {
    const Layout warm = Warm(Ring(3), Cold(FsmDocument()));
    EXPECT_EQ(warm.States.size(), 3u);
    EXPECT_EQ(warm.Edges.size(), 3u);
}

TEST(DiagramWarmLayout, ANewTransitionMovesNobodyWhoHasRoom) {
    FsmDocument document = Ring(8);
    const Layout before = Cold(document);
    document.State(2).Targets[7] = 6;
    const Layout after = Warm(document, before);
    for (std::size_t i = 0; i < before.States.size(); ++i)
        EXPECT_EQ(after.States[i].Box.X, before.States[i].Box.X) << i;
}

TEST(DiagramWarmLayout, ARemovedTransitionMovesNothing) {
    FsmDocument document = Ring(8);
    document.State(2).Targets[7] = 6;
    const Layout before = Cold(document);
    document.State(2).Targets[7] = kNoState;
    const Layout after = Warm(document, before);
    for (std::size_t i = 0; i < before.States.size(); ++i)
        EXPECT_EQ(after.States[i].Box, before.States[i].Box) << i;
}

TEST(DiagramWarmLayout, ALongerNameMovesOnlyWhatIsBehindItsColumn) {
    FsmDocument document = Ring(5);
    const Layout before = Cold(document);
    document.State(3).Name = "A name that is a good deal longer";
    const Layout after = Warm(document, before);
    const int shift = after.States[3].Box.X - before.States[3].Box.X;
    EXPECT_GT(shift, 0);
    EXPECT_EQ(after.States[0].Box, before.States[0].Box);
    EXPECT_EQ(after.States[1].Box, before.States[1].Box);
    EXPECT_EQ(after.States[4].Box.X - before.States[4].Box.X, shift);
    EXPECT_EQ(after.States[4].Box.Y, before.States[4].Box.Y);
}

TEST(DiagramWarmLayout, ColumnsDoNotShrink) {
    FsmDocument document = Ring(5);
    document.State(3).Name = "A name that is a good deal longer";
    const Layout before = Cold(document);
    document.State(3).Name = "Short";
    EXPECT_EQ(Warm(document, before).States[4].Box, before.States[4].Box);
}

TEST(DiagramWarmLayout, StatesAreKnownByNameWhenTheirNumbersMove) {
    FsmDocument document = Ring(6);
    const Layout before = Cold(document);
    FsmDocument moved = Ring(6);
    for (int state = 6; state >= 3; --state) {
        moved.State(state + 1) = moved.State(state);
        moved.State(state + 1).Targets[6] = state == 6 ? 1 : state + 2;
    }
    moved.State(2).Targets[6] = 4;
    moved.State(3) = moved.StateTemplate();
    moved.State(3).Name = "New";
    const Layout after = Warm(moved, before);
    EXPECT_EQ(after.States[6].Number, 7);
    EXPECT_EQ(after.States[6].Box.X, before.States[5].Box.X);
    EXPECT_EQ(after.States[6].Box.Width, before.States[5].Box.Width);
}

TEST(DiagramWarmLayout, ALineWithinOneColumnTurnsBack) {
    FsmDocument document = Ring(1);
    document.State(1).Targets[6] = 2;
    document.State(1).Targets[7] = 3;
    document.State(2).Name = "Two";
    document.State(3).Name = "Three";
    const Layout before = Cold(document);
    document.State(2).Targets[8] = 3;
    const Layout after = Warm(document, before);
    ASSERT_EQ(after.Edges.size(), 3u);
    const Path& line = after.Edges[2].Line;
    const Rect& box = after.States[1].Box;
    EXPECT_EQ(line.Begin.X, box.Right());
    EXPECT_EQ(line.Pieces.back().End.X, after.States[2].Box.Right());
    EXPECT_EQ(CentreX(after.States[1].Box), CentreX(after.States[2].Box));
}

TEST(DiagramWarmLayout, TidyIsOfferedForThreeCrossingsAndAThird) {
    Layout shown;
    Layout cold;
    const auto saved = [&](int before, int after) {
        shown.Crossings = before;
        cold.Crossings = after;
        return CrossingsSaved(shown, cold);
    };
    EXPECT_EQ(saved(9, 6), 3);
    EXPECT_EQ(saved(3, 0), 3);
    EXPECT_EQ(saved(2, 0), 0);
    EXPECT_EQ(saved(10, 7), 0);
    EXPECT_EQ(saved(5, 9), 0);
}

} // namespace
} // namespace orvane::diagram
