// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/RunPaneFixture.h"

#include "session/Commands.h"
#include "session/Session.h"
#include "support/ui/OpenedAddresses.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QColor kRed(255, 0, 0);
const QColor kBlue(153, 204, 255);

class RunRoomTest : public RunPaneFixture {};

TEST_F(RunRoomTest, ThePaneIsNotMadeBeforeItIsAskedFor) {
    StartOn(TimedPump());
    EXPECT_EQ(Find<QDockWidget>("dckRun"), nullptr);
    EXPECT_FALSE(Item("mnuViewRun")->isChecked());
    Trigger("mnuViewRun");
    EXPECT_TRUE(Pane().isVisible());
    EXPECT_TRUE(Item("mnuViewRun")->isChecked());
    EXPECT_EQ(Where(), "The power is off.");
    Trigger("mnuViewRun");
    EXPECT_FALSE(Pane().isVisible());
    EXPECT_FALSE(Item("mnuViewRun")->isChecked());
}

TEST_F(RunRoomTest, ClosingThePaneByItsButtonTakesThePictureOffTheTable) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    EXPECT_NE(Marks(6, 1), 0);
    Pane().close();
    EXPECT_EQ(Marks(6, 1), 0);
    EXPECT_FALSE(Item("mnuViewRun")->isChecked());
}

TEST_F(RunRoomTest, AClickOnAnInputPulsesAndWithControlHolds) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    EXPECT_EQ(Where(), "1:Idle at 0");
    EXPECT_THAT(Rows("lstInputs"), ElementsAre("Start||2:Run", "Stop||no effect now"));
    ClickInput(QStringLiteral("Start"));
    EXPECT_EQ(Where(), "2:Run at 0");
    EXPECT_THAT(Rows("lstInputs"), ElementsAre("Stop||1:Idle", "Start||no effect now"));
    ClickInput(QStringLiteral("Stop"), Qt::ControlModifier);
    EXPECT_EQ(Where(), "1:Idle at 0");
    EXPECT_THAT(Rows("lstInputs"), ElementsAre("Start||2:Run", "Stop|held|no effect now"));
    ClickInput(QStringLiteral("Stop"), Qt::ControlModifier);
    EXPECT_THAT(Rows("lstInputs"), ElementsAre("Start||2:Run", "Stop||no effect now"));
    EXPECT_THAT(Rows("lstLog"),
                ElementsAre("0|Power on: 1:Idle", "0|1:Idle → 2:Run by Start", "0|2:Run → 1:Idle by Stop"));
}

TEST_F(RunRoomTest, KeysDriveTheMachineWhileThePaneHasTheFocus) {
    StartRunning(TimedPump());
    PressKey(Qt::Key_Home);
    EXPECT_EQ(Where(), "1:Idle at 0");
    List("lstInputs").setCurrentIndex(List("lstInputs").model()->index(0, 0));
    PressKey(Qt::Key_P);
    EXPECT_EQ(Where(), "2:Run at 0");
    PressKey(Qt::Key_Space);
    EXPECT_EQ(Where(), "2:Run at 1");
    EXPECT_THAT(Rows("lstTimers"), ElementsAre("default timer|1|100|99|1:Idle"));
    PressKey(Qt::Key_T);
    EXPECT_EQ(Where(), "1:Idle at 100");
    PressKey(Qt::Key_Backspace);
    EXPECT_EQ(Where(), "2:Run at 1");
    PressKey(Qt::Key_N);
    EXPECT_EQ(Where(), "1:Idle at 100");
    PressKey(Qt::Key_Backspace);
    PressKey(Qt::Key_Backspace, Qt::ShiftModifier);
    EXPECT_EQ(Where(), "1:Idle at 100");
    PressKey(Qt::Key_H); // Start, which stays the chosen one
    EXPECT_EQ(Where(), "2:Run at 100");
    EXPECT_THAT(Rows("lstInputs"), ElementsAre("Stop||1:Idle", "Start|held|no effect now"));
}

TEST_F(RunRoomTest, KeysInTheTableStayThoseOfTheTable) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    Grid()->setFocus();
    QTest::keyClick(Grid(), Qt::Key_Space);
    QTest::keyClick(Grid(), Qt::Key_T);
    EXPECT_EQ(Where(), "1:Idle at 0");
}

