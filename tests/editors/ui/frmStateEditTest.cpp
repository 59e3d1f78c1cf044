// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/StateEditFixture.h"

namespace orvane {
namespace {

TEST_F(StateEditTest, ShowsTheStateAndTakesItUnchangedOnOk) {
    state.TimingMode = kContinueConstant;
    const StateRecord before = state;
    Open([&] {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("State Definition"));
        EXPECT_EQ(Control<QLineEdit>("txtName").text(), QStringLiteral("Idle"));
        EXPECT_EQ(Control<QPlainTextEdit>("txtComment").toPlainText(), QStringLiteral("waits\nfor work"));
        EXPECT_EQ(Control<CodePane>("txtEntryCode").Text(), "\tNop\r\n");
        EXPECT_EQ(Control<CodePane>("txtExitCode").Text(), "leave");
        EXPECT_EQ(Control<QLineEdit>("txtTimeCONST").text(), QStringLiteral("7"));
        EXPECT_EQ(Control<QPlainTextEdit>("txtTimeVAR").toPlainText(), QStringLiteral("\tLoadW\tLimit"));
        EXPECT_EQ(Control<QLineEdit>("txtTimerID").text(), QStringLiteral("T9"));
        OK();
    });
    EXPECT_EQ(state, before);
}

TEST_F(StateEditTest, TextsThatOnlyAFileCanHoldComeBackByteForByte) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    for (std::string* text : {&state.Name, &state.Tooltip, &state.EntryCode, &state.ExitCode,
                              &state.TimeConst, &state.TimingVar, &state.TimerId})
        *text = everyByte;
    const StateRecord before = state;
    Open([&] { OK(); });
    EXPECT_EQ(state, before);
}

TEST_F(StateEditTest, AVeryLongTextIsNotCutOff) {
    const std::string longText(40000, 'x');
    for (std::string* text : {&state.Name, &state.TimeConst, &state.TimerId})
        *text = longText;
    Open([&] {
        auto& name = Control<QLineEdit>("txtName");
        name.end(false);
        QTest::keyClicks(&name, QStringLiteral("y"));
        OK();
    });
    EXPECT_EQ(state.Name.size(), longText.size() + 1);
    EXPECT_EQ(state.TimeConst.size(), longText.size());
    EXPECT_EQ(state.TimerId.size(), longText.size());
}

TEST_F(StateEditTest, EditedTextsAreTakenOnOk) {
    Open([&] {
        TypeInto("txtName", QStringLiteral("Busy"));
        QTest::keyClicks(&Control<CodePane>("txtEntryCode"), QStringLiteral("A"));
        ClickTab(1);
        auto& comment = Control<QPlainTextEdit>("txtComment");
        comment.selectAll();
        QTest::keyClicks(&comment, QStringLiteral("one"));
        QTest::keyClick(&comment, Qt::Key_Return);
        QTest::keyClicks(&comment, QStringLiteral("two"));
        ClickTab(3);
        QTest::keyClicks(&Control<CodePane>("txtExitCode"), QStringLiteral("B"));
        OK();
    });
    EXPECT_EQ(state.Name, "Busy");
    EXPECT_EQ(state.Tooltip, "one\r\ntwo");
    EXPECT_EQ(state.EntryCode, "A\tNop\r\n");
    EXPECT_EQ(state.ExitCode, "Bleave");
    EXPECT_EQ(state.LastTab, 3);
    EXPECT_EQ(state.Targets[6], 4);
    EXPECT_EQ(state.Actions[6], "action");
    EXPECT_EQ(state.ColWidth, 1200);
}

