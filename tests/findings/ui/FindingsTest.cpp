// SPDX-License-Identifier: GPL-3.0-or-later
// The list of findings, the count in the status bar and the marks in the table, in the real main window.
#include "findings/ui/dckFindings.h"

#include "support/FileBytes.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/GridPainter.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr int kErrorMark = 4;
constexpr int kAdviceMark = 1;

class FindingsTest : public TableFixture {
  protected:
    std::string Counts() { return Find<QLabel>("lblFindings")->text().toStdString(); }
    QTableView& List() { return Named<QTableView>(Window(), "lstFindings"); }
    QDockWidget* Pane() { return Find<QDockWidget>("dckFindings"); }

    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (int row = 0; row < List().model()->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < List().model()->columnCount(); ++column)
                texts += List().model()->index(row, column).data().toString();
            rows.push_back(texts.join(QLatin1Char('|')).toStdString());
        }
        return rows;
    }
    int Mark(int row, int column) { return Grid()->model()->index(row, column).data(kFindingRole).toInt(); }
    Cell Current() { return {Grid()->currentIndex().row(), Grid()->currentIndex().column()}; }
    void ClickCounts() { QTest::mouseClick(Find<QLabel>("lblFindings"), Qt::LeftButton); }
};

// An error, and a name that stands twice.
FsmDocument FaultyPump() {
    FsmDocument document = PumpDocument();
    document.State(2).Targets[kTimeoutRow] = 1;
    document.State(2).TimingMode = 1;
    document.Event(9).Name = "Start";
    return document;
}

// Sound until the event in row 8, which has no test code, leads somewhere.
FsmDocument PumpWithoutThirdTest() {
    FsmDocument document = PumpDocument();
    document.Event(8).Name = "Third";
    return document;
}

TEST_F(FindingsTest, TheStatusBarCountsThemAndAClickListsThem) {
    StartOn(FaultyPump());
    EXPECT_EQ(Counts(), "1 error, 1 advice");
    EXPECT_EQ(Pane(), nullptr); // nothing is made before it is asked for
    ClickCounts();
    ASSERT_NE(Pane(), nullptr);
    EXPECT_TRUE(Pane()->isVisible());
    EXPECT_TRUE(Item("mnuViewFindings")->isChecked());
    EXPECT_THAT(Rows(),
                ElementsAre(StartsWith("error|2:Run"),
                            "advice|Event Start|The events in rows 6 and 9 have the same name, Start"));
    ClickCounts(); // opens, and never closes
    EXPECT_TRUE(Pane()->isVisible());
}

TEST_F(FindingsTest, ASoundDesignHasNone) {
    StartOn(PumpDocument());
    EXPECT_EQ(Counts(), "No findings");
    EXPECT_FALSE(Item("mnuNextFinding")->isEnabled());
    EXPECT_EQ(Mark(6, 0), 0);
}

TEST_F(FindingsTest, EveryEditBringsListCountAndMarksUpToDate) {
    StartOn(PumpWithoutThirdTest());
    Trigger("mnuViewFindings");
    EXPECT_THAT(Rows(), IsEmpty());
    TypeTarget(8, 1, QStringLiteral("2")); // an event without test code
    EXPECT_EQ(Counts(), "1 error");
    EXPECT_THAT(Rows(), ElementsAre(HasSubstr("error|1:Idle, on Third|")));
    EXPECT_EQ(Mark(8, 1), kErrorMark);
    Trigger("mnuUndo");
    EXPECT_EQ(Counts(), "No findings");
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(Mark(8, 1), 0);
    Trigger("mnuRedo");
    EXPECT_EQ(Counts(), "1 error");
}

// A list that has not been told of another number of rows shows none of the new ones, whatever its model
// says.
TEST_F(FindingsTest, TheListShowsARowForEachAsSoonAsThereIsOne) {
    StartOn(PumpWithoutThirdTest());
    Trigger("mnuViewFindings");
    EXPECT_EQ(List().verticalHeader()->count(), 0);
    TypeTarget(8, 1, QStringLiteral("2"));
    EXPECT_EQ(List().verticalHeader()->count(), 1);
    EXPECT_FALSE(List().visualRect(List().model()->index(0, 2)).isEmpty());
    Trigger("mnuUndo");
    EXPECT_EQ(List().verticalHeader()->count(), 0);
}

TEST_F(FindingsTest, OnlyTheCellsWhoseMarkIsAnotherAreDrawnAgain) {
    StartOn(PumpWithoutThirdTest());
    std::vector<Cell> drawn;
    const auto collect = [&drawn](const QModelIndex& first, const QModelIndex& last,
                                  const QList<int>& roles) {
        if (!roles.contains(kFindingRole))
            return;
        EXPECT_EQ(first, last);
        drawn.push_back({first.row(), first.column()});
    };
    QObject::connect(Grid()->model(), &QAbstractItemModel::dataChanged, Grid(), collect);
    TypeTarget(8, 1, QStringLiteral("2"));
    EXPECT_THAT(drawn, ElementsAre(Cell{8, 1}));
    TypeTarget(8, 1, QStringLiteral("1")); // the same finding
    Trigger("mnuUndo");
    Trigger("mnuUndo");
    EXPECT_THAT(drawn, ElementsAre(Cell{8, 1}, Cell{8, 1}));
}

