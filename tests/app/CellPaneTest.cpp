// SPDX-License-Identifier: GPL-3.0-or-later
// The pane with everything of the current cell, edited in place.
#include "core/TimingMode.h"
#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/SeenPaints.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>

namespace orvane {
namespace {

class CellPaneTest : public TableFixture {
  protected:
    void Open(const FsmDocument& document) {
        StartOn(document);
        Window().activateWindow();
        Trigger("mnuViewCell");
        QApplication::processEvents();
    }
    void GoTo(int row, int column) { Grid()->setCurrentIndex(Grid()->model()->index(row, column)); }
    std::string Words() { return Find<QLabel>("lblCell")->text().toStdString(); }
    QLineEdit& Line(const char* name) { return Named<QLineEdit>(Window(), name); }
    CodePane& Pane(const char* name) { return Named<CodePane>(Window(), name); }
    std::string LineText(const char* name) { return Line(name).text().toStdString(); }
    bool IsShown(const char* name) { return Named<QWidget>(Window(), name).isVisibleTo(&Window()); }
    // In the field, as a user who has it before his eyes.
    void Type(QWidget& field, const char* text) {
        field.setFocus();
        if (auto* line = qobject_cast<QLineEdit*>(&field))
            line->selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(text));
    }
    void LeaveTo(QWidget& other) { other.setFocus(); }
    // The three kinds of timeout, which show other fields each.
    static FsmDocument TimedDocument() {
        FsmDocument document = PumpDocument();
        document.State(1).TimingMode = kStartConstant;
        document.State(1).TimeConst = "10";
        document.State(2).TimingMode = kStartVariable;
        document.State(2).TimingVar = ";limit";
        return document;
    }
    std::vector<std::string> Places() {
        std::vector<std::string> places;
        for (const QWidget* part : Find<QDockWidget>("dckCell")->findChildren<QWidget*>()) {
            const QRect place = part->geometry();
            const bool isOwn =
                !part->objectName().isEmpty() && !part->objectName().startsWith(QLatin1String("qt_"));
            if (isOwn && part->isVisible())
                places.push_back(QStringLiteral("%1 %2, %3, %4 x %5")
                                     .arg(part->objectName())
                                     .arg(place.x())
                                     .arg(place.y())
                                     .arg(place.width())
                                     .arg(place.height())
                                     .toStdString());
        }
        return places;
    }
    bool IsEdited() { return Title().starts_with('*'); }
    bool Says(const char* text) { return Panel("Panel3").find(text) != std::string::npos; }
};

TEST_F(CellPaneTest, ItSaysWhatTheCurrentCellIsAndFollowsIt) {
    Open(PumpDocument());
    GoTo(7, 2);
    EXPECT_EQ(Words(), "2:Run, on Stop, acts and goes to 1:Idle");
    EXPECT_EQ(LineText("txtCellTarget"), "1:Idle");
    EXPECT_EQ(Pane("txtCellAction").Text(), ";stop action");
    EXPECT_EQ(LineText("txtCellEvent"), "Stop");
    EXPECT_EQ(Pane("txtCellTest").Text(), ";stop?");
    EXPECT_EQ(LineText("txtCellState"), "Run");
    EXPECT_EQ(Pane("txtCellEntry").Text(), ";run entry");
    GoTo(6, 1);
    EXPECT_EQ(Words(), "1:Idle, on Start, goes to 2:Run");
    EXPECT_EQ(Pane("txtCellAction").Text(), "");
    TypeTarget(6, 1, QStringLiteral("1"));
    EXPECT_EQ(Words(), "1:Idle, on Start, goes to 1:Idle"); // and every edit
}

TEST_F(CellPaneTest, OnlyWhatThePlaceHasIsShown) {
    Open(PumpDocument());
    GoTo(1, 2);
    EXPECT_FALSE(IsShown("fraCellTransition"));
    EXPECT_FALSE(IsShown("fraCellEvent"));
    EXPECT_TRUE(IsShown("fraCellState"));
    GoTo(6, 0);
    EXPECT_TRUE(IsShown("fraCellEvent"));
    EXPECT_FALSE(IsShown("fraCellState"));
    GoTo(20, 2);
    EXPECT_TRUE(IsShown("fraCellTransition"));
    EXPECT_FALSE(Line("txtCellTarget").isEnabled()); // the event has no name
    GoTo(0, 0);
    EXPECT_FALSE(IsShown("fraCellTransition"));
    EXPECT_FALSE(IsShown("fraCellEvent"));
    EXPECT_FALSE(IsShown("fraCellState"));
}

TEST_F(CellPaneTest, TheWordsStandAtTheTopAlsoOfAPlaceWithoutParts) {
    Open(PumpDocument());
    const auto top = [this] {
        QApplication::processEvents();
        const QLabel& words = *Find<QLabel>("lblCell");
        return words.y() + words.contentsRect().center().y() - words.fontMetrics().height();
    };
    GoTo(7, 2);
    const int before = top();
    GoTo(0, 0);
    EXPECT_LE(top(), before + Find<QLabel>("lblCell")->fontMetrics().height());
}

TEST_F(CellPaneTest, LeavingAFieldIsOneEdit) {
    Open(PumpDocument());
    GoTo(6, 1);
    Type(Pane("txtCellAction"), ";on");
    EXPECT_FALSE(IsEdited());
    LeaveTo(Line("txtCellState"));
    EXPECT_TRUE(IsEdited());
    EXPECT_EQ(Text(6, 1), "2:Run*");
    Trigger("mnuUndo");
    EXPECT_TRUE(Says("Undone: transition action"));
    EXPECT_FALSE(IsEdited());
    EXPECT_EQ(Pane("txtCellAction").Text(), "");
}

TEST_F(CellPaneTest, CtrlReturnAndReturnInALineTakeWhatIsTyped) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Pane("txtCellEntry"), ";x");
    QTest::keyClick(&Pane("txtCellEntry"), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Text(1, 2).substr(0, 4), ";x;r");
    Type(Line("txtCellState"), "Motor");
    QTest::keyClick(&Line("txtCellState"), Qt::Key_Return);
    EXPECT_EQ(Text(0, 2), "2:Motor");
    EXPECT_EQ(Text(6, 1), "2:Motor"); // every cell that leads there
    EXPECT_TRUE(Line("txtCellState").hasFocus());
}

