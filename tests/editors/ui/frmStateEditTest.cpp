// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmStateEdit.h"

#include "core/TimingMode.h"
#include "editors/TimingHelp.h"
#include "editors/ui/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/Typing.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class StateEditTest : public testing::Test {
  protected:
    StateEditTest() {
        state.Name = "Idle";
        state.Tooltip = "waits\r\nfor work";
        state.EntryCode = "\tNop\r\n";
        state.ExitCode = "leave";
        state.TimeConst = "7";
        state.TimingVar = "\tLoadW\tLimit";
        state.TimerId = "T9";
        state.Targets[6] = 4;
        state.Actions[6] = "action";
        state.ColWidth = 1200;
    }

    // Opens the state, runs the script while the dialog is up and returns when it has closed.
    void Open(const std::function<void()>& script, int row = 0) {
        InNextDialog(Answers, [&](QWidget&) { script(); });
        dialog.Execute(row, state);
    }

    template <typename T>
    T& Control(const char* name) {
        return Named<T>(dialog, name);
    }
    QTabWidget& Tabs() { return Control<QTabWidget>("SSTab1"); }
    QString Panel3() { return Control<QLabel>("Panel3").text(); }
    bool IsOn(const char* option) { return Control<QRadioButton>(option).isChecked(); }
    bool IsShown(const char* frame) { return Control<QGroupBox>(frame).isVisible(); }
    void Choose(const char* option) {
        QTest::mouseClick(&Control<QRadioButton>(option), Qt::LeftButton, {}, QPoint(8, 8));
    }
    void ClickTab(int tab) {
        QTest::mouseClick(Tabs().tabBar(), Qt::LeftButton, {}, Tabs().tabBar()->tabRect(tab).center());
    }
    void TypeInto(const char* field, const QString& text) {
        auto& edit = Control<QLineEdit>(field);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    void OK() { Press(dialog, "cmdOK"); }
    void Cancel() { Press(dialog, "cmdCancel"); }

    StateRecord state;
    DialogAnswer Answers;
    frmStateEdit dialog;
};

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

TEST_F(StateEditTest, TabsFocusTheirPanes) {
    Open([&] {
        ClickTab(3);
        EXPECT_EQ(QApplication::focusWidget(), &Control<CodePane>("txtExitCode"));
        ClickTab(0);
        EXPECT_EQ(QApplication::focusWidget(), &Control<CodePane>("txtEntryCode"));
        Control<QLineEdit>("txtName").setFocus();
        ClickTab(0);
        EXPECT_EQ(QApplication::focusWidget(), &Control<CodePane>("txtEntryCode"));
        Cancel();
    });
}

TEST_F(StateEditTest, TheReadOutFollowsTheEntryPaneAndStaysOnTabsWithoutOne) {
    Open([&] {
        EXPECT_EQ(Panel3(), QStringLiteral("Line 1, Col 1"));
        QTest::keyClicks(&Control<CodePane>("txtEntryCode"), QStringLiteral("ab"));
        EXPECT_EQ(Panel3(), QStringLiteral("Line 1, Col 3"));
        ClickTab(1);
        EXPECT_EQ(Panel3(), QStringLiteral("Line 1, Col 3"));
        QTest::mouseClick(Control<QPlainTextEdit>("txtComment").viewport(), Qt::LeftButton);
        EXPECT_EQ(Panel3(), QStringLiteral("Line 1, Col 3"));
        Control<CodePane>("txtEntryCode").setText(QStringLiteral("x"));
        EXPECT_EQ(Panel3(), QString()) << "a read-out on a tab without a pane";
        Cancel();
    });
}

