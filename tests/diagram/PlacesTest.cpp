// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Places.h"

#include "diagram/LetterWidths.h"

#include <gtest/gtest.h>

namespace orvane::diagram {
namespace {

// 1 leads to 2 by four events, 2 to 3, and 3 back to 1 by its timeout; 2 is entered again by row 8.
struct Walked {
    Walked() {
        for (int state = 1; state <= 3; ++state)
            Document.State(state).Name = "S" + std::to_string(state);
        for (int row = 6; row <= 9; ++row) {
            Document.Event(row).Name = "Event" + std::to_string(row);
            Document.State(1).Targets[row] = 2;
        }
        Document.State(2).Targets[6] = 3;
        Document.State(2).Targets[8] = 2;
        Document.State(3).Targets[kTimeoutRow] = 1;
        Picture = MakeScene(Document, Sizes);
        Places = ColdLayout(Picture, Sizes, Direction::LeftToRight);
    }

    std::size_t Edge(int from, int to) const {
        for (std::size_t i = 0; i < Picture.Edges.size(); ++i) {
            if (Picture.Edges[i].From == StateNumber(from) && Picture.Edges[i].To == StateNumber(to))
                return i;
        }
        ADD_FAILURE() << from << " does not lead to " << to;
        return 0;
    }
    Hit Step(const Hit& from, Heading heading) const { return StepFrom(Picture, Places, from, heading); }

    FsmDocument Document;
    LetterWidths Sizes;
    Scene Picture;
    Layout Places;
};

Hit State(std::size_t index) { return {index, {}}; }
Hit Edge(std::size_t index) { return {{}, index}; }

TEST(DiagramPlaces, AStateIsTheHeadOfItsColumn) {
    const Walked walked;
    EXPECT_EQ(CellsOf(walked.Picture, State(1)), (std::vector<Cell>{{kHeadRow, 2}}));
    EXPECT_TRUE(CellsOf(walked.Picture, {}).empty());
}

TEST(DiagramPlaces, AnEdgeIsAllItsTransitionsInTheOrderOfTheTable) {
    const Walked walked;
    EXPECT_EQ(CellsOf(walked.Picture, Edge(walked.Edge(1, 2))),
              (std::vector<Cell>{{6, 1}, {7, 1}, {8, 1}, {9, 1}}));
}

TEST(DiagramPlaces, ATransitionIsShownByItsEdgeAndAllElseByTheState) {
    const Walked walked;
    EXPECT_EQ(ShownAt(walked.Picture, {7, 1}), Edge(walked.Edge(1, 2)));
    EXPECT_EQ(ShownAt(walked.Picture, {kTimeoutRow, 3}), Edge(walked.Edge(3, 1)));
    EXPECT_EQ(ShownAt(walked.Picture, {7, 2}), State(1)); // leads nowhere
    EXPECT_EQ(ShownAt(walked.Picture, {8, 2}), State(1)); // a loop, which is in the box
    EXPECT_EQ(ShownAt(walked.Picture, {1, 3}), State(2));
    EXPECT_EQ(ShownAt(walked.Picture, {7, kNoState}), Hit());
    EXPECT_EQ(ShownAt(walked.Picture, {7, 50}), Hit());
}

TEST(DiagramPlaces, ALineOfALabelIsItsOwnTransition) {
    const Walked walked;
    const Rect& label = walked.Places.Edges[walked.Edge(1, 2)].Label;
    const auto at = [&](int line) {
        return CellAtLabel(walked.Picture, walked.Places, walked.Sizes,
                           {label.X + 2, label.Y + line * walked.Sizes.LineHeight(TextRole::Line) + 3});
    };
    EXPECT_EQ(at(0), (Cell{6, 1}));
    EXPECT_EQ(at(1), (Cell{7, 1}));
    EXPECT_EQ(at(2), std::nullopt); // "+2 more"
    const Rect& box = walked.Places.States[0].Box;
    EXPECT_EQ(CellAtLabel(walked.Picture, walked.Places, walked.Sizes, {box.X + 1, box.Y + 1}), std::nullopt);
}

TEST(DiagramPlaces, StepsGoAlongEdgesToTheStateAtTheirEnd) {
    const Walked walked;
    EXPECT_EQ(walked.Step({}, Heading::Down), State(0));
    EXPECT_EQ(walked.Step(State(0), Heading::Right), Edge(walked.Edge(1, 2)));
    EXPECT_EQ(walked.Step(Edge(walked.Edge(1, 2)), Heading::Right), State(1));
    EXPECT_EQ(walked.Step(State(1), Heading::Left), Edge(walked.Edge(1, 2)));
    EXPECT_EQ(walked.Step(Edge(walked.Edge(1, 2)), Heading::Left), State(0));
}

TEST(DiagramPlaces, WhereNothingLiesAStepStays) {
    const Walked walked;
    EXPECT_EQ(walked.Step(State(0), Heading::Left), State(0));
    EXPECT_EQ(StepFrom(Scene(), Layout(), {}, Heading::Right), Hit());
}

} // namespace
} // namespace orvane::diagram
