// SPDX-License-Identifier: GPL-3.0-or-later
// The picture beside the table under mouse, keys and screen readers.
#include "diagram/ui/DiagramFixture.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DiagramPointingTest : public DiagramFixture {};

TEST_F(DiagramPointingTest, AClickOnAStateChoosesItsColumnAndStaysInThePicture) {
    Open(ThreeStates());
    ClickAt(View()->StateRect(3).center());
    EXPECT_EQ(Current(), (Cell{kHeadRow, 3}));
    EXPECT_TRUE(View()->hasFocus());
    EXPECT_EQ(Focused(), "state 3:Stopped");
}

TEST_F(DiagramPointingTest, AClickOnALineChoosesItsCell) {
    Open(ThreeStates());
    ClickAt(OnLine(3, 1));
    EXPECT_EQ(Current(), (Cell{6, 3}));
    ClickAt(View()->EdgeRect(1, 2).center());
    EXPECT_EQ(Current(), (Cell{6, 1}));
}

TEST_F(DiagramPointingTest, AClickOnTheNameOfAnEventChoosesItsCell) {
    Open(ThreeStates());
    const QRect label = View()->EdgeRect(2, 3);
    ClickAt({label.left() + 4, label.top() + label.height() / 4});
    EXPECT_EQ(Current(), (Cell{8, 2}));
    ClickAt({label.left() + 4, label.bottom() - label.height() / 4});
    EXPECT_EQ(Current(), (Cell{9, 2}));
}

TEST_F(DiagramPointingTest, AListAsksWhichOfSeveralEventsOnALineIsMeant) {
    Open(ThreeStates());
    ClickAt(OnLine(2, 3));
    ASSERT_NE(List(), nullptr);
    EXPECT_THAT(Listed(), ElementsAre("Break", "Halt"));
    List()->actions().at(1)->trigger();
    EXPECT_EQ(Current(), (Cell{9, 2}));
    if (List() != nullptr)
        List()->close();
}

TEST_F(DiagramPointingTest, ADoubleClickOpensWhatTheTableOpens) {
    Open(ThreeStates());
    std::vector<std::string> opened;
    for (int i = 0; i < 2; ++i) {
        Answers.Do([&](QWidget& dialog) {
            opened.push_back(dialog.objectName().toStdString());
            dialog.close();
        });
    }
    QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, View()->StateRect(2).center());
    QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, View()->EdgeRect(3, 1).center());
    EXPECT_THAT(opened, ElementsAre("frmStateEdit", "frmTransitionAction"));
}

TEST_F(DiagramPointingTest, TheWheelWithCtrlZoomsAboutThePointer) {
    Open(Ring(12, 2));
    View()->Magnify(3, {});
    const QPoint at = View()->StateRect(5).center();
    const double before = View()->Zoom();
    const auto pointed = [&] {
        const diagram::Hit hit = View()->HitAtViewport(at);
        return hit.State ? View()->Picture().Shown().States[*hit.State].Number : kNoState;
    };
    for (int i = 0; i < 2; ++i)
        Wheel(at, 1, Qt::ControlModifier);
    EXPECT_GT(View()->Zoom(), before * 1.5);
    EXPECT_EQ(pointed(), StateNumber(5));
    for (int i = 0; i < 3; ++i)
        Wheel(at, -1, Qt::ControlModifier);
    EXPECT_LT(View()->Zoom(), before);
    EXPECT_EQ(pointed(), StateNumber(5));
    Press(Qt::Key_0, Qt::ControlModifier);
    const diagram::Rect& all = View()->Picture().Places().Bounds;
    EXPECT_LE(all.Width * View()->Zoom(), View()->width());
    EXPECT_LE(all.Height * View()->Zoom(), View()->height());
    EXPECT_LE(View()->Zoom(), 1);
}