TEST_F(StateEditTest, TypingInTheExitPaneTellsNothing) {
    Open([&] {
        ClickTab(3);
        Control<QLabel>("Panel3").setText(QStringLiteral("as before"));
        QSignalSpy edits(&dialog, &frmStateEdit::Edited);
        auto& pane = Control<CodePane>("txtExitCode");
        QTest::keyClicks(&pane, QStringLiteral("abc"));
        QTest::mouseClick(pane.viewport(), Qt::LeftButton);
        QTest::keyClick(&pane, Qt::Key_H, Qt::ControlModifier);
        EXPECT_EQ(edits.size(), 0);
        EXPECT_EQ(Panel3(), QStringLiteral("as before"));
        EXPECT_EQ(pane.Text(), "abcleave");
        EXPECT_EQ(dialog.findChild<QDialog*>(), nullptr);
        Cancel();
    });
}

TEST_F(StateEditTest, EveryOtherEditIsToldOnce) {
    Open([&] {
        QSignalSpy edits(&dialog, &frmStateEdit::Edited);
        const auto edit = [&](const std::function<void()>& act) {
            edits.clear();
            act();
            return edits.size();
        };
        EXPECT_EQ(edit([&] { QTest::keyClicks(&Control<QLineEdit>("txtName"), QStringLiteral("x")); }), 1);
        EXPECT_EQ(edit([&] { QTest::keyClicks(&Control<CodePane>("txtEntryCode"), QStringLiteral("x")); }),
                  1);
        for (const char* field : {"txtTimerID", "txtTimeCONST"})
            EXPECT_EQ(edit([&] { QTest::keyClicks(&Control<QLineEdit>(field), QStringLiteral("x")); }), 1);
        for (const char* field : {"txtComment", "txtTimeVAR"})
            EXPECT_EQ(edit([&] { QTest::keyClicks(&Control<QPlainTextEdit>(field), QStringLiteral("x")); }),
                      1);
        ClickTab(2);
        for (const char* option :
             {"optStartTiming", "optTimeCONST", "optTimeVAR", "optContinueTiming", "optNoTimeOut"})
            EXPECT_EQ(edit([&] { Choose(option); }), 1) << option;
        Cancel();
    });
}

TEST_F(StateEditTest, OpeningAndCancellingTellNoEdit) {
    state.TimingMode = kStartConstant;
    QSignalSpy edits(&dialog, &frmStateEdit::Edited);
    Open([&] { Cancel(); });
    EXPECT_EQ(edits.size(), 0);
}

TEST_F(StateEditTest, TabNeverMovesTheFocusOnceAPaneHadIt) {
    auto& name = Control<QLineEdit>("txtName");
    for (int use = 0; use < 2; ++use)
        Open([&] {
            name.setFocus();
            QTest::keyClick(&name, Qt::Key_Tab);
            EXPECT_EQ(QApplication::focusWidget(), &name) << use;
            QTest::keyClick(&name, Qt::Key_Backtab, Qt::ShiftModifier);
            EXPECT_EQ(QApplication::focusWidget(), &name) << use;
            ClickTab(2);
            Choose("optNoTimeOut");
            QTest::keyClick(&Control<QRadioButton>("optNoTimeOut"), Qt::Key_Tab);
            EXPECT_EQ(QApplication::focusWidget(), &Control<QRadioButton>("optNoTimeOut")) << use;
            EXPECT_EQ(name.text(), QStringLiteral("Idle"));
            Cancel();
        });
}

TEST_F(StateEditTest, TabTypesATabCharacterInPanesAndTextFields) {
    Open([&] {
        QTest::keyClick(&Control<CodePane>("txtEntryCode"), Qt::Key_Tab);
        ClickTab(1);
        QTest::keyClick(&Control<QPlainTextEdit>("txtComment"), Qt::Key_Tab);
        OK();
    });
    EXPECT_EQ(state.EntryCode, "\t\tNop\r\n");
    EXPECT_EQ(state.Tooltip, "\twaits\r\nfor work");
}

TEST_F(StateEditTest, F1OpensTheHelpPageAndTypesNothing) {
    OpenedAddresses opened;
    Open([&] {
        auto& pane = Control<CodePane>("txtEntryCode");
        QTest::keyClick(&pane, Qt::Key_F1);
        QTest::keyClick(&pane, Qt::Key_F1, Qt::ShiftModifier);
        QTest::keyClick(&pane, Qt::Key_F1, Qt::ControlModifier);
        EXPECT_EQ(pane.Text(), "\tNop\r\n");
        Cancel();
    });
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_EQ(opened.Addresses[0].fileName(), QStringLiteral("4944.htm"));
}

