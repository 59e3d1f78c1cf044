// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/StateEditFixture.h"

namespace orvane {
namespace {

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
