// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/SeenPaints.h"
#include "support/ui/TableFixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

namespace orvane {
namespace {

class CellEditing : public TableFixture {
  protected:
    // What the desktop makes of the second of two quick presses, wherever it is; Qt's own test function sends
    // both to one place.
    void SendDoubleClick(int row, int column) {
        const QPointF middle = CellRect(row, column).center();
        QMouseEvent press(QEvent::MouseButtonDblClick, middle, Grid()->viewport()->mapToGlobal(middle),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Grid()->viewport(), &press);
    }
};

TEST_F(CellEditing, APressOpensTheEditorExactlyOverTheCellWithItsTargetSelected) {
    StartOn(PumpDocument());
    Click(6, 1);
    ASSERT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Editor()->geometry(), CellRect(6, 1));
    EXPECT_EQ(EditorText(), "2");
    EXPECT_EQ(Editor()->selectedText().toStdString(), "2");
    EXPECT_TRUE(Editor()->hasFocus());
    EXPECT_EQ(Editor()->toolTip().toStdString(), "Enter only the column number of the target state.");
}

TEST_F(CellEditing, ACellWithoutTransitionOpensEmpty) {
    StartOn(PumpDocument());
    Click(6, 2);
    ASSERT_TRUE(Editor()->isVisible());
    EXPECT_EQ(EditorText(), "");
}

TEST_F(CellEditing, EnterStoresTheTargetAndMarksTheDocument) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_TRUE(Title().starts_with('*'));
    EXPECT_TRUE(Item("mnuUndo")->isEnabled());
    EXPECT_EQ(SavedDocument().State(1).Targets[7], 2);
}

// They cost as much to paint as the edit itself.
TEST_F(CellEditing, ATypedTargetLeavesTheScrollBarsAlone) {
    StartOn(PumpDocument());
    Click(7, 1);
    SeenPaints paints;
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_GT(paints.Times(*Grid()->viewport()), 0);
    EXPECT_EQ(paints.Times(*Grid()->horizontalScrollBar()), 0);
    EXPECT_EQ(paints.Times(*Grid()->verticalScrollBar()), 0);
}

TEST_F(CellEditing, ATypedTargetPaintsItsColumnWithTheHead) {
    StartOn(PumpDocument());
    Click(7, 5);
    SeenPaints paints;
    TypeTarget(7, 5, QStringLiteral("2"));
    const QRegion painted = paints.Part(*Grid()->viewport());
    for (const int row : {0, 6, 7, 9})
        EXPECT_TRUE(painted.contains(CellRect(row, 5).center())) << "row " << row;
    for (const int column : {0, 3, 7})
        EXPECT_FALSE(painted.intersects(CellRect(0, column))) << "column " << column;
}

TEST_F(CellEditing, AnyStateCanBeATargetWhetherItHasANameOrNot) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("100"));
    EXPECT_EQ(Text(7, 1), "100:");
}

TEST_F(CellEditing, ANumberBeyondTheLastStateIsRefusedAndTheOldTargetStays) {
    StartOn(PumpDocument());
    Answers.Press(QMessageBox::Ok);
    TypeTarget(6, 1, QStringLiteral("101"));
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Text, "The transition cell must point to a \r\n valid state column.");
    EXPECT_EQ(Answers.Seen()[0].Title, "Orvane");
    EXPECT_EQ(Answers.Seen()[0].Buttons, QMessageBox::Ok);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(CellEditing, ANumberTooLongForAnyFieldIsRefusedToo) {
    StartOn(PumpDocument());
    Answers.Press(QMessageBox::Ok);
    TypeTarget(6, 1, QStringLiteral("99999999999999999999999"));
    EXPECT_EQ(Text(6, 1), "2:Run");
}

TEST_F(CellEditing, ZeroRemovesTargetAndAction) {
    StartOn(PumpDocument());
    TypeTarget(7, 2, QStringLiteral("0"));
    EXPECT_EQ(Text(7, 2), "");
    const FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(2).Targets[7], 0);
    EXPECT_EQ(saved.State(2).Actions[7], "");
}

TEST_F(CellEditing, DeleteRemovesTargetAndActionAtOnce) {
    StartOn(PumpDocument());
    Click(7, 2);
    QTest::keyClick(Editor(), Qt::Key_Delete);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 2), "");
}

TEST_F(CellEditing, EscapeLeavesTheCellAsItWas) {
    StartOn(PumpDocument());
    Click(6, 1);
    QTest::keyClicks(Editor(), QStringLiteral("55"));
    QTest::keyClick(Editor(), Qt::Key_Escape);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_TRUE(Grid()->hasFocus());
}

