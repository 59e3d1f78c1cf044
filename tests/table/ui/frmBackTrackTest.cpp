// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/frmBackTrack.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class frmBackTrackTest : public testing::Test {
  protected:
    frmBackTrackTest() {
        Document.Event(6).Name = "Start";
        Document.State(1).Name = "Idle";
        Document.State(2).Name = "Run";
        Document.State(1).Targets[6] = 2;
        Document.State(2).Targets[kTimeoutRow] = 2;
        Document.State(2).Targets[kElseRow] = 1;
    }

    QString Text(int row, int column) const { return Grid->item(row, column)->text(); }

    void Press(int row, int column) {
        const QRect cell = Grid->visualItemRect(Grid->item(row, column));
        QTest::mouseClick(Grid->viewport(), Qt::LeftButton, {}, cell.center());
    }

    FsmDocument Document;
    frmBackTrack Window;
    QTableWidget* Grid = Window.findChild<QTableWidget*>(QStringLiteral("MSFlexGrid1"));
};

TEST_F(frmBackTrackTest, TheWindowListsWhatLeadsIntoTheState) {
    Window.BackTrack(Document, 2);
    EXPECT_TRUE(Window.isVisible());
    EXPECT_FALSE(Window.isModal());
    EXPECT_EQ(Window.windowTitle(), QStringLiteral("Backtracks for state: 2:Run"));
    EXPECT_EQ(Grid->horizontalHeaderItem(0)->text(), QStringLiteral("Event"));
    EXPECT_EQ(Grid->horizontalHeaderItem(1)->text(), QStringLiteral("From state"));
    ASSERT_EQ(Grid->rowCount(), 2);
    EXPECT_EQ(Text(0, 0), QStringLiteral("TimeOut"));
    EXPECT_EQ(Text(0, 1), QStringLiteral("2:Run"));
    EXPECT_EQ(Text(1, 0), QStringLiteral("Start"));
    EXPECT_EQ(Text(1, 1), QStringLiteral("1:Idle"));
}

TEST_F(frmBackTrackTest, AStateThatNothingTargetsShowsOnlyTheHeads) {
    Window.BackTrack(Document, 2);
    Window.BackTrack(Document, 50);
    EXPECT_EQ(Grid->rowCount(), 0);
    EXPECT_EQ(Window.windowTitle(), QStringLiteral("Backtracks for state: 50:"));
    EXPECT_TRUE(Grid->horizontalHeader()->isVisible());
}

TEST_F(frmBackTrackTest, TheCellsHaveTheirColoursAndDarkText) {
    Window.BackTrack(Document, 2);
    EXPECT_EQ(Grid->item(0, 0)->background().color(), QColor(255, 255, 153));
    EXPECT_EQ(Grid->item(1, 0)->background().color(), QColor(255, 153, 204));
    for (const int row : {0, 1}) {
        EXPECT_EQ(Grid->item(row, 1)->background().color(), QColor(204, 255, 255));
        for (const int column : {0, 1})
            EXPECT_EQ(Grid->item(row, column)->foreground().color(), QColor(Qt::black));
    }
    Window.BackTrack(Document, 1);
    EXPECT_EQ(Grid->item(0, 0)->background().color(), QColor(255, 238, 204));
}

TEST_F(frmBackTrackTest, AClickOnTheStateAsksToGoBackThere) {
    QSignalSpy chosen(&Window, &frmBackTrack::StateChosen);
    Window.BackTrack(Document, 2);
    Press(1, 1);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].value<StateNumber>(), StateNumber(1));
}

TEST_F(frmBackTrackTest, TheMachineCanBeWalkedBackwards) {
    QObject::connect(&Window, &frmBackTrack::StateChosen, &Window,
                     [this](StateNumber state) { Window.BackTrack(Document, state); });
    Window.BackTrack(Document, 2);
    Press(1, 1);
    EXPECT_EQ(Window.windowTitle(), QStringLiteral("Backtracks for state: 1:Idle"));
    ASSERT_EQ(Grid->rowCount(), 1);
    Press(0, 1);
    EXPECT_EQ(Window.windowTitle(), QStringLiteral("Backtracks for state: 2:Run"));
}