TEST_F(DiagramPointingTest, CtrlAndZeroMeansTheTableWhereTheTableHasTheFocus) {
    Open(Ring(12, 2));
    for (int i = 0; i < 4; ++i)
        Wheel({50, 50}, 1, Qt::ControlModifier);
    const double zoom = View()->Zoom();
    Grid()->setFocus();
    QTest::keyClick(Grid(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(View()->Zoom(), zoom);
}

TEST_F(DiagramPointingTest, TheWheelAndTheMiddleButtonMoveThePicture) {
    Open(Ring(30, 2));
    for (int i = 0; i < 8; ++i)
        Wheel({50, 50}, 1, Qt::ControlModifier);
    QScrollBar& across = *View()->horizontalScrollBar();
    QScrollBar& down = *View()->verticalScrollBar();
    across.setValue((across.minimum() + across.maximum()) / 2);
    down.setValue((down.minimum() + down.maximum()) / 2);
    const QPoint before(across.value(), down.value());
    Wheel({50, 50}, -1, {});
    EXPECT_EQ(across.value(), before.x());
    EXPECT_GT(down.value(), before.y());
    Wheel({50, 50}, -1, Qt::ShiftModifier);
    EXPECT_GT(across.value(), before.x());
    const QPoint middle(across.value(), down.value());
    QWidget& viewport = *View()->viewport();
    QTest::mousePress(&viewport, Qt::MiddleButton, {}, {60, 60});
    QMouseEvent move(QEvent::MouseMove, QPointF(80, 50), viewport.mapToGlobal(QPointF(80, 50)), Qt::NoButton,
                     Qt::MiddleButton, {});
    QApplication::sendEvent(&viewport, &move);
    QTest::mouseRelease(&viewport, Qt::MiddleButton, {}, {80, 50});
    EXPECT_EQ(across.value(), middle.x() - 20);
    EXPECT_EQ(down.value(), middle.y() + 10);
}

TEST_F(DiagramPointingTest, TabGoesThroughTheStatesAndThenOn) {
    Open(ThreeStates());
    Find<QComboBox>("cboEvent")->setFocus();
    View()->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Focused(), "state 1:Idle, start");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "state 3:Stopped");
    Press(Qt::Key_Backtab);
    EXPECT_EQ(Focused(), "state 2:Run");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    EXPECT_FALSE(View()->hasFocus());
}

TEST_F(DiagramPointingTest, ArrowsGoAlongEdgesAndEnterJumpsToTheTable) {
    Open(ThreeStates());
    View()->setFocus(Qt::TabFocusReason);
    const bool isLevel = View()->Picture().Places().Way == diagram::Direction::LeftToRight;
    const auto onward = isLevel ? Qt::Key_Right : Qt::Key_Down;
    Press(onward);
    EXPECT_THAT(Focused(), HasSubstr("1:Idle"));
    EXPECT_TRUE(View()->Focused().Edge);
    Press(onward);
    EXPECT_TRUE(View()->Focused().State);
    EXPECT_NE(Focused(), "state 1:Idle, start");
    View()->Focus({{}, 0});
    EXPECT_EQ(Focused(), "1:Idle to 2:Run by Start");
    Press(Qt::Key_Return);
    EXPECT_EQ(Current(), (Cell{6, 1}));
    EXPECT_TRUE(Grid()->hasFocus());
}

TEST_F(DiagramPointingTest, WhoDoesNotSeeItIsToldEachStateAndEdge) {
    Open(ThreeStates());
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(View());
    ASSERT_NE(picture, nullptr);
    ASSERT_EQ(picture->childCount(), 7); // three states, four lines
    std::vector<std::string> names;
    for (int i = 0; i < picture->childCount(); ++i)
        names.push_back(picture->child(i)->text(QAccessible::Name).toStdString());
    EXPECT_THAT(names, ElementsAre("state 1:Idle, start", "state 2:Run", "state 3:Stopped",
                                   "1:Idle to 2:Run by Start", "2:Run to 1:Idle by Stop",
                                   "2:Run to 3:Stopped by Break, Halt", "3:Stopped to 1:Idle by Start"));
    QAccessibleInterface* stopped = picture->child(2);
    EXPECT_EQ(stopped->parent(), picture);
    EXPECT_EQ(picture->indexOfChild(stopped), 2);
    const QRect rect = View()->StateRect(3);
    EXPECT_EQ(stopped->rect().topLeft(), View()->viewport()->mapToGlobal(rect.topLeft()));
    EXPECT_EQ(picture->childAt(stopped->rect().center().x(), stopped->rect().center().y()), stopped);
    auto* actions =
        static_cast<QAccessibleActionInterface*>(stopped->interface_cast(QAccessible::ActionInterface));
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Current(), (Cell{kHeadRow, 3}));
    EXPECT_TRUE(stopped->state().focused);
    EXPECT_EQ(picture->focusChild(), stopped);
    TypeTarget(7, 3, QStringLiteral("2"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(View())->childCount(), 8);
}

} // namespace
} // namespace orvane