TEST_F(StateEditTest, CancelEscapeAndTheCloseButtonLeaveTheStateAsItWas) {
    const StateRecord before = state;
    const auto edit = [&] {
        TypeInto("txtName", QStringLiteral("Busy"));
        ClickTab(2);
        Choose("optStartTiming");
    };
    Open([&] {
        edit();
        Cancel();
    });
    EXPECT_EQ(state, before);
    Open([&] {
        edit();
        dialog.close();
    });
    EXPECT_EQ(state, before);
    Open([&] {
        edit();
        QTest::keyClick(&Control<QLineEdit>("txtName"), Qt::Key_Escape);
    });
    EXPECT_EQ(state, before);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(StateEditTest, EscapeInAPaneDoesNotCloseTheDialog) {
    Open([&] {
        QTest::keyClick(&Control<CodePane>("txtEntryCode"), Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        Cancel();
    });
}

TEST_F(StateEditTest, StartWithAVariableLimitShowsItsFrameAndIsWrittenBack) {
    state.TimingMode = kStartVariable;
    Open([&] {
        EXPECT_TRUE(IsOn("optStartTiming"));
        EXPECT_TRUE(IsOn("optTimeVAR"));
        ClickTab(2);
        EXPECT_TRUE(IsShown("fraTimeLimit"));
        EXPECT_TRUE(IsShown("fraTimeVAR"));
        EXPECT_FALSE(IsShown("fraTimeCONST"));
        OK();
    });
    EXPECT_EQ(state.TimingMode, kStartVariable);
}

TEST_F(StateEditTest, ContinueWithAConstantKeepsTheVariableText) {
    Open([&] {
        ClickTab(2);
        Choose("optContinueTiming");
        Choose("optTimeCONST");
        EXPECT_TRUE(IsShown("fraTimeCONST"));
        EXPECT_FALSE(IsShown("fraTimeVAR"));
        TypeInto("txtTimeCONST", QStringLiteral("5"));
        OK();
    });
    EXPECT_EQ(state.TimingMode, kContinueConstant);
    EXPECT_EQ(state.TimeConst, "5");
    EXPECT_EQ(state.TimingVar, "\tLoadW\tLimit");
}

TEST_F(StateEditTest, NoTimeoutHidesTheLimitAndKeepsBothTexts) {
    state.TimingMode = kStartConstant;
    Open([&] {
        ClickTab(2);
        Choose("optNoTimeOut");
        EXPECT_FALSE(IsShown("fraTimeLimit"));
        OK();
    });
    EXPECT_EQ(state.TimingMode, kNoTiming);
    EXPECT_EQ(state.TimeConst, "7");
    EXPECT_EQ(state.TimingVar, "\tLoadW\tLimit");
}

TEST_F(StateEditTest, AMissingConstantIsRefusedAndCancelThenKeepsTheName) {
    state.TimeConst.clear();
    const StateRecord before = state;
    Open([&] {
        TypeInto("txtName", QStringLiteral("Busy"));
        ClickTab(2);
        Choose("optStartTiming");
        Choose("optTimeCONST");
        ClickTab(0);
        Answers.Press(QMessageBox::Ok);
        OK();
        EXPECT_EQ(Answers.Seen().back().Title, std::string("This won't do!"));
        EXPECT_EQ(Answers.Seen().back().Text, std::string("You must provide a constant time limit"));
        EXPECT_EQ(Answers.Seen().back().Icon, QMessageBox::Warning);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Tabs().currentIndex(), 2);
        EXPECT_EQ(Control<QLineEdit>("txtName").text(), QStringLiteral("Busy"));
        Cancel();
    });
    EXPECT_EQ(state, before);
}

TEST_F(StateEditTest, AMissingLimitIsAskedForEvenWhereTheTableHidesItsTab) {
    state.TimingMode = kStartConstant;
    state.TimeConst.clear();
    dialog.SetTimeoutTabVisible(false);
    Open([&] {
        Answers.Press(QMessageBox::Ok);
        OK();
        EXPECT_EQ(Tabs().currentIndex(), 2);
        EXPECT_TRUE(Control<QLineEdit>("txtTimeCONST").isVisible());
        TypeInto("txtTimeCONST", QStringLiteral("5"));
        OK();
    });
    EXPECT_EQ(state.TimeConst, "5");
}

TEST_F(StateEditTest, AMissingVariableLimitIsRefusedWithItsOwnIcon) {
    state.TimingVar.clear();
    Open([&] {
        ClickTab(2);
        Choose("optContinueTiming");
        Choose("optTimeVAR");
        Answers.Press(QMessageBox::Ok);
        OK();
        EXPECT_EQ(Answers.Seen().back().Title, std::string("This won't do!"));
        EXPECT_EQ(Answers.Seen().back().Text,
                  std::string("You must provide code for the variable time limit"));
        EXPECT_EQ(Answers.Seen().back().Icon, QMessageBox::Critical);
        EXPECT_EQ(Tabs().currentIndex(), 2);
        QTest::keyClicks(&Control<QPlainTextEdit>("txtTimeVAR"), QStringLiteral(" "));
        OK();
    });
    EXPECT_EQ(state.TimingMode, kContinueVariable) << "a blank is a limit";
    EXPECT_EQ(state.TimingVar, " ");
}

TEST_F(StateEditTest, TimingWithoutALimitOptionIsToldAndKeepsTheMode) {
    Open([&] {
        TypeInto("txtName", QStringLiteral("Busy"));
        ClickTab(2);
        Choose("optStartTiming");
        EXPECT_TRUE(IsShown("fraTimeLimit"));
        EXPECT_FALSE(IsShown("fraTimeCONST"));
        EXPECT_FALSE(IsShown("fraTimeVAR"));
        Answers.Press(QMessageBox::Ok);
        OK();
        EXPECT_EQ(Answers.Seen().back().Text,
                  std::string("Unparsed timing mode options in frmStateEdit.cmdOK_Click [1]"));
        EXPECT_EQ(Answers.Seen().back().Icon, QMessageBox::NoIcon);
        EXPECT_EQ(Answers.Seen().back().Title, std::string("Orvane"));
    });
    EXPECT_EQ(state.TimingMode, kNoTiming);
    EXPECT_EQ(state.Name, "Busy") << "OK went on";
}

TEST_F(StateEditTest, ContinuingWithoutALimitOptionIsToldApart) {
    Open([&] {
        ClickTab(2);
        Choose("optContinueTiming");
        Answers.Press(QMessageBox::Ok);
        OK();
        EXPECT_EQ(Answers.Seen().back().Text,
                  std::string("Unparsed timing mode options in frmStateEdit.cmdOK_Click [2]"));
    });
}

TEST_F(StateEditTest, AnUnknownModeIsToldOnOpeningAndSurvivesOk) {
    for (const std::int32_t mode : {5, -1}) {
        frmStateEdit fresh;
        state.TimingMode = mode;
        Answers.Press(QMessageBox::Ok);
        InNextDialog(Answers, [&](QWidget& editor) {
            EXPECT_EQ(Answers.Seen()[0].Text, "Unknown timeout state in frmStateEdit.Execute");
            EXPECT_EQ(Answers.Seen()[0].Icon, QMessageBox::Critical);
            Answers.Press(QMessageBox::Ok);
            Press(editor, "cmdOK");
        });
        fresh.Execute(0, state);
        EXPECT_EQ(Answers.Seen().back().Text, "Unparsed timing mode options in frmStateEdit.cmdOK_Click [3]");
        EXPECT_EQ(state.TimingMode, mode);
    }
}

TEST_F(StateEditTest, WithoutATimeoutTheLimitKeepsWhatThePreviousStateShowed) {
    state.TimingMode = kStartVariable;
    Open([&] { OK(); });
    state.TimingMode = kNoTiming;
    Open([&] {
        EXPECT_TRUE(IsOn("optNoTimeOut"));
        EXPECT_TRUE(IsOn("optTimeVAR"));
        ClickTab(2);
        EXPECT_FALSE(IsShown("fraTimeLimit"));
        Choose("optStartTiming");
        EXPECT_TRUE(IsShown("fraTimeVAR"));
        Cancel();
    });
}

TEST_F(StateEditTest, WhicheverRowItIsOpenedFromItComesUpOnTheEntryAction) {
    state.LastTab = 1;
    for (int row = 0; row <= 3; ++row)
        Open(
            [&] {
                EXPECT_EQ(Tabs().currentIndex(), 0) << row;
                EXPECT_EQ(QApplication::focusWidget(), &Control<CodePane>("txtEntryCode")) << row;
                ClickTab(3);
                Cancel();
            },
            row);
}

TEST_F(StateEditTest, TheTabThatIsShownIsStoredOnEveryOkOnly) {
    Open([&] {
        ClickTab(2);
        OK();
    });
    EXPECT_EQ(state.LastTab, 2);
    Open([&] {
        ClickTab(1);
        Cancel();
    });
    EXPECT_EQ(state.LastTab, 2);
    Open([&] { OK(); });
    EXPECT_EQ(state.LastTab, 0);
}

TEST_F(StateEditTest, TheTimerIdIsTypedInCapitals) {
    Open([&] {
        ClickTab(2);
        auto& field = Control<QLineEdit>("txtTimerID");
        field.clear();
        QTest::keyClicks(&field, QStringLiteral("t 1"));
        TypeAnyText(field, QStringLiteral("\u00E4\u0153"));
        EXPECT_EQ(field.text(), QStringLiteral("T 1\u00C4\u0152"));
        OK();
    });
    EXPECT_EQ(state.TimerId, "T 1\xC4\x8C");
}

TEST_F(StateEditTest, StartTimingIsSeenOnTheTimeoutTabOnly) {
    Open([&] {
        EXPECT_FALSE(IsShown("fraStartTiming"));
        ClickTab(2);
        EXPECT_TRUE(IsShown("fraStartTiming"));
        ClickTab(3);
        EXPECT_FALSE(IsShown("fraStartTiming"));
        Cancel();
    });
}

TEST_F(StateEditTest, TimingHelpIsShownForAsLongAsItsButtonIsHeld) {
    EXPECT_TRUE(QString::fromLatin1(kTimingHelp.data()).endsWith(QStringLiteral("(Data Memory)).\r\n")));
    Open([&] {
        ClickTab(2);
        auto& help = Control<QPlainTextEdit>("txtTimingHelp");
        auto& button = Control<QPushButton>("cmdTimeHelp");
        EXPECT_FALSE(help.isVisible());
        QTest::mousePress(&button, Qt::LeftButton);
        EXPECT_TRUE(help.isVisible());
        EXPECT_EQ(help.width(), help.parentWidget()->width() - 2 * help.x());
        EXPECT_TRUE(help.toPlainText().startsWith(QStringLiteral(
            "This tab allows you to specify if and how the state will will time out.\n\nThe")));
        QTest::mouseRelease(&button, Qt::LeftButton);
        EXPECT_FALSE(help.isVisible());
        Cancel();
    });
}

TEST_F(StateEditTest, OneLimitIsShownAtATime) {
    Open([&] {
        ClickTab(2);
        Choose("optStartTiming");
        Choose("optTimeCONST");
        EXPECT_TRUE(IsShown("fraTimeCONST"));
        EXPECT_FALSE(IsShown("fraTimeVAR"));
        Choose("optTimeVAR");
        EXPECT_FALSE(IsShown("fraTimeCONST"));
        EXPECT_TRUE(IsShown("fraTimeVAR"));
        Cancel();
    });
}

TEST_F(StateEditTest, UndoInAPaneDoesNotBringTheCodeOfTheStateBefore) {
    Open([&] { Cancel(); });
    state.EntryCode = "\tOther\r\n";
    Open([&] {
        QTest::keyClick(&Control<CodePane>("txtEntryCode"), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Control<CodePane>("txtEntryCode").Text(), "\tOther\r\n");
        Cancel();
    });
}

TEST_F(StateEditTest, ComingBackToTheEditorLeavesItsTabAlone) {
    Open([&] {
        ClickTab(1);
        QShowEvent restored; // as the system sends it when a minimised window comes back
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(&dialog, &restored);
        EXPECT_EQ(Tabs().currentIndex(), 1);
        Cancel();
    });
}

} // namespace
} // namespace orvane