TEST_F(FindingsTest, HiddenItIsUpToDateWhenItIsShownAgain) {
    StartOn(PumpWithoutThirdTest());
    Trigger("mnuViewFindings");
    Trigger("mnuViewFindings");
    EXPECT_FALSE(Pane()->isVisible());
    TypeTarget(8, 1, QStringLiteral("2"));
    Trigger("mnuViewFindings");
    EXPECT_THAT(Rows(), ElementsAre(HasSubstr("error|")));
}

TEST_F(FindingsTest, EnterAndDoubleClickGoToTheCell) {
    StartOn(FaultyPump());
    Trigger("mnuViewFindings");
    List().setCurrentIndex(List().model()->index(1, 0));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Current(), (Cell{9, 0}));
    const QRect first = List().visualRect(List().model()->index(0, 2));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, first.center()); // its first half
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, first.center());
    EXPECT_EQ(Current().State, StateNumber(2));
}

TEST_F(FindingsTest, F8GoesThroughThemAndRoundWithThePaneHidden) {
    StartOn(FaultyPump());
    Trigger("mnuNextFinding");
    EXPECT_EQ(Current().State, StateNumber(2));
    EXPECT_THAT(Panel("Panel3"), StartsWith("error: "));
    Trigger("mnuNextFinding");
    EXPECT_EQ(Current(), (Cell{9, 0}));
    Trigger("mnuNextFinding");
    EXPECT_EQ(Current().State, StateNumber(2));
    Trigger("mnuPreviousFinding");
    EXPECT_EQ(Current(), (Cell{9, 0}));
    EXPECT_EQ(Item("mnuNextFinding")->shortcut(), QKeySequence(Qt::Key_F8));
}

TEST_F(FindingsTest, WhereOneWasMendedF8GoesToTheNext) {
    FsmDocument document = PumpWithoutThirdTest();
    document.Event(9).Name = "Fourth";
    document.State(1).Targets[8] = 2;
    document.State(1).Targets[9] = 2;
    StartOn(document);
    Trigger("mnuNextFinding");
    EXPECT_EQ(Current(), (Cell{8, 1}));
    TypeTarget(8, 1, QStringLiteral("0"));
    EXPECT_EQ(Counts(), "1 error");
    Trigger("mnuNextFinding");
    EXPECT_EQ(Current(), (Cell{9, 1}));
}

TEST_F(FindingsTest, TheTextIsTheTooltipOfTheMarkAndOfNothingElse) {
    StartOn(FaultyPump());
    EXPECT_EQ(Mark(9, 0), kAdviceMark);
    const QRect cell = CellRect(9, 0);
    const auto tipAt = [&](QPoint position) {
        QHelpEvent event(QEvent::ToolTip, position, Grid()->viewport()->mapToGlobal(position));
        QApplication::sendEvent(Grid()->viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
    };
    EXPECT_THAT(tipAt(FindingMark(cell, kAdviceMark).topLeft() + QPoint(1, 1)),
                HasSubstr("The events in rows 6 and 9 have the same name"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return tipAt(cell.center()).empty(); }));
}

TEST_F(FindingsTest, WhatTheMachineCanDoIsLookedAtWhenAskedForAndAgainAfterAnEdit) {
    FsmDocument document = PumpDocument();
    document.State(3).Name = "Trap";
    document.State(2).Targets[6] = 3;
    StartOn(document);
    const std::string before = Counts();
    Trigger("mnuViewFindings");
    Named<QCheckBox>(Window(), "chkExplore").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Counts() != before; })) << Counts();
    EXPECT_THAT(Rows().back(), StartsWith("advice|State 3:Trap|"));
    TypeTarget(7, 3, QStringLiteral("1"));
    EXPECT_EQ(Counts(), "No findings"); // at once: what was found is not true any more
    Trigger("mnuUndo");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Counts() != before; })) << Counts();
    Named<QCheckBox>(Window(), "chkExplore").click();
    EXPECT_EQ(Counts(), before);
}

TEST_F(FindingsTest, EscapeClosesThePane) {
    StartOn(FaultyPump());
    Trigger("mnuViewFindings");
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_FALSE(Pane()->isVisible());
    EXPECT_FALSE(Item("mnuViewFindings")->isChecked());
}

// A name of two lines in a document from elsewhere.
TEST_F(FindingsTest, AFindingStandsOnOneLine) {
    FsmDocument document = FaultyPump();
    document.State(2).Name = "Run\r\non";
    StartOn(document);
    Trigger("mnuViewFindings");
    for (const std::string& row : Rows())
        EXPECT_EQ(row.find('\n'), std::string::npos) << row;
}

} // namespace
} // namespace orvane
