// SPDX-License-Identifier: GPL-3.0-or-later
// What the table shows without being asked: marks, widths, hints that are true, and what a dialog edits.
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QAbstractItemModel>
#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPixmap>
#include <QScrollBar>
#include <QTimer>

namespace orvane {
namespace {

class SeenTest : public TableFixture {
  protected:
    QImage Picture(int row, int column) {
        const QRect area = CellRect(row, column);
        QApplication::processEvents();
        return Grid()->viewport()->grab(area).toImage();
    }
    // The hint that is shown, empty while none is.
    std::string Hint() {
        auto* tip = Find<QWidget>("frmMyToolTip");
        return tip->isVisible() ? Find<QLabel>("lblHint")->text().toStdString() : std::string();
    }
    // As after the delay.
    void LetHintCome() {
        auto* delay = Find<QTimer>("Timer1");
        while (delay->isActive())
            QMetaObject::invokeMethod(delay, "timeout");
    }
    void DoubleClickBorder(int column) {
        const QRect head = CellRect(0, column);
        const QPoint border(head.right(), head.center().y());
        QTest::mouseDClick(Grid()->viewport(), Qt::LeftButton, {}, border);
    }
};

TEST_F(SeenTest, AnActionHasAMarkThatANarrowColumnDoesNotSwallow) {
    FsmDocument document = PumpDocument();
    document.State(1).Targets[7] = 1;
    for (const int state : {1, 2})
        document.State(state).ColWidth = 300; // 20 pixels: no text is left
    StartOn(document);
    Grid()->setCurrentIndex(Grid()->model()->index(9, 9));
    EXPECT_EQ(Text(7, 1), Text(7, 2));
    EXPECT_NE(Picture(7, 1), Picture(7, 2)); // only the second has an action
    EXPECT_EQ(Picture(6, 1), Picture(7, 1));
}

TEST_F(SeenTest, ADoubleClickOnABorderFitsItsColumn) {
    FsmDocument document = PumpDocument();
    document.State(2).Name = "A name that no column of the usual width has room for";
    StartOn(document);
    EXPECT_TRUE(Text(0, 2).ends_with(".."));
    DoubleClickBorder(2);
    EXPECT_EQ(Text(0, 2), "2:" + document.State(2).Name);
    EXPECT_TRUE(Text(6, 1).ends_with("..")); // no other column is touched
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_EQ(SavedDocument().State(2).ColWidth, Grid()->columnWidth(2) * 15);
}

TEST_F(SeenTest, AllColumnsAreFitted) {
    FsmDocument document = PumpDocument();
    document.State(2).Name = "A name that no column of the usual width has room for";
    document.Event(6).Name = "An event whose name takes more room than there is";
    StartOn(document);
    const int empty = Grid()->columnWidth(50);
    Trigger("mnuFitColumns");
    EXPECT_EQ(Text(6, 1), "2:" + document.State(2).Name);
    EXPECT_GT(Grid()->columnWidth(0),
              Grid()->fontMetrics().horizontalAdvance(QString::fromStdString(document.Event(6).Name)));
    EXPECT_EQ(Grid()->columnWidth(50), empty);
}

TEST_F(SeenTest, AHintFollowsAnEditAtOnce) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    LetHintCome();
    EXPECT_TRUE(Hint().starts_with("Go to state 2:Run"));
    Window().Place().Open.Edit({"test", {Touched::Extent::Column, 1}},
                               [](Editable open) { open.Document.State(1).Targets[6] = 1; });
    EXPECT_TRUE(Hint().starts_with("Go to state 1:Idle"));
    Window().Place().Open.Edit({"test", {Touched::Extent::Column, 1}},
                               [](Editable open) { open.Document.State(1).Targets[6] = kNoState; });
    EXPECT_EQ(Hint(), "");
}

TEST_F(SeenTest, NoHintComesWhileACellIsEdited) {
    StartOn(PumpDocument());
    MoveTo(6, 1);
    LetHintCome();
    Click(6, 1);
    EXPECT_EQ(Hint(), "");
    MoveTo(7, 2);
    LetHintCome();
    EXPECT_EQ(Hint(), "");
    QTest::keyClick(Editor(), Qt::Key_Escape);
    MoveTo(6, 1);
    LetHintCome();
    EXPECT_NE(Hint(), "");
}

TEST_F(SeenTest, TheListOfTargetsShowsLongNamesWholeAndStaysWithinTheTable) {
    for (const std::size_t length : {std::size_t(45), std::size_t(400)}) {
        FsmDocument document = PumpDocument();
        document.State(2).Name = std::string(length, 'n');
        StartOn(document);
        Grid()->setCurrentIndex(Grid()->model()->index(6, 2));
        Trigger("mnuChooseTarget");
        const auto& list = *Find<QListWidget>("lstTargets");
        const int needed = list.fontMetrics().horizontalAdvance(list.item(1)->text());
        EXPECT_EQ(list.viewport()->width() >= needed, length == 45) << length;
        EXPECT_FALSE(list.horizontalScrollBar()->isVisible()); // it would lie over the last name
        EXPECT_TRUE(Grid()->viewport()->rect().contains(Find<QWidget>("frmChooseTarget")->geometry()));
    }
}

TEST_F(SeenTest, TheListOfTargetsShowsTenLinesWhole) {
    FsmDocument document = PumpDocument();
    for (const StateNumber state : StateRange(3, 20))
        document.State(state).Name = "Wait";
    StartOn(document);
    Grid()->setCurrentIndex(Grid()->model()->index(6, 2));
    Trigger("mnuChooseTarget");
    const auto& list = *Find<QListWidget>("lstTargets");
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(9))));
}