TEST_F(CellPaneTest, AnotherCellTakesWhatIsTypedForTheFormerOne) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Line("txtCellState"), "Motor");
    GoTo(6, 1);
    EXPECT_EQ(Text(0, 2), "2:Motor");
    EXPECT_EQ(Text(0, 1), "1:Idle");
    EXPECT_EQ(LineText("txtCellState"), "Idle");
}

TEST_F(CellPaneTest, EveryCommandTakesWhatIsTypedFirst) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Line("txtCellState"), "Motor");
    EXPECT_EQ(SavedDocument().State(2).Name, "Motor");
    Type(Line("txtCellState"), "Pump");
    Trigger("mnuViewCell"); // also that which closes the pane
    EXPECT_EQ(Text(0, 2), "2:Pump");
}

TEST_F(CellPaneTest, UndoTakesBackWhatWasJustTypedAndNothingOlder) {
    Open(PumpDocument());
    TypeTarget(6, 2, QStringLiteral("1"));
    GoTo(6, 2);
    Type(Line("txtCellState"), "Motor");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(0, 2), "2:Run");
    EXPECT_EQ(LineText("txtCellState"), "Run");
    EXPECT_EQ(Text(6, 2), "1:Idle");
    Trigger("mnuRedo");
    EXPECT_EQ(Text(0, 2), "2:Motor");
}

