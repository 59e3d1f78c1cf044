// SPDX-License-Identifier: GPL-3.0-or-later
// The red head of the current state.
#include "support/ui/PopUpFixture.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

namespace orvane {
namespace {

const QColor kCurrentInk(255, 0, 0);
const QColor kPale(204, 255, 255);

class CurrentState : public PopUpFixture {
  protected:
    // The states whose heads are red, by the model and on the screen alike.
    std::vector<int> RedHeads() {
        std::vector<int> red;
        for (int column = 1; column <= 100; ++column)
            if (Colour(0, column) == kCurrentInk)
                red.push_back(column);
        return red;
    }

    // The ground of the head as it is painted.
    QColor Painted(int column) {
        const QPoint corner = CellRect(0, column).bottomLeft() + QPoint(3, -3);
        return Grid()->viewport()->grab().toImage().pixelColor(corner);
    }
};

TEST_F(CurrentState, OneHeadIsRedAtATime) {
    StartOn(PumpDocument());
    EXPECT_EQ(RedHeads(), std::vector<int>{});
    Choose(0, 2, "mnuCurrentState");
    EXPECT_EQ(RedHeads(), std::vector{2});
    Choose(0, 5, "mnuCurrentState");
    EXPECT_EQ(RedHeads(), std::vector{5});
    EXPECT_EQ(Painted(5), kCurrentInk);
    EXPECT_EQ(Painted(2), kPale);
}

TEST_F(CurrentState, ItIsNoChangeOfTheDocument) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuCurrentState");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_FALSE(Title().starts_with('*'));
    EXPECT_EQ(SavedDocument(), PumpDocument());
}

TEST_F(CurrentState, ItOutlivesScrollingAndResizing) {
    StartOn(PumpDocument());
    Choose(0, 60, "mnuCurrentState");
    Window().resize(420, 260);
    CellRect(54, 1);
    CellRect(6, 100);
    EXPECT_EQ(RedHeads(), std::vector{60});
    EXPECT_EQ(Painted(60), kCurrentInk);
    EXPECT_EQ(Painted(61), kPale);
}

TEST_F(CurrentState, ItOutlivesRedrawsUndoAndRedo) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuCurrentState");
    TypeTarget(7, 1, QStringLiteral("2"));
    Choose(6, 0, "mnuInsertEvent");
    Trigger("mnuShowElse");
    EXPECT_EQ(RedHeads(), std::vector{2});
    Trigger("mnuUndo");
    Trigger("mnuUndo");
    EXPECT_EQ(RedHeads(), std::vector{2});
    Trigger("mnuRedo");
    EXPECT_EQ(RedHeads(), std::vector{2});
    EXPECT_EQ(Painted(2), kCurrentInk);
}

TEST_F(CurrentState, ItIsANumberThatStaysWhenColumnsMove) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuCurrentState");
    Choose(0, 1, "mnuInsertState");
    EXPECT_EQ(RedHeads(), std::vector{2});
    EXPECT_EQ(Text(0, 2), "2:Idle");
    Choose(0, 1, "mnuDeleteState");
    EXPECT_EQ(RedHeads(), std::vector{2});
}

TEST_F(CurrentState, ItIsForgottenWhenAnotherDocumentIsOpened) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuCurrentState");
    Answers.ChooseFile(Path(QStringLiteral("machine.zfsm")));
    Trigger("mnuFOpen");
    EXPECT_EQ(RedHeads(), std::vector<int>{});
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier); // no state to step from
    EXPECT_EQ(RedHeads(), std::vector<int>{});
}

TEST_F(CurrentState, StepsFollowTheTableAsItIsNow) {
    StartOn(PumpDocument());
    Choose(0, 1, "mnuCurrentState");
    TypeTarget(6, 1, QStringLiteral("9"));
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(RedHeads(), std::vector{9});
    EXPECT_EQ(UndoSteps(), 1);
}

TEST_F(CurrentState, AStepToTheSameStateKeepsItAndPointsToIt) {
    FsmDocument document = PumpDocument();
    document.State(3).Targets[6] = 3;
    StartOn(document);
    Choose(0, 3, "mnuCurrentState");
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(RedHeads(), std::vector{3});
    EXPECT_EQ(Colour(6, 3), QColor(255, 255, 0));
    EXPECT_EQ(Find<QWidget>("picNextStateMarker")->pos(), CellRect(0, 3).topLeft());
}

TEST_F(CurrentState, TimeoutsAndElseStepToo) {
    FsmDocument document = PumpDocument();
    document.State(1).Targets[kElseRow] = 4;
    document.State(4).Targets[kTimeoutRow] = 7;
    StartOn(document);
    Trigger("mnuShowTimeTarget");
    Choose(0, 1, "mnuCurrentState");
    Click(kElseRow, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(RedHeads(), std::vector{4});
    Click(kTimeoutRow, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(RedHeads(), std::vector{7});
}

} // namespace
} // namespace orvane
