// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/TableFixture.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

namespace orvane {
namespace {

class Hover : public TableFixture {
  protected:
    QWidget* Tooltip() { return Find<QWidget>("frmMyToolTip"); }
    // The hint that comes up, after its delay; empty when none does.
    std::string Hint() {
        const auto* delay = Tooltip()->findChild<QTimer*>(QStringLiteral("Timer1"));
        EXPECT_TRUE(QTest::qWaitFor([delay] { return !delay->isActive(); }, 3000));
        return Tooltip()->isVisible() ? Find<QLabel>("lblHint")->text().toStdString() : std::string();
    }
    void LeaveTheTable() {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(Grid()->viewport(), &leave);
    }
};

TEST_F(Hover, ATransitionSaysWhereItLeads) {
    FsmDocument document = PumpDocument();
    document.State(2).Tooltip = "The pump is running";
    StartOn(document);
    MoveTo(6, 1);
    EXPECT_EQ(Hint(), "Go to state 2:Run\r\nThe pump is running");
}

TEST_F(Hover, TheHintGoesWhenThePointerMovesOnOrLeaves) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    EXPECT_NE(Hint(), "");
    MoveTo(8, 1);
    EXPECT_FALSE(Tooltip()->isVisible());
    MoveTo(6, 1);
    EXPECT_NE(Hint(), "");
    LeaveTheTable();
    EXPECT_FALSE(Tooltip()->isVisible());
}

TEST_F(Hover, AHintStaysWhileThePointerMovesInItsCell) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    ASSERT_NE(Hint(), "");
    MoveTo(6, 1);
    EXPECT_TRUE(Tooltip()->isVisible());
}

TEST_F(Hover, APointerThatComesBackToTheCellItLeftGetsItsHint) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    LeaveTheTable();
    MoveTo(6, 1);
    EXPECT_NE(Hint(), "");
}

TEST_F(Hover, APointerBesideTheLastColumnHasNoHint) {
    FsmDocument document = PumpDocument();
    for (const StateNumber state : StateNumbers())
        document.State(state).ColWidth = state == 1 ? 945 : 15;
    StartOn(document);
    MoveTo(6, 1);
    ASSERT_NE(Hint(), "");
    const QPointF beside(Grid()->viewport()->width() - 5, CellRect(6, 1).center().y());
    ASSERT_FALSE(Grid()->indexAt(beside.toPoint()).isValid());
    QMouseEvent move(QEvent::MouseMove, beside, Grid()->viewport()->mapToGlobal(beside), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(Grid()->viewport(), &move);
    EXPECT_FALSE(Tooltip()->isVisible());
}

TEST_F(Hover, AMenuThatPopsUpTakesTheHintAway) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    ASSERT_NE(Hint(), "");
    Click(6, 1, Qt::RightButton);
    EXPECT_FALSE(Tooltip()->isVisible());
    EXPECT_EQ(PoppedUp(), "mnuTranCell");
}

TEST_F(Hover, AHintThatIsStillToComeDoesNotComeUpUnderAMenu) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    const auto* delay = Find<QTimer>("Timer1");
    ASSERT_TRUE(delay->isActive());
    Click(6, 1, Qt::RightButton);
    EXPECT_FALSE(delay->isActive());
    EXPECT_EQ(PoppedUp(), "mnuTranCell");
}

TEST_F(Hover, ANewDocumentTakesTheHintsOfTheOneBeforeAway) {
    StartOn(PumpDocument());
    QTest::keyPress(Grid(), Qt::Key_Shift);
    MoveTo(6, 1);
    ASSERT_NE(Hint(), "");
    const auto* marker = Find<QWidget>("picNextStateMarker");
    ASSERT_TRUE(marker->isVisible());
    Trigger("mnuFNew");
    EXPECT_FALSE(Tooltip()->isVisible());
    EXPECT_FALSE(marker->isVisible());
    EXPECT_FALSE(Find<QWidget>("txtRowheader")->isVisible());
    QTest::keyRelease(Grid(), Qt::Key_Shift);
}