TEST_F(CellPaneTest, EscapeTakesAFieldBackAndThenClosesThePane) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Pane("txtCellEntry"), ";x");
    QTest::keyClick(&Pane("txtCellEntry"), Qt::Key_Escape);
    EXPECT_EQ(Pane("txtCellEntry").Text(), ";run entry");
    EXPECT_TRUE(Pane("txtCellEntry").hasFocus());
    QTest::keyClick(&Pane("txtCellEntry"), Qt::Key_Escape);
    EXPECT_FALSE(Item("mnuViewCell")->isChecked());
    EXPECT_TRUE(Grid()->hasFocus());
    EXPECT_FALSE(IsEdited());
}

// Whatever has a text is as large as that takes, and what the window has no room for is scrolled to.
TEST_F(CellPaneTest, NothingOfATimeoutIsSqueezedInALowWindow) {
    FsmDocument document = PumpDocument();
    document.State(2).TimingMode = kStartConstant;
    document.State(2).TimeConst = "50";
    Open(document);
    for (const int height : {700, 450}) {
        Window().resize(1000, height);
        GoTo(7, 2);
        QApplication::processEvents();
        const auto& pane = *Find<QDockWidget>("dckCell");
        for (const char* name :
             {"optNoTimeOut", "optStartTiming", "optContinueTiming", "txtTimerID", "cmdTimeHelp",
              "optTimeCONST", "txtTimeCONST", "txtCellTarget", "txtCellState"}) {
            const auto& control = Named<QWidget>(pane, name);
            EXPECT_GE(control.height(), control.minimumSizeHint().height()) << name << " at " << height;
            EXPECT_GE(control.width(), control.minimumSizeHint().width()) << name << " at " << height;
        }
        for (const char* name : {"lblTimeConstNote", "lblTimeLimPrompt", "lblCell"}) {
            const auto& text = Named<QLabel>(pane, name);
            EXPECT_GE(text.height(), text.heightForWidth(text.width())) << name << " at " << height;
        }
        for (const char* name : {"txtCellAction", "txtCellTest", "txtCellEntry", "txtCellExit"}) {
            const auto& code = Named<QWidget>(pane, name);
            EXPECT_GE(code.height(), 3 * code.fontMetrics().lineSpacing()) << name << " at " << height;
        }
    }
}

TEST_F(CellPaneTest, TheFieldThatIsGoneToComesIntoSight) {
    Open(PumpDocument());
    Window().resize(1000, 450);
    GoTo(7, 2);
    QApplication::processEvents();
    for (QWidget* field : std::initializer_list<QWidget*>{&Pane("txtCellExit"), &Line("txtCellTarget"),
                                                          &Named<QWidget>(Window(), "cmdTimeHelp")}) {
        field->setFocus();
        QApplication::processEvents();
        const QWidget& area = *Find<QDockWidget>("dckCell")->findChild<QScrollArea*>()->viewport();
        const QRect place(field->mapTo(&area, QPoint(0, 0)), field->size());
        EXPECT_GE(area.rect().intersected(place).height(), place.height() * 3 / 4)
            << field->objectName().toStdString();
    }
}

TEST_F(CellPaneTest, EscapeDoesTheSameInALineAndClosesFromAButton) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Line("txtCellState"), "Motor");
    QTest::keyClick(&Line("txtCellState"), Qt::Key_Escape);
    EXPECT_EQ(LineText("txtCellState"), "Run");
    EXPECT_TRUE(Item("mnuViewCell")->isChecked());
    auto& option = Named<QRadioButton>(*Find<QDockWidget>("dckCell"), "optNoTimeOut");
    option.setFocus();
    QTest::keyClick(&option, Qt::Key_Escape);
    EXPECT_FALSE(Item("mnuViewCell")->isChecked());
    EXPECT_FALSE(IsEdited());
}

TEST_F(CellPaneTest, CtrlWTakesWhatIsTypedAndClosesThePane) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Pane("txtCellEntry"), ";x");
    QTest::keyClick(&Pane("txtCellEntry"), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(Item("mnuViewCell")->isChecked());
    EXPECT_TRUE(Grid()->hasFocus());
    EXPECT_EQ(SavedDocument().State(2).EntryCode.substr(0, 2), ";x");
}

