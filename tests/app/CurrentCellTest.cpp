// SPDX-License-Identifier: GPL-3.0-or-later
// Working in the table by keys: the current cell, several chosen ones, and the clipboard.
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMimeData>

namespace orvane {
namespace {

// States 1:Idle, 2:Run, 3:Opening and 5:Stop; events in rows 6, 7 and 9, row 8 without a name.
FsmDocument GateDocument() {
    FsmDocument document = PumpDocument();
    document.State(3).Name = "Opening";
    document.State(5).Name = "Stop";
    document.Event(9).Name = "Button";
    for (const StateNumber state : StateNumbers())
        document.State(state).ColWidth = 1800; // nothing is cut off
    document.View.RowVisible.TimeTarget = 300;
    document.View.ShowTimeTarget = true;
    return document;
}

class CurrentCellTest : public TableFixture {
  protected:
    void GoTo(int row, int column) { Grid()->setCurrentIndex(Grid()->model()->index(row, column)); }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = Window().focusWidget();
        QTest::keyClick(focus != nullptr ? focus : Grid(), Qt::Key(key), modifiers);
    }
    // Each letter goes where the one before has led.
    void Type(const char* text) {
        for (const QChar letter : QString::fromLatin1(text))
            QTest::keyClicks(Window().focusWidget(), letter);
    }
    std::string Current() {
        const QModelIndex cell = Grid()->currentIndex();
        return std::to_string(cell.row()) + "," + std::to_string(cell.column());
    }
    std::size_t Chosen() { return std::size_t(Grid()->selectionModel()->selectedIndexes().size()); }
    QWidget* Chooser() { return Find<QWidget>("frmChooseTarget"); }
    std::string Lines() {
        std::string lines;
        const auto* list = Find<QListWidget>("lstTargets");
        for (int line = 0; line < list->count(); ++line)
            lines += list->item(line)->text().toStdString() + "\n";
        return lines;
    }
    static std::string SystemText() { return QApplication::clipboard()->text().toStdString(); }
    bool Says(const char* text) { return Panel("Panel3").find(text) != std::string::npos; }
};

TEST_F(CurrentCellTest, DigitsAreTypedIntoTheCurrentCellAndEnterGoesDown) {
    StartOn(GateDocument());
    GoTo(6, 3);
    Type("12");
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(EditorText(), "12");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(6, 3), "12:");
    EXPECT_EQ(Current(), "7,3");
    Type("5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(7, 3), "5:Stop");
    EXPECT_EQ(Current(), "9,3"); // row 8 has no name
    Type("1");
    Key(Qt::Key_Return);
    EXPECT_EQ(Current(), "9,3"); // the last one
}

TEST_F(CurrentCellTest, ADigitTakesThePlaceOfWhatTheCellHolds) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Type("3");
    EXPECT_EQ(EditorText(), "3");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_EQ(Current(), "6,1");
}

TEST_F(CurrentCellTest, ARefusedNumberStaysWhereItIs) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Type("101");
    Answers.Press(QMessageBox::Ok);
    Key(Qt::Key_Return);
    EXPECT_EQ(Current(), "6,1");
    EXPECT_EQ(Text(6, 1), "2:Run");
}

TEST_F(CurrentCellTest, F2OpensTheEditorOfTheCurrentCellAndIsNoPress) {
    StartOn(GateDocument());
    Click(7, 2, Qt::RightButton);
    PoppedUp();
    GoTo(6, 1);
    Key(Qt::Key_F2);
    EXPECT_EQ(EditorText(), "2");
    Key(Qt::Key_Return);
    EXPECT_EQ(Current(), "7,1");
    Key(Qt::Key_Return); // the cell pressed last by the mouse, as ever
    EXPECT_EQ(Editor()->geometry(), CellRect(7, 2));
    Key(Qt::Key_Return);
    EXPECT_EQ(Current(), "7,2"); // an edit that no key of ours began stays where it was
}