TEST_F(Hover, TheHeadOfTheRowIsSetOff) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    const auto* head = Find<QLineEdit>("txtRowheader");
    ASSERT_TRUE(head->isVisible());
    EXPECT_EQ(head->text().toStdString(), "Start");
    const QRect cell = CellRect(6, 0);
    EXPECT_EQ(head->geometry(), cell.adjusted(2, 0, 1, 0));
    MoveTo(8, 1); // an event without a name
    EXPECT_FALSE(head->isVisible());
}

TEST_F(Hover, ScrollingTakesTheSetOffHeadAwayAndTheMarkerAlong) {
    StartOn(PumpDocument());
    Window().resize(500, 300);
    QTest::keyPress(Grid(), Qt::Key_Shift);
    MoveTo(6, 1);
    const auto* marker = Find<QWidget>("picNextStateMarker");
    ASSERT_EQ(marker->pos(), CellRect(0, 2).topLeft());
    ASSERT_TRUE(Find<QWidget>("txtRowheader")->isVisible());
    CellRect(6, 12);
    EXPECT_FALSE(Find<QWidget>("txtRowheader")->isVisible());
    EXPECT_EQ(marker->pos(), QPoint(Grid()->columnWidth(0), 0)); // its state is beyond this edge
    QTest::keyRelease(Grid(), Qt::Key_Shift);
}

TEST_F(Hover, AMouseMoveOverTheSetOffHeadHidesIt) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    auto* head = Find<QLineEdit>("txtRowheader");
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), head->mapToGlobal(QPointF(3, 3)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(head, &move);
    EXPECT_FALSE(head->isVisible());
}

TEST_F(Hover, TheSetOffHeadGivesTheFocusBack) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    Find<QLineEdit>("txtRowheader")->setFocus();
    QApplication::processEvents();
    EXPECT_TRUE(Grid()->hasFocus());
}

TEST_F(Hover, WithShiftHeldTheTargetIsMarked) {
    StartOn(PumpDocument());
    auto* marker = Find<QWidget>("picNextStateMarker");
    MoveTo(6, 1);
    EXPECT_FALSE(marker->isVisible());
    QTest::keyPress(Grid(), Qt::Key_Shift);
    MoveTo(7, 2);
    EXPECT_EQ(Colour(7, 2), QColor(255, 255, 0));
    EXPECT_TRUE(marker->isVisible());
    EXPECT_EQ(marker->pos(), CellRect(0, 1).topLeft());
    MoveTo(6, 2); // leads nowhere
    EXPECT_EQ(Colour(7, 2), QColor(255, 255, 255));
    EXPECT_FALSE(marker->isVisible());
    QTest::keyRelease(Grid(), Qt::Key_Shift);
}

TEST_F(Hover, WithShiftHeldHintsOfCodeStayAway) {
    StartOn(PumpDocument());
    MoveTo(1, 1);
    EXPECT_EQ(Hint(), ";idle entry");
    MoveTo(0, 5);
    QTest::keyPress(Grid(), Qt::Key_Shift);
    MoveTo(1, 1);
    EXPECT_EQ(Hint(), "");
    QTest::keyRelease(Grid(), Qt::Key_Shift);
}

TEST_F(Hover, AnEventWithoutCodeShowsItsComment) {
    FsmDocument document = PumpDocument();
    document.Event(8).Name = "Full";
    document.Event(8).Tooltip = "The tank is full";
    StartOn(document);
    EXPECT_EQ(Text(8, 0), "Full ");
    MoveTo(8, 0);
    EXPECT_EQ(Hint(), "The tank is full");
    MoveTo(6, 0);
    EXPECT_EQ(Hint(), ";start?");
}

TEST_F(Hover, AMarkerOfAStateOutOfSightStandsAtTheEdge) {
    FsmDocument document = PumpDocument();
    document.State(1).Targets[6] = 100;
    StartOn(document);
    QTest::keyPress(Grid(), Qt::Key_Shift);
    MoveTo(6, 1);
    const auto* marker = Find<QWidget>("picNextStateMarker");
    EXPECT_TRUE(Grid()->viewport()->rect().contains(marker->geometry()));
    QTest::keyRelease(Grid(), Qt::Key_Shift);
}

} // namespace
} // namespace orvane
