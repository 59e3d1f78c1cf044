// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Layout.h"

#include "diagram/HitTest.h"
#include "diagram/Order.h"
#include "diagram/SceneOf.h"
#include "support/PictureFaults.h"

#include <gtest/gtest.h>

namespace orvane::diagram {
namespace {

FsmDocument Named(int states) {
    FsmDocument document;
    document.General.FsmName = "M";
    for (int state = 1; state <= states; ++state)
        document.State(state).Name = "State" + std::to_string(state);
    return document;
}

Layout Cold(const FsmDocument& document, Direction direction = Direction::LeftToRight) {
    return ColdLayout(SceneOf(document), LetterWidths(), direction);
}

int Middle(const Rect& box) { return box.Y + box.Height / 2; }

TEST(DiagramLayout, OfAnEmptyDocumentHasNothing) {
    const Layout layout = Cold(FsmDocument());
    EXPECT_TRUE(layout.States.empty());
    EXPECT_TRUE(layout.Edges.empty());
    EXPECT_EQ(layout.Bounds, Rect());
}

TEST(DiagramLayout, OfOneStateHasItsBoxAndTheStart) {
    const Layout layout = Cold(Named(1));
    ASSERT_EQ(layout.States.size(), 1u);
    ASSERT_TRUE(layout.Start);
    EXPECT_LT(layout.Start->Dot.Right(), layout.States[0].Box.X);
    EXPECT_EQ(test::FaultsOf(layout).All(), 0);
}

TEST(DiagramLayout, LeadsFromLeftToRightOrFromTheTopDown) {
    FsmDocument document = Named(3);
    document.State(1).Targets[6] = 2;
    document.State(2).Targets[6] = 3;
    const Layout across = Cold(document);
    EXPECT_LT(across.States[0].Box.Right(), across.States[1].Box.X);
    EXPECT_LT(across.States[1].Box.Right(), across.States[2].Box.X);
    EXPECT_EQ(Middle(across.States[0].Box), Middle(across.States[2].Box));
    const Layout down = Cold(document, Direction::TopDown);
    EXPECT_LT(down.States[0].Box.Bottom(), down.States[1].Box.Y);
    EXPECT_LT(down.States[1].Box.Bottom(), down.States[2].Box.Y);
    const LetterWidths sizes;
    EXPECT_EQ(FittingLayout(SceneOf(document), sizes, {0, 0, 900, 200}).Way, Direction::LeftToRight);
    EXPECT_EQ(FittingLayout(SceneOf(document), sizes, {0, 0, 200, 900}).Way, Direction::TopDown);
}

TEST(DiagramLayout, BeginsAtItsUpperLeftCorner) {
    FsmDocument document = Named(5);
    document.State(1).Targets[6] = 5;
    document.State(5).Targets[6] = 2;
    for (const Direction direction : {Direction::LeftToRight, Direction::TopDown}) {
        const Rect bounds = Cold(document, direction).Bounds;
        EXPECT_EQ(bounds.X, 0);
        EXPECT_EQ(bounds.Y, 0);
    }
}

TEST(DiagramLayout, ACompleteMachineOfFourStatesHasNoCrossings) {
    FsmDocument document = Named(4);
    for (int from = 1; from <= 4; ++from) {
        for (int to = 1; to <= 4; ++to)
            document.State(from).Targets[5 + to] = to;
    }
    EXPECT_EQ(Cold(document).Crossings, 0);
}

TEST(DiagramLayout, CountsTheCrossingsThatAreDrawn) {
    FsmDocument document = Named(8);
    for (int from = 1; from <= 8; ++from) {
        for (int to = 1; to <= 8; ++to)
            document.State(from).Targets[5 + to] = to;
    }
    const Layout layout = Cold(document);
    EXPECT_GT(layout.Crossings, 0);
    EXPECT_EQ(layout.Crossings, test::CrossingsDrawn(layout));
}

TEST(DiagramLayout, IsTheSameEveryTime) {
    FsmDocument document = Named(20);
    for (int from = 1; from <= 20; ++from) {
        for (int step = 1; step <= 3; ++step)
            document.State(from).Targets[5 + step] = (from * step * 7) % 20 + 1;
    }
    const Layout one = Cold(document);
    const Layout other = Cold(document);
    for (std::size_t i = 0; i < one.Edges.size(); ++i)
        EXPECT_EQ(one.Edges[i].Line, other.Edges[i].Line);
}

TEST(DiagramLayout, AFullTableIsDrawnWithoutAFault) {
    FsmDocument document = Named(25);
    for (int from = 1; from <= 25; ++from) {
        for (const RowNumber row : CellRows())
            document.State(from).Targets[row] = (from * 31 + row.Number() * row.Number() * 17) % 25 + 1;
    }
    for (const Direction direction : {Direction::LeftToRight, Direction::TopDown}) {
        const test::PictureFaults faults = test::FaultsOf(Cold(document, direction));
        EXPECT_EQ(faults.All(), 0) << test::Told(faults);
    }
}

TEST(DiagramLayout, StatesWithoutLinesMakeNoTower) {
    const Layout layout = Cold(Named(100));
    EXPECT_GT(layout.Bounds.Width, 800);
    EXPECT_LT(layout.Bounds.Height, 800);
    EXPECT_EQ(test::FaultsOf(layout).All(), 0);
}

TEST(DiagramHitTest, TellsBoxesLabelsAndLines) {
    FsmDocument document = Named(2);
    document.State(1).Targets[6] = 2;
    document.Event(6).Name = "Start";
    const Layout layout = Cold(document);
    const Rect box = layout.States[1].Box;
    EXPECT_EQ(HitAt(layout, {box.X, box.Y}), (Hit{1, {}}));
    EXPECT_EQ(HitAt(layout, {box.Right(), box.Y}), Hit());
    const Rect label = layout.Edges[0].Label;
    EXPECT_EQ(HitAt(layout, {label.X + 1, label.Y + 1}), (Hit{{}, 0}));
    const Point end = layout.Edges[0].Line.Pieces.back().End;
    EXPECT_EQ(HitAt(layout, {end.X - 3, end.Y + 5}), (Hit{{}, 0}));
    EXPECT_EQ(HitAt(layout, {end.X - 3, end.Y + 6}), Hit());
}

} // namespace
} // namespace orvane::diagram