TEST_F(CurrentCellTest, F2OnAHeadOpensItsDialog) {
    StartOn(GateDocument());
    for (const auto& [row, column, name] :
         {std::tuple(0, 2, "frmStateEdit"), {9, 0, "frmEventEdit"}, {0, 0, "frmGeneralCodeEdit"}}) {
        GoTo(row, column);
        InNextDialog(Answers, [name = name](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName().toStdString(), name);
            Press(dialog, "cmdCancel");
        });
        Key(Qt::Key_F2);
    }
}

TEST_F(CurrentCellTest, AnEventWithoutNameSaysWhatToDo) {
    StartOn(GateDocument());
    GoTo(8, 1);
    Type("2");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_TRUE(Says("Name one first"));
    Type("r");
    EXPECT_FALSE(Chooser()->isVisible());
}

TEST_F(CurrentCellTest, ALetterOpensAListOfTheStatesThatHaveItInTheirNames) {
    StartOn(GateDocument());
    GoTo(6, 2);
    Type("o");
    ASSERT_TRUE(Chooser()->isVisible());
    EXPECT_EQ(Lines(), "3:Opening\n5:Stop\n");
    Type("pe");
    EXPECT_EQ(Lines(), "3:Opening\n");
    Key(Qt::Key_Return);
    EXPECT_FALSE(Chooser()->isVisible());
    EXPECT_EQ(Text(6, 2), "3:Opening");
    EXPECT_EQ(Current(), "7,2");
    EXPECT_TRUE(Grid()->hasFocus());
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_TRUE(Says("Undone: transition"));
}

TEST_F(CurrentCellTest, TheListIsLedByArrowsAndLeftByEscape) {
    StartOn(GateDocument());
    GoTo(7, 2);
    Trigger("mnuChooseTarget");
    EXPECT_EQ(Lines(), "1:Idle\n2:Run\n3:Opening\n5:Stop\n");
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Up);
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(7, 2), "3:Opening*"); // the action stays, as with a number
    GoTo(6, 2);
    Key(Qt::Key_Space, Qt::ControlModifier);
    Type("zzz");
    Key(Qt::Key_Return); // no state has that: the list stays
    EXPECT_TRUE(Chooser()->isVisible());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Chooser()->isVisible());
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_TRUE(Grid()->hasFocus());
}

TEST_F(CurrentCellTest, TheListIsSeenWholeAtTheEdgeOfTheTable) {
    StartOn(GateDocument());
    Window().resize(500, 300);
    GoTo(9, 60);
    Type("r");
    ASSERT_TRUE(Chooser()->isVisible());
    EXPECT_TRUE(Grid()->viewport()->rect().contains(Chooser()->geometry()));
}

TEST_F(CurrentCellTest, TabGoesToTheNextCell) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Current(), "6,2");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Current(), "6,1");
}

TEST_F(CurrentCellTest, ShiftAndArrowsChooseCellsAndAPlainArrowForgetsThem) {
    StartOn(GateDocument());
    GoTo(4, 2);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Current(), "6,2"); // ELSE is hidden
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Chosen(), 4u);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    Key(Qt::Key_Left, Qt::ShiftModifier); // the heads are no part of it
    EXPECT_EQ(Current(), "6,1");
    EXPECT_EQ(Chosen(), 4u);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Chosen(), 1u);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Chosen(), 2u);
    Key(Qt::Key_Right);
    EXPECT_EQ(Chosen(), 1u);
}

TEST_F(CurrentCellTest, DeleteClearsTheChosenCellsInOneStep) {
    FsmDocument document = GateDocument();
    document.State(2).Actions[6] = ";alone";
    StartOn(document);
    GoTo(6, 1);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_Delete);
    for (const int row : {6, 7}) {
        for (const int column : {1, 2})
            EXPECT_EQ(Text(row, column), "");
    }
    Trigger("mnuUndo");
    EXPECT_TRUE(Says("Undone: clear cells"));
    EXPECT_EQ(SavedDocument(), document);
}