// Whoever fills a field without going there, as tools for the blind do, leaves it by nothing.
TEST_F(CellPaneTest, HidingThePaneByItsButtonTakesWhatStandsThere) {
    Open(PumpDocument());
    GoTo(6, 2);
    Grid()->setFocus();
    Line("txtCellState").setText(QStringLiteral("Motor"));
    EXPECT_FALSE(IsEdited());
    Find<QDockWidget>("dckCell")->close();
    EXPECT_EQ(Text(0, 2), "2:Motor");
}

TEST_F(CellPaneTest, F1OpensThePageOfThePaneFromEveryField) {
    OpenedAddresses opened;
    Open(PumpDocument());
    GoTo(6, 2);
    for (QWidget* field : std::initializer_list<QWidget*>{&Pane("txtCellEntry"), &Line("txtCellState"),
                                                          &Named<QWidget>(Window(), "optNoTimeOut")}) {
        field->setFocus();
        opened.Addresses.clear();
        QTest::keyClick(field, Qt::Key_F1);
        ASSERT_EQ(opened.Addresses.size(), 1) << field->objectName().toStdString();
        EXPECT_TRUE(opened.Addresses.front().toString().endsWith(QStringLiteral("4990.htm")));
    }
}

TEST_F(CellPaneTest, ATargetIsGivenByNameAndOneThatIsNoStateIsTakenBack) {
    Open(PumpDocument());
    GoTo(7, 1);
    Type(Line("txtCellTarget"), "run");
    QTest::keyClick(&Line("txtCellTarget"), Qt::Key_Return);
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_EQ(LineText("txtCellTarget"), "2:Run");
    Type(Line("txtCellTarget"), "nowhere");
    QTest::keyClick(&Line("txtCellTarget"), Qt::Key_Return);
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_EQ(LineText("txtCellTarget"), "2:Run");
    EXPECT_TRUE(Says("\"nowhere\" is not the number or the name"));
}

TEST_F(CellPaneTest, ATimeoutIsTakenOnceItHasALimit) {
    FsmDocument document = PumpDocument();
    document.State(2).ColWidth = 1800;
    Open(document);
    GoTo(0, 2);
    auto& start = Named<QRadioButton>(Named<QDockWidget>(Window(), "dckCell"), "optStartTiming");
    auto& constant = Named<QRadioButton>(Named<QDockWidget>(Window(), "dckCell"), "optTimeCONST");
    start.click();
    constant.click();
    EXPECT_FALSE(IsEdited());
    Type(Line("txtTimeCONST"), "50");
    LeaveTo(Line("txtCellState"));
    EXPECT_EQ(Text(3, 2), "Start /50");
    EXPECT_FALSE(CellRect(3, 2).isEmpty()); // the rows have come into sight
    Trigger("mnuUndo");
    EXPECT_EQ(Text(3, 2), "");
    EXPECT_TRUE(Named<QRadioButton>(Named<QDockWidget>(Window(), "dckCell"), "optNoTimeOut").isChecked());
}

TEST_F(CellPaneTest, ATimeoutWithoutLimitIsLeftAndTold) {
    Open(PumpDocument());
    GoTo(0, 2);
    Named<QRadioButton>(Named<QDockWidget>(Window(), "dckCell"), "optStartTiming").click();
    Named<QRadioButton>(Named<QDockWidget>(Window(), "dckCell"), "optTimeCONST").click();
    GoTo(0, 1);
    EXPECT_TRUE(Says("has no limit yet"));
    EXPECT_FALSE(IsEdited());
    GoTo(0, 2);
    EXPECT_TRUE(Named<QRadioButton>(Named<QDockWidget>(Window(), "dckCell"), "optNoTimeOut").isChecked());
}