TEST_F(SeenTest, AWindowGetsNoWiderByALongName) {
    FsmDocument document = PumpDocument();
    document.State(2).Name = std::string(400, 'n');
    StartOn(document);
    InNextDialog(Answers, [](QWidget& dialog) {
        const int before = dialog.width();
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("2"));
        QApplication::processEvents();
        EXPECT_EQ(dialog.width(), before);
        Press(dialog, "cmdCancel");
    });
    Trigger("mnuGoTo");
}

TEST_F(SeenTest, EveryDialogSaysWhatItEdits) {
    StartOn(PumpDocument());
    for (const auto& [row, column, edited] : {std::tuple(0, 2, "State 2:Run"),
                                              {6, 0, "Event row 6: Start"},
                                              {0, 0, "The machine: its name and general code"}}) {
        InNextDialog(Answers, [edited = edited](QWidget& dialog) {
            EXPECT_EQ(Named<QLabel>(dialog, "lblEdited").text().toStdString(), edited);
            EXPECT_TRUE(Named<QLabel>(dialog, "lblEdited").isVisible());
            Press(dialog, "cmdCancel");
        });
        Click(row, column);
    }
    Click(7, 2, Qt::RightButton);
    PoppedUp();
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Named<QLabel>(dialog, "lblEdited").text().toStdString(), "2:Run, on Stop");
        Press(dialog, "cmdCancel");
    });
    Trigger("mnuEditTransAct");
}

TEST_F(SeenTest, ADialogOpensWhereItWasClosed) {
    StartOn(PumpDocument());
    QPoint left;
    InNextDialog(Answers, [&left](QWidget& dialog) {
        dialog.move(dialog.pos() + QPoint(37, 21));
        left = dialog.pos();
        Press(dialog, "cmdCancel");
    });
    Click(0, 2);
    for (int time = 0; time < 3; ++time) {
        InNextDialog(Answers, [&left](QWidget& dialog) {
            EXPECT_EQ(dialog.pos(), left);
            Press(dialog, "cmdCancel");
        });
        Click(0, 1);
    }
}

TEST_F(SeenTest, AScreenReaderGetsANameForEveryCell) {
    StartOn(PumpDocument());
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(Grid());
    ASSERT_NE(table, nullptr);
    ASSERT_NE(table->tableInterface(), nullptr);
    for (const auto& [row, column, name] : {std::tuple(0, 2, "State 2: Run"),
                                            {7, 2, "Stop in Run: 1:Idle, with action"},
                                            {7, 0, "Event Stop"},
                                            {9, 4, "event row 9 in state 4: empty"}}) {
        QAccessibleInterface* cell = table->tableInterface()->cellAt(row, column);
        ASSERT_NE(cell, nullptr);
        EXPECT_EQ(cell->text(QAccessible::Name).toStdString(), name);
    }
    EXPECT_EQ(Grid()->model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString().toStdString(),
              "State 2: Run");
    EXPECT_EQ(Grid()->model()->headerData(7, Qt::Vertical, Qt::DisplayRole).toString().toStdString(),
              "Event Stop");
}

} // namespace
} // namespace orvane