TEST_F(frmBackTrackTest, AClickOnAnEventOrOnTheHeadsDoesNothing) {
    const QSignalSpy chosen(&Window, &frmBackTrack::StateChosen);
    Window.BackTrack(Document, 2);
    Press(0, 0);
    QHeaderView* heads = Grid->horizontalHeader();
    for (const int column : {0, 1})
        QTest::mouseClick(heads->viewport(), Qt::LeftButton, {},
                          {heads->sectionViewportPosition(column) + 20, heads->height() / 2});
    QTest::mouseClick(Grid->viewport(), Qt::LeftButton, {}, Grid->viewport()->rect().bottomRight());
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(frmBackTrackTest, AnOpenListFollowsTheDocument) {
    Window.BackTrack(Document, 2);
    Document.State(100).Targets[54] = 2;
    Document.State(2).Name = "Running";
    Window.RefreshBackTrack(Document);
    ASSERT_EQ(Grid->rowCount(), 3);
    EXPECT_EQ(Text(2, 1), QStringLiteral("100:"));
    EXPECT_EQ(Window.windowTitle(), QStringLiteral("Backtracks for state: 2:Running"));
}

TEST_F(frmBackTrackTest, AHiddenListStaysHidden) {
    Window.RefreshBackTrack(Document);
    EXPECT_FALSE(Window.isVisible());
    Window.BackTrack(Document, 2);
    Window.close();
    Document.State(100).Targets[54] = 2;
    Window.RefreshBackTrack(Document);
    EXPECT_FALSE(Window.isVisible());
    Window.BackTrack(Document, 2);
    EXPECT_EQ(Grid->rowCount(), 3);
}

TEST_F(frmBackTrackTest, ARefreshThatChangesNothingStaysWhereItIsScrolledTo) {
    for (const StateNumber state : StateNumbers())
        Document.State(state).Targets[6] = 2;
    Window.BackTrack(Document, 2);
    Grid->scrollToBottom();
    const QTableWidgetItem* first = Grid->item(0, 0);
    const QPoint place = Grid->visualItemRect(first).topLeft();
    ASSERT_LT(place.y(), 0);
    Window.RefreshBackTrack(Document);
    EXPECT_EQ(Grid->item(0, 0), first);
    EXPECT_EQ(Grid->visualItemRect(first).topLeft(), place);
}

TEST_F(frmBackTrackTest, ADarkDesktopHasDarkGroundsWithLightTextAtOnce) {
    Window.BackTrack(Document, 2);
    Window.setPalette(QPalette(QColor(40, 40, 40)));
    for (const int row : {0, 1}) {
        for (const int column : {0, 1}) {
            EXPECT_LT(Grid->item(row, column)->background().color().lightness(), 100) << row << column;
            EXPECT_GT(Grid->item(row, column)->foreground().color().lightness(), 200) << row << column;
        }
    }
    EXPECT_NE(Grid->item(0, 0)->background().color(), Grid->item(1, 0)->background().color());
    Window.BackTrack(Document, 1);
    EXPECT_LT(Grid->item(0, 0)->background().color().lightness(), 100);
    Window.setPalette({});
    EXPECT_EQ(Grid->item(0, 0)->background().color(), QColor(255, 238, 204));
}

TEST_F(frmBackTrackTest, TheColumnsKeepTheirShareOfTheWidth) {
    for (const StateNumber state : StateNumbers())
        Document.State(state).Targets[6] = 2; // a scroll bar takes some of the width
    for (const int width : {300, 700}) {
        Window.resize(width, 300);
        Window.BackTrack(Document, 2);
        const auto room = [this] { return Grid->viewport()->width(); };
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return Grid->columnWidth(0) + Grid->columnWidth(1) == room(); }, 3000))
            << width;
        EXPECT_EQ(Grid->columnWidth(0), room() * 45 / 100) << width;
    }
}

TEST_F(frmBackTrackTest, TextsAreShownInTheCodePageOfTheDocument) {
    Document.Event(6).Name = "\xD6l \x80";
    Window.BackTrack(Document, 2);
    EXPECT_EQ(Text(1, 0), QStringLiteral("\u00D6l \u20AC"));
}

} // namespace
} // namespace orvane