TEST_F(CurrentCellTest, AllIsWhatHasAName) {
    StartOn(GateDocument());
    GoTo(9, 9);
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Chosen(), 4u * 4u); // rows 4, 6, 7, 9; states 1, 2, 3, 5
    Key(Qt::Key_Delete);
    EXPECT_EQ(Text(6, 1), "");
    EXPECT_EQ(Text(7, 2), "");
}

TEST_F(CurrentCellTest, APressForgetsWhatWasChosen) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Click(7, 1, Qt::LeftButton, Qt::ControlModifier); // the current cell already
    EXPECT_EQ(Chosen(), 1u);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Text(6, 1), "2:Run");
}

TEST_F(CurrentCellTest, OneCopiedCellFillsTheChosenOnes) {
    StartOn(GateDocument());
    GoTo(7, 2);
    Key(Qt::Key_C, Qt::ControlModifier);
    GoTo(7, 3);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(7, 3), "1:Idle*");
    EXPECT_EQ(Text(8, 3), ""); // no name
    EXPECT_EQ(Text(9, 3), "1:Idle*");
    EXPECT_TRUE(Says("1 cell was left out"));
    EXPECT_EQ(SavedDocument().State(3).Actions[9], ";stop action");
}

TEST_F(CurrentCellTest, ABlockIsCutAndLaidDownElsewhereEachInOneStep) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Text(6, 1), "");
    GoTo(6, 10);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(6, 10), "2:Run");
    EXPECT_EQ(Text(7, 11), "1:Idle*");
    Trigger("mnuUndo");
    EXPECT_TRUE(Says("Undone: paste cells"));
    Trigger("mnuUndo");
    EXPECT_TRUE(Says("Undone: cut cells"));
    EXPECT_EQ(Text(7, 2), "1:Idle*");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(CurrentCellTest, KeysAndPopUpMenusShareOneClipboard) {
    StartOn(GateDocument());
    GoTo(7, 2);
    Key(Qt::Key_C, Qt::ControlModifier);
    Click(9, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuPasteTransition");
    Click(6, 1, Qt::RightButton);
    PoppedUp();
    EXPECT_EQ(SavedDocument().State(1).Targets[9], 1);
    Trigger("mnuCopyTransition");
    EXPECT_EQ(SystemText(), "2:Run\n");
    GoTo(9, 2);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(9, 2), "2:Run");
    Click(7, 2, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCopyTransAct");
    GoTo(9, 2);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(9, 2), "2:Run*");
    GoTo(6, 1);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    Click(9, 20, Qt::RightButton);
    PoppedUp();
    Trigger("mnuPasteTransition");
    EXPECT_EQ(Text(9, 20), "2:Run"); // drawn at once
}

TEST_F(CurrentCellTest, ASpreadsheetGetsAndGivesTables) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(SystemText(), "2:Run\t\n\t1:Idle*\n");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains(
        QStringLiteral("<tr><td>2:Run</td><td></td></tr>")));
    QApplication::clipboard()->setText(QStringLiteral("opening\t5\r\n1:Whatever\t\r\n"));
    GoTo(6, 1);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(6, 1), "3:Opening");
    EXPECT_EQ(Text(6, 2), "5:Stop");
    EXPECT_EQ(Text(7, 1), "1:Idle");
    EXPECT_EQ(Text(7, 2), "");
}

// What would be mark-up in a page, and what would be another cell or line in a table.
TEST_F(CurrentCellTest, ANameIsGivenAwayAsItReads) {
    FsmDocument document = GateDocument();
    document.State(2).Name = "<b>A&B";
    document.State(3).Name = "up\tand\r\ndown";
    document.State(1).Targets[7] = 3;
    StartOn(document);
    GoTo(6, 1);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(SystemText(), "2:<b>A&B\n3:up and  down\n");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->html().contains(
        QStringLiteral("<td>2:&lt;b&gt;A&amp;B</td>")));
}

