// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmTransitionAction.h"

#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/Typing.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class TransitionActionTest : public testing::Test {
  protected:
    void Open(const std::function<void()>& script) {
        InNextDialog(Answers, [&](QWidget&) { script(); });
        dialog.Execute();
    }
    QPlainTextEdit& Code() { return Named<QPlainTextEdit>(dialog, "txtCode"); }
    void Type(const QString& text) { QTest::keyClicks(&Code(), text); }

    DialogAnswer Answers;
    frmTransitionAction dialog;
};

TEST_F(TransitionActionTest, OkTakesWhatWasTyped) {
    dialog.SetCode("\tNop\r\n");
    Open([&] {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Transition action"));
        EXPECT_EQ(Named<QLabel>(dialog, "lblPrompt").text(),
                  QStringLiteral("This code will be executed during the transition from the current state to "
                                 "the target state"));
        EXPECT_EQ(QApplication::focusWidget(), &Code());
        Code().moveCursor(QTextCursor::End);
        QTest::keyClick(&Code(), Qt::Key_Tab);
        Type(QStringLiteral("Set"));
        QTest::keyClick(&Code(), Qt::Key_Return);
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(dialog.Code(), "\tNop\r\n\tSet\r\n");
}

TEST_F(TransitionActionTest, CancelRestoresWhatTheDialogCameUpWithEachTime) {
    dialog.SetCode("first");
    Open([&] {
        Type(QStringLiteral("x"));
        Press(dialog, "cmdCancel");
    });
    EXPECT_EQ(dialog.Code(), "first");
    dialog.SetCode("second");
    Open([&] {
        Type(QStringLiteral("x"));
        dialog.close();
    });
    EXPECT_EQ(dialog.Code(), "second");
    Open([&] {
        Type(QStringLiteral("x"));
        Answers.Press(QMessageBox::Yes); // drops it
        QTest::keyClick(&Code(), Qt::Key_Escape);
    });
    EXPECT_EQ(dialog.Code(), "second");
}

TEST_F(TransitionActionTest, OkWithAnEmptiedFieldIsAnEmptyAction) {
    dialog.SetCode("gone");
    Open([&] {
        Code().selectAll();
        QTest::keyClick(&Code(), Qt::Key_Delete);
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(dialog.Code(), "");
}

TEST_F(TransitionActionTest, CodeThatIsNotEditedComesBackByteForByte) {
    for (const std::string& code : {std::string("a\nb\rc\r\n"), std::string("no\xA0"
                                                                            "break \xA4")}) {
        dialog.SetCode(code);
        Open([&] { Press(dialog, "cmdOK"); });
        EXPECT_EQ(dialog.Code(), code);
    }
}

TEST_F(TransitionActionTest, NoBreakSpacesSurviveAnEdit) {
    dialog.SetCode("a\xA0z");
    Open([&] {
        Type(QStringLiteral("x"));
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(dialog.Code(), "xa\xA0z");
}

TEST_F(TransitionActionTest, EachEditIsToldOnceAndSettingTheCodeIsNone) {
    QSignalSpy edits(&dialog, &frmTransitionAction::Edited);
    dialog.SetCode("code");
    Open([&] {
        EXPECT_EQ(edits.size(), 0);
        Type(QStringLiteral("ab"));
        EXPECT_EQ(edits.size(), 2);
        Press(dialog, "cmdCancel");
    });
    EXPECT_EQ(edits.size(), 2);
}

TEST_F(TransitionActionTest, TabNeverMovesTheFocus) {
    Open([&] {
        auto& ok = Named<QPushButton>(dialog, "cmdOK");
        ok.setFocus();
        QTest::keyClick(&ok, Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &ok);
        Press(dialog, "cmdCancel");
    });
}

TEST_F(TransitionActionTest, F1OpensTheEventEditorsHelpPage) {
    OpenedAddresses opened;
    Open([&] {
        QTest::keyClick(&Code(), Qt::Key_F1);
        QTest::keyClick(&Code(), Qt::Key_F1, Qt::ShiftModifier);
        QTest::keyClick(&Code(), Qt::Key_H, Qt::ControlModifier);
        EXPECT_EQ(dialog.findChild<QDialog*>(), nullptr);
        Press(dialog, "cmdCancel");
    });
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_EQ(opened.Addresses[0].fileName(), QStringLiteral("4943.htm"));
}

TEST_F(TransitionActionTest, CharactersLeftOutAreNamedBelowTheField) {
    dialog.SetCode("a");
    Open([&] {
        auto& note = Named<QLabel>(dialog, "lblLeftOut");
        EXPECT_FALSE(note.isVisible());
        TypeAnyText(Code(), QStringLiteral("\u03A9"));
        EXPECT_TRUE(note.isVisible());
        EXPECT_TRUE(note.text().endsWith(QStringLiteral("\u03A9")));
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(dialog.Code(), "a");
}

} // namespace
} // namespace orvane