TEST_F(CellPaneTest, ATimingModeThatNobodyKnowsStays) {
    FsmDocument document = PumpDocument();
    document.State(1).TimingMode = 1;
    document.State(1).TimeConst = "9";
    document.State(2).TimingMode = 77;
    Open(document);
    GoTo(0, 1);
    GoTo(0, 2);
    Type(Line("txtCellState"), "Motor");
    EXPECT_EQ(SavedDocument().State(2).TimingMode, 77);
}

TEST_F(CellPaneTest, WhatIsBeingTypedIsADraft) {
    Open(PumpDocument());
    GoTo(6, 2);
    Type(Line("txtCellState"), "Motor");
    const std::vector<Draft> drafts = Window().Place().Open.Drafts();
    ASSERT_EQ(drafts.size(), 1u);
    EXPECT_EQ(drafts[0].Place, (Cell{kHeadRow, 2}));
    EXPECT_EQ(std::get<StateRecord>(drafts[0].Content).Name, "Motor");
    LeaveTo(*Grid());
    EXPECT_TRUE(Window().Place().Open.Drafts().empty());
}

TEST_F(CellPaneTest, TheItemFollowsThePane) {
    Open(PumpDocument());
    EXPECT_TRUE(Item("mnuViewCell")->isChecked());
    Find<QDockWidget>("dckCell")->close();
    EXPECT_FALSE(Item("mnuViewCell")->isChecked());
    Trigger("mnuViewCell");
    EXPECT_TRUE(Item("mnuViewCell")->isChecked());
    EXPECT_TRUE(Find<QDockWidget>("dckCell")->isVisible());
    Trigger("mnuViewCell");
    EXPECT_FALSE(Find<QDockWidget>("dckCell")->isVisible());
}

TEST_F(CellPaneTest, AStateWithAnotherTimeoutIsLaidOutAndPaintedOnce) {
    Open(TimedDocument());
    for (const int state : {2, 1, 3, 2, 3, 1}) {
        SeenPaints paints;
        GoTo(6, state);
        const std::vector<std::string> atOnce = Places();
        for (const char* name : {"txtCellAction", "txtCellTest", "txtCellEntry", "txtCellExit"})
            EXPECT_LE(paints.Times(*Pane(name).viewport()), 1) << name << " in state " << state;
        EXPECT_EQ(Places(), atOnce) << "in state " << state;
    }
}

TEST_F(CellPaneTest, WhatStaysTheSameInAnotherStateIsNotPainted) {
    Open(TimedDocument());
    GoTo(6, 1);
    SeenPaints paints;
    GoTo(6, 2);
    EXPECT_EQ(paints.Times(Line("txtCellEvent")), 0);
    EXPECT_GT(paints.Times(Line("txtCellState")), 0);
}

TEST_F(CellPaneTest, AnotherDocumentShowsNothingOfTheFormerOne) {
    Open(PumpDocument());
    GoTo(6, 2);
    Trigger("mnuFNew");
    EXPECT_EQ(Words(), "2:, on an event without a name, nothing happens");
    EXPECT_EQ(LineText("txtCellState"), "");
    EXPECT_EQ(Pane("txtCellEntry").Text(), "");
}

TEST_F(CellPaneTest, CodeInThePaneKeepsItsOwnUndo) {
    Open(PumpDocument());
    GoTo(6, 2);
    CodePane& entry = Pane("txtCellEntry");
    Type(entry, ";x");
    QTest::keyClick(&entry, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(&entry, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(entry.Text(), ";run entry");
}

TEST_F(CellPaneTest, F6LeadsFromTheTableIntoThePaneAndOn) {
    Open(PumpDocument());
    GoTo(6, 2);
    Grid()->setFocus();
    QTest::keyClick(Grid(), Qt::Key_F6);
    EXPECT_TRUE(Find<QDockWidget>("dckCell")->isAncestorOf(QApplication::focusWidget()));
    Pane("txtCellAction").setFocus();
    QTest::keyClick(&Pane("txtCellAction"), Qt::Key_F6);
    EXPECT_TRUE(Line("txtCellEvent").hasFocus());
}

} // namespace
} // namespace orvane