TEST_F(RunRoomTest, CommandsOfTheMenuShowThePaneAndDoTheSame) {
    StartOn(TimedPump());
    Trigger("mnuPowerOn");
    EXPECT_TRUE(Pane().isVisible());
    EXPECT_EQ(Where(), "1:Idle at 0");
    Trigger("mnuStep");
    EXPECT_EQ(Where(), "1:Idle at 1");
    Trigger("mnuStepBack");
    EXPECT_EQ(Where(), "1:Idle at 0");
    Trigger("mnuToTimeout");
    EXPECT_EQ(Notice(), "No timeout is coming in 1:Idle");
    ClickInput(QStringLiteral("Start"));
    EXPECT_EQ(Notice(), "");
    Trigger("mnuToTimeout");
    EXPECT_EQ(Where(), "1:Idle at 100");
}

TEST_F(RunRoomTest, TheTableIsThePictureOfTheRun) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    EXPECT_EQ(Colour(0, 1), kRed);
    EXPECT_EQ(Marks(6, 1), kTakeable);
    EXPECT_EQ(Marks(7, 1), 0);
    ClickInput(QStringLiteral("Start"));
    EXPECT_EQ(Colour(0, 2), kRed);
    EXPECT_EQ(Marks(6, 1), kLastTaken);
    EXPECT_EQ(Marks(7, 2), kTakeable);
    EXPECT_EQ(Marks(kTimeoutRow, 2), kTakeable | kNextTaken);
    EXPECT_EQ(Colour(kTimeoutRow, 2), kBlue);
    EXPECT_EQ(Note(kTimingModeRow, 2), "100");
    PressKey(Qt::Key_Space);
    EXPECT_EQ(Note(kTimingModeRow, 2), "99");
    ClickInput(QStringLiteral("Start"), Qt::ControlModifier);
    EXPECT_EQ(Marks(6, 0), kTrueInput);
    EXPECT_EQ(Marks(7, 0), 0);
}

TEST_F(RunRoomTest, CountsStandInTheTableAndGoBackWithTheRun) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"));
    EXPECT_EQ(Note(6, 1), "");
    Named<QCheckBox>(Window(), "chkCounts").click();
    EXPECT_EQ(Note(6, 1), "1×");
    EXPECT_EQ(Note(7, 2), "0×");
    EXPECT_EQ(Note(0, 1), "1×");
    EXPECT_EQ(Note(8, 1), "");
    PressKey(Qt::Key_Backspace);
    EXPECT_EQ(Note(6, 1), "0×");
}

TEST_F(RunRoomTest, AnEditIsPlayedAgainAtOnce) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"));
    TypeTarget(6, 1, QStringLiteral("3"));
    EXPECT_EQ(Where(), "3:Wait at 0");
    EXPECT_EQ(Colour(0, 3), kRed);
    EXPECT_EQ(Notice(), "Since the edit it goes another way: at 0 to 3:Wait");
    Trigger("mnuUndo");
    EXPECT_EQ(Where(), "2:Run at 0");
    EXPECT_EQ(Colour(0, 2), kRed);
}

TEST_F(RunRoomTest, AnEditWhileThePaneIsHiddenIsPlayedWhenItIsShown) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"));
    Trigger("mnuViewRun");
    TypeTarget(6, 1, QStringLiteral("3"));
    Trigger("mnuViewRun");
    EXPECT_EQ(Where(), "3:Wait at 0");
}

TEST_F(RunRoomTest, ATableWithErrorsSaysThemAndRunsAgainWhenTheyAreMended) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    TypeTarget(7, 2, QStringLiteral("40")); // which is not reached otherwise and has no way out
    EXPECT_EQ(Where(), "1:Idle at 0");
    FsmDocument broken = TimedPump();
    broken.State(2).TimeConst.clear();
    StartOn(broken);
    Trigger("mnuPowerOn");
    EXPECT_EQ(Where(), "This table cannot be run yet.");
    EXPECT_NE(Notice(), "");
}

TEST_F(RunRoomTest, AnotherDocumentBeginsWithThePowerOff) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    Trigger("mnuFNew");
    EXPECT_EQ(Where(), "This table cannot be run yet.");
    EXPECT_THAT(Rows("lstLog"), IsEmpty());
    EXPECT_NE(Colour(0, 1), kRed);
}

TEST_F(RunRoomTest, ShiftClickOnAnEventIsAPulseToo) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Where(), "2:Run at 0");
    EXPECT_EQ(Colour(0, 2), kRed);
    PressButton("cmdToTimeout");
    EXPECT_EQ(Colour(0, 1), kRed);
}