TEST_F(CurrentCellTest, APageGivesItsTableWhenItHasNoText) {
    StartOn(GateDocument());
    auto* page = new QMimeData;
    page->setHtml(QStringLiteral("<p>x</p><table><tr><td>3</td><td>Stop</td></tr></table>"));
    QApplication::clipboard()->setMimeData(page);
    GoTo(6, 1);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(6, 1), "3:Opening");
    EXPECT_EQ(Text(6, 2), "5:Stop");
}

TEST_F(CurrentCellTest, TextThatIsNoStateIsNotPasted) {
    StartOn(GateDocument());
    QApplication::clipboard()->setText(QStringLiteral("1\tsome prose"));
    GoTo(6, 1);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_TRUE(Says("\"some prose\" is not the number or the name of one state"));
}

TEST_F(CurrentCellTest, WhatWasCopiedLastIsPasted) {
    StartOn(GateDocument());
    QApplication::clipboard()->setText(QStringLiteral("5"));
    Click(7, 2, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCopyTransAct");
    GoTo(6, 1);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(6, 1), "2:Run*"); // the action, not the text from before
}

TEST_F(CurrentCellTest, OnAHeadTheCommandsSayWhereTheyWork) {
    StartOn(GateDocument());
    const FsmDocument before = SavedDocument();
    GoTo(0, 1);
    Key(Qt::Key_Delete);
    EXPECT_TRUE(Says("choose a cell"));
    EXPECT_EQ(SavedDocument(), before);
}

TEST_F(CurrentCellTest, HomeAndEndGoToTheEndsOfWhatIsUsed) {
    StartOn(GateDocument());
    Window().resize(500, 300);
    GoTo(7, 40);
    Key(Qt::Key_Home);
    EXPECT_EQ(Current(), "7,1");
    EXPECT_GE(Grid()->visualRect(Grid()->currentIndex()).left(), Grid()->columnWidth(0));
    Key(Qt::Key_End);
    EXPECT_EQ(Current(), "7,5");
    Key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Current(), "4,1");
    Key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Current(), "9,5");
    Key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(Chosen(), 5u);
}

TEST_F(CurrentCellTest, GoToFindsStatesAndEvents) {
    StartOn(GateDocument());
    for (const auto& [text, place] :
         {std::pair("op", "0,3"), {"77", "0,77"}, {"butt", "9,0"}, {"stop", "0,5"}}) {
        InNextDialog(Answers, [text = text](QWidget& dialog) {
            auto& field = Named<QLineEdit>(dialog, "txtGoTo");
            EXPECT_EQ(dialog.focusWidget(), &field) << text;
            QTest::keyClicks(&field, QString::fromLatin1(text));
            EXPECT_EQ(field.text().toStdString(), text);
            QTest::keyClick(&field, Qt::Key_Return);
        });
        Trigger("mnuGoTo");
        EXPECT_EQ(Current(), place) << text;
    }
    InNextDialog(Answers, [](QWidget& dialog) {
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("nowhere"));
        EXPECT_FALSE(Named<QPushButton>(dialog, "cmdOK").isEnabled());
        Press(dialog, "cmdCancel");
    });
    Trigger("mnuGoTo");
    EXPECT_EQ(Current(), "0,5");
}

TEST_F(CurrentCellTest, UndoShowsThePlace) {
    StartOn(GateDocument());
    TypeTarget(9, 1, QStringLiteral("3"));
    GoTo(40, 90);
    Grid()->scrollTo(Grid()->currentIndex());
    Trigger("mnuUndo");
    EXPECT_EQ(Current(), "9,1");
    EXPECT_TRUE(Grid()->viewport()->rect().contains(Grid()->visualRect(Grid()->currentIndex())));
}

TEST_F(CurrentCellTest, AnotherDocumentBeginsWithNothingChosen) {
    StartOn(GateDocument());
    GoTo(6, 1);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Trigger("mnuFNew");
    EXPECT_EQ(Chosen(), 1u);
}

} // namespace
} // namespace orvane