TEST_F(StateEditTest, CtrlHFindsInTheEntryPaneAndDoesNothingInPlainFields) {
    Open([&] {
        QTest::keyClick(&Control<QLineEdit>("txtName"), Qt::Key_H, Qt::ControlModifier);
        EXPECT_EQ(dialog.findChild<QDialog*>(), nullptr);
        QTest::keyClick(&Control<CodePane>("txtEntryCode"), Qt::Key_H, Qt::ControlModifier);
        auto* find = dialog.findChild<QDialog*>(QStringLiteral("FindReplaceDialog"));
        ASSERT_NE(find, nullptr);
        EXPECT_TRUE(find->isVisible());
        Cancel();
        EXPECT_FALSE(find->isVisible()) << "it goes with its dialog";
    });
}

TEST_F(StateEditTest, TabsThatTheTableDoesNotShowAreHidden) {
    Open([&] {
        for (int tab = 0; tab < 4; ++tab)
            EXPECT_TRUE(Tabs().isTabVisible(tab)) << tab;
        Cancel();
    });
    dialog.SetTimeoutTabVisible(false);
    dialog.SetExitTabVisible(false);
    Open([&] {
        EXPECT_FALSE(Tabs().isTabVisible(2));
        EXPECT_FALSE(Tabs().isTabVisible(3));
        Cancel();
    });
}

TEST_F(StateEditTest, EveryFieldSaysWhatItLeavesOut) {
    Open([&] {
        auto& statusBar = Control<QStatusBar>("StatusBar1");
        for (const char* field : {"txtName", "txtTimerID", "txtTimeCONST", "txtComment", "txtTimeVAR",
                                  "txtEntryCode", "txtExitCode"}) {
            statusBar.clearMessage();
            ClickTab(field == std::string_view("txtExitCode") ? 3 : 0);
            auto& edit = Control<QWidget>(field);
            TypeAnyText(edit, QStringLiteral("\u03A9"));
            EXPECT_EQ(statusBar.currentMessage(),
                      QStringLiteral("Left out, because a document cannot hold it: \u03A9"))
                << field;
        }
        Control<QLineEdit>("txtName").insert(QStringLiteral("a\u00A4b\r\nc"));
        OK();
    });
    EXPECT_EQ(state.Name, "ab cIdle");
    EXPECT_EQ(state.TimerId, "T9");
    EXPECT_EQ(state.Tooltip, "waits\r\nfor work");
    Open([&] {
        EXPECT_EQ(Control<QStatusBar>("StatusBar1").currentMessage(), QString());
        Cancel();
    });
}

TEST_F(StateEditTest, PanesGrowWithTheDialog) {
    Open([&] {
        const QSize before = Control<CodePane>("txtEntryCode").size();
        dialog.resize(dialog.size() + QSize(200, 150));
        QCoreApplication::processEvents();
        EXPECT_EQ(Control<CodePane>("txtEntryCode").size(), before + QSize(200, 150));
        Cancel();
    });
}

TEST_F(StateEditTest, CapsLockIsShownByTheLettersThatAreTyped) {
    Open([&] {
        auto& caps = Control<QLabel>("Panel1");
        EXPECT_EQ(caps.text(), QStringLiteral("CAPS"));
        EXPECT_FALSE(caps.isEnabled());
        QKeyEvent capital(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("A"));
        QApplication::sendEvent(&Control<CodePane>("txtEntryCode"), &capital);
        EXPECT_TRUE(caps.isEnabled());
        QKeyEvent shifted(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
        QApplication::sendEvent(&Control<CodePane>("txtEntryCode"), &shifted);
        EXPECT_FALSE(caps.isEnabled());
        Cancel();
    });
}

} // namespace
} // namespace orvane