TEST_F(RunRoomTest, ALimitThatIsANameIsAskedForInThePane) {
    FsmDocument document = TimedPump();
    document.State(2).TimeConst = "LONG";
    StartRunning(document);
    PressButton("cmdPowerOn");
    EXPECT_FALSE(Find<QWidget>("fraLimit")->isVisible());
    ClickInput(QStringLiteral("Start"));
    EXPECT_TRUE(Find<QWidget>("fraLimit")->isVisible());
    EXPECT_EQ(Label("lblLimit"), "How many units is LONG, the limit of 2:Run?");
    QLineEdit& field = Named<QLineEdit>(Window(), "txtLimit");
    QTest::keyClicks(&field, QStringLiteral("t40")); // a letter is no key of the pane here
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(Notice(), "");
    PressKey(Qt::Key_T);
    EXPECT_EQ(Where(), "1:Idle at 40");
}

TEST_F(RunRoomTest, WhatWasCutOffIsBroughtBackByItsButton) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"));
    PressKey(Qt::Key_T);
    PressKey(Qt::Key_Backspace);
    EXPECT_FALSE(Named<QPushButton>(Window(), "cmdBringBack").isEnabled());
    ClickInput(QStringLiteral("Stop"));
    EXPECT_EQ(Where(), "1:Idle at 0");
    PressButton("cmdBringBack");
    EXPECT_EQ(Where(), "1:Idle at 100");
    EXPECT_EQ(Rows("lstLog").back(), "100|2:Run → 1:Idle by Timeout");
}

TEST_F(RunRoomTest, TimePassesByItselfUntilTheMachineStops) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"));
    Named<QComboBox>(Window(), "cboSpeed").setCurrentText(QStringLiteral("x1000"));
    PressKey(Qt::Key_R);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Where().starts_with("1:Idle"); }));
    PressKey(Qt::Key_R);
    EXPECT_FALSE(Named<QPushButton>(Window(), "cmdRun").isChecked());

    Named<QComboBox>(Window(), "cboSpeed").setCurrentText(QStringLiteral("as things happen"));
    ClickInput(QStringLiteral("Start"));
    PressKey(Qt::Key_R);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Named<QPushButton>(Window(), "cmdRun").isChecked(); }));
    EXPECT_TRUE(Where().starts_with("1:Idle")) << Where();
}

TEST_F(RunRoomTest, ARingIsToldInWordsAndStopsTheRun) {
    FsmDocument document = TimedPump();
    document.State(2).Targets[6] = 1;
    document.State(2).Actions[6] = ";back";
    StartRunning(document);
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"), Qt::ControlModifier);
    EXPECT_TRUE(Notice().starts_with("It goes round through 1:Idle, 2:Run and never comes to rest"))
        << Notice();
    PressKey(Qt::Key_Space);
    EXPECT_TRUE(Where().ends_with("at 0"));
    PressKey(Qt::Key_Backspace);
    EXPECT_EQ(Notice(), "");
}

TEST_F(RunRoomTest, AClickInTheLogGoesToThatMoment) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    ClickInput(QStringLiteral("Start"));
    PressKey(Qt::Key_T);
    ClickInput(QStringLiteral("Start"));
    PressKey(Qt::Key_T);
    EXPECT_EQ(Where(), "1:Idle at 200");
    QTableView& log = List("lstLog");
    const QModelIndex timeout = log.model()->index(2, 1);
    log.scrollTo(timeout);
    QTest::mouseClick(log.viewport(), Qt::LeftButton, {}, log.visualRect(timeout).center());
    EXPECT_EQ(Where(), "2:Run at 100"); // behind all that happened at that time
    EXPECT_EQ(Rows("lstLog").size(), 4U);
}

// As many rows as before say something else.
TEST_F(RunRoomTest, TheLogOfAnotherRunIsDrawnAgain) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    PressKey(Qt::Key_Space);
    int resets = 0;
    QObject::connect(List("lstLog").model(), &QAbstractItemModel::modelReset, &Pane(), [&] { ++resets; });
    PressKey(Qt::Key_Space);
    EXPECT_EQ(resets, 0);
    PressButton("cmdPowerOn");
    EXPECT_EQ(resets, 1);
    TypeTarget(6, 1, QStringLiteral("3"));
    EXPECT_EQ(resets, 2);
}

TEST_F(RunRoomTest, F1InThePaneOpensItsPage) {
    OpenedAddresses opened;
    StartRunning(TimedPump());
    PressKey(Qt::Key_F1);
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_TRUE(opened.Addresses[0].toString().endsWith(QStringLiteral("4975.htm")));
}