TEST_F(CellEditing, OnlyDigitsAreTyped) {
    StartOn(PumpDocument());
    Click(6, 2);
    QTest::keyClicks(Editor(), QStringLiteral("a-+1 .x2"));
    QTest::keyClick(Editor(), Qt::Key_Backspace);
    QTest::keyClick(Editor(), Qt::Key_Left);
    QTest::keyClick(Editor(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(EditorText(), "12");
}

TEST_F(CellEditing, NothingButKeysFillsTheEditor) {
    StartOn(PumpDocument());
    Click(6, 2);
    EXPECT_FALSE(Editor()->acceptDrops());
    EXPECT_EQ(Editor()->contextMenuPolicy(), Qt::NoContextMenu); // it would offer to paste
}

TEST_F(CellEditing, TabDoesNotLeaveTheEditor) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClick(Editor(), Qt::Key_Tab);
    EXPECT_TRUE(Editor()->hasFocus());
    QTest::keyClick(Editor(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(Editor()->hasFocus());
    EXPECT_EQ(EditorText(), "");
}

TEST_F(CellEditing, AnEventWithoutNameTakesNoTransition) {
    StartOn(PumpDocument());
    Click(8, 1);
    EXPECT_FALSE(Editor()->isVisible());
}

TEST_F(CellEditing, OpeningAnotherCellStoresTheFirst) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    Click(6, 2);
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Editor()->geometry(), CellRect(6, 2));
}

TEST_F(CellEditing, EnterInTheTableOpensTheCellOfTheLastPress) {
    StartOn(PumpDocument());
    Click(6, 2, Qt::RightButton);
    PoppedUp();
    Grid()->setCurrentIndex(Grid()->model()->index(20, 20));
    QTest::keyClick(Grid(), Qt::Key_Return);
    ASSERT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Editor()->geometry(), CellRect(6, 2));
}

TEST_F(CellEditing, EnterOpensNoCellOfARowThatIsHidden) {
    StartOn(PumpDocument());
    Trigger("mnuShowElse");
    Click(kElseRow, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuShowElse");
    ASSERT_TRUE(CellRect(kElseRow, 1).isEmpty());
    QTest::keyClick(Grid(), Qt::Key_Return);
    EXPECT_FALSE(Editor()->isVisible());
}

TEST_F(CellEditing, ADoubleClickOpensTheEditorOnce) {
    StartOn(PumpDocument());
    const QPoint middle = CellRect(6, 1).center();
    QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, middle);
    QTest::keyClicks(Editor(), QStringLiteral("1"));
    QTest::mouseDClick(Grid()->viewport(), Qt::LeftButton, {}, middle);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(EditorText(), "1");
}

TEST_F(CellEditing, ADoubleClickWhoseSecondPressIsOnAnotherCellPressesThatCellToo) {
    StartOn(PumpDocument());
    Click(6, 1);
    SendDoubleClick(7, 2);
    EXPECT_EQ(Grid()->currentIndex(), Grid()->model()->index(7, 2));
    ASSERT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Editor()->geometry(), CellRect(7, 2));
    EXPECT_EQ(EditorText(), "1");
}

TEST_F(CellEditing, ASecondPressThatComesLateIsAPressOfItsOwn) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    SendDoubleClick(7, 1);
    QApplication::setDoubleClickInterval(interval);
    EXPECT_EQ(Text(7, 1), "2:Run"); // stored, as by any press on a cell
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(CellEditing, ADoubleClickThatNoPressCameBeforeCountsAsOne) {
    StartOn(PumpDocument());
    QTest::mouseDClick(Grid()->viewport(), Qt::LeftButton, {}, CellRect(6, 1).center());
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(CellEditing, APressInColumnZeroOrOnAHeadAbandonsTheEdit) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    Click(1, 0);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 1), "");
}

TEST_F(CellEditing, ALeftPressWithAModifierDoesNothing) {
    StartOn(PumpDocument());
    for (const Qt::KeyboardModifier modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        Click(6, 1, Qt::LeftButton, modifier);
    EXPECT_FALSE(Editor()->isVisible());
}

TEST_F(CellEditing, TheEditorFollowsItsCellWhenTheTableScrolls) {
    StartOn(PumpDocument());
    Window().resize(500, 300);
    Click(7, 2);
    CellRect(54, 100);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_FALSE(Grid()->viewport()->rect().contains(Editor()->geometry().center()));
    const QRect cell = CellRect(7, 2);
    EXPECT_EQ(Editor()->geometry(), cell);
}

TEST_F(CellEditing, SavingStoresWhatIsBeingTyped) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("1"));
    EXPECT_EQ(SavedDocument().State(1).Targets[7], 1);
}

TEST_F(CellEditing, SavingLeavesTheActionOfACellThatWasOnlyOpened) {
    FsmDocument document = PumpDocument();
    document.State(1).Actions[7] = ";left over";
    StartOn(document);
    Click(7, 1);
    EXPECT_EQ(SavedDocument().State(1).Actions[7], ";left over");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(CellEditing, AnElseTransitionShowsItsRow) {
    FsmDocument document = PumpDocument();
    document.State(1).Targets[kElseRow] = 2;
    StartOn(document);
    EXPECT_TRUE(Item("mnuShowElse")->isChecked());
    EXPECT_FALSE(CellRect(kElseRow, 1).isEmpty());
    EXPECT_EQ(Text(kElseRow, 1), "2:Run");
}

} // namespace
} // namespace orvane