// The state is chosen by a piece of its name.
TEST_F(RunRoomTest, TheShortestWayToAStateIsPlayedAsStepsOfTheRun) {
    StartRunning(TimedPump());
    QComboBox& state = Named<QComboBox>(Window(), "cboState");
    state.lineEdit()->selectAll();
    QTest::keyClicks(state.lineEdit(), QStringLiteral("ru"));
    PressButton("cmdGoToState");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Where() == "2:Run at 0"; })) << Where();
    EXPECT_EQ(Notice(), "The shortest way to 2:Run was played");
    EXPECT_EQ(Named<QPushButton>(Window(), "cmdGoToState").text(), QStringLiteral("Go"));
    PressKey(Qt::Key_Backspace);
    EXPECT_EQ(Where(), "1:Idle at 0");
    state.setCurrentText(QStringLiteral("3:Wait"));
    PressButton("cmdGoToState");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Notice() == "No way leads from 1:Idle to 3:Wait"; }))
        << Notice();
}

TEST_F(RunRoomTest, UntilOneIsChosenTheKeysPressTheFirstInput) {
    StartRunning(TimedPump());
    PressKey(Qt::Key_Home);
    EXPECT_EQ(Where(), "1:Idle at 0");
    PressKey(Qt::Key_P);
    EXPECT_EQ(Where(), "2:Run at 0");
}

TEST_F(RunRoomTest, WhatATimerSaysIsReadWhole) {
    FsmDocument document = PumpDocument();
    document.State(2).TimingMode = 1;
    document.State(2).TimeConst = "100";
    document.State(2).Targets[kTimeoutRow] = 1;
    StartRunning(document);
    Trigger("mnuPowerOn");
    const QTableView& list = List("lstTimers");
    const QModelIndex runsFor = list.model()->index(0, 1);
    EXPECT_EQ(runsFor.data().toString(), QStringLiteral("never started"));
    EXPECT_GE(list.columnWidth(1), list.sizeHintForIndex(runsFor).width());
}

TEST_F(RunRoomTest, OfALongNameTheNumberAndTheBeginningAreSeen) {
    FsmDocument document = PumpDocument();
    document.State(2).Name = std::string(60, 'R');
    StartRunning(document);
    QComboBox& state = Named<QComboBox>(Window(), "cboState");
    state.setCurrentIndex(1);
    EXPECT_TRUE(state.currentText().startsWith(QStringLiteral("2:RRR")));
    EXPECT_EQ(state.lineEdit()->cursorPosition(), 0);
}

TEST_F(RunRoomTest, WhatIsDoneMeanwhileEndsTheSearchForAWay) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    Named<QComboBox>(Window(), "cboState").setCurrentText(QStringLiteral("2:Run"));
    PressButton("cmdGoToState");
    EXPECT_EQ(Named<QPushButton>(Window(), "cmdGoToState").text(), QStringLiteral("Stop"));
    PressButton("cmdStep");
    EXPECT_EQ(Named<QPushButton>(Window(), "cmdGoToState").text(), QStringLiteral("Go"));
    PressButton("cmdGoToState");
    PressButton("cmdGoToState"); // stops it
    QCoreApplication::processEvents();
    EXPECT_EQ(Where(), "1:Idle at 1");
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_EQ(Where(), "1:Idle at 1");
}

// The table shows nothing of the run until all of it was played: the beginning is not the present.
TEST_F(RunRoomTest, ALongRunIsPlayedAgainBehindAnEdit) {
    std::string text = "test long\n";
    for (int i = 0; i < 15'000; ++i)
        text += "pulse Start\npulse Stop\n";
    WriteFile(QStringLiteral("machine.ztest"), text + "pulse Start => Idle\n");
    StartOn(TimedPump());
    Trigger("mnuRunTests");
    ASSERT_EQ(Where(), "1:Idle at 0");
    TypeTarget(7, 2, QStringLiteral("2"));
    EXPECT_TRUE(Where().starts_with("Played again on the edited table: ")) << Where();
    EXPECT_EQ(Marks(6, 1), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Where() == "2:Run at 0"; })) << Where();
    EXPECT_NE(Marks(7, 2), 0);
    Trigger("mnuUndo");
    PressButton("cmdStep"); // behind all of it
    EXPECT_EQ(Where(), "1:Idle at 1");
}

} // namespace
} // namespace orvane
