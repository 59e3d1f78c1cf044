// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmEventEdit.h"

#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/Typing.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class EventEditTest : public testing::Test {
  protected:
    void Open(const std::function<void()>& script) {
        InNextDialog(Answers, [&](QWidget&) { script(); });
        dialog.Execute(event);
    }

    QTabWidget& Tabs() { return Named<QTabWidget>(dialog, "SSTab1"); }
    QLineEdit& Name() { return Named<QLineEdit>(dialog, "txtName"); }
    CodePane& Code() { return Named<CodePane>(dialog, "txtEventCode"); }
    QPlainTextEdit& Comment() { return Named<QPlainTextEdit>(dialog, "txtComment"); }
    QString Panel(const char* name) { return Named<QLabel>(dialog, name).text(); }
    void ClickTab(int tab) {
        QTest::mouseClick(Tabs().tabBar(), Qt::LeftButton, {}, Tabs().tabBar()->tabRect(tab).center());
    }

    EventRecord event{"Full", "\tTest\r\n", "tank is full", 0};
    DialogAnswer Answers;
    frmEventEdit dialog;
};

TEST_F(EventEditTest, ShowsTheEventAndTakesItUnchangedOnOk) {
    const EventRecord before = event;
    Open([&] {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Event Definition"));
        EXPECT_EQ(Name().text(), QStringLiteral("Full"));
        EXPECT_EQ(Code().Text(), "\tTest\r\n");
        EXPECT_EQ(Comment().toPlainText(), QStringLiteral("tank is full"));
        EXPECT_EQ(Tabs().tabText(0), QStringLiteral("Code"));
        EXPECT_EQ(Tabs().tabText(1), QStringLiteral("ToolTip"));
        EXPECT_EQ(Panel("lblCodePrompt"),
                  QStringLiteral("Enter code here that evaluates to TRUE when the event happens"));
        EXPECT_EQ(Panel("lblTooltipPrompt"),
                  QStringLiteral("This text become a tooltip style comment for the event. It has no effect "
                                 "on the program"));
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(event, before);
}

TEST_F(EventEditTest, OkOnTheTooltipTabStoresItButTheNextOpeningIsOnCode) {
    Open([&] {
        ClickTab(1);
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(event.LastTab, 1);
    Open([&] {
        EXPECT_EQ(Tabs().currentIndex(), 0);
        EXPECT_EQ(QApplication::focusWidget(), &Code());
        Press(dialog, "cmdCancel");
    });
    EXPECT_EQ(event.LastTab, 1);
}

TEST_F(EventEditTest, CtrlReturnInTheCodeIsOkAndTypesNothing) {
    Open([&] {
        Name().setText(QStringLiteral("Empty"));
        Code().setFocus();
        QTest::keyClick(&Code(), Qt::Key_Return, Qt::ControlModifier);
    });
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(event.Name, "Empty");
    EXPECT_EQ(event.Code, "\tTest\r\n");
}

TEST_F(EventEditTest, CancelAfterEditingEverythingLeavesTheEventAsItWas) {
    const EventRecord before = event;
    const auto edit = [&] {
        QTest::keyClicks(&Name(), QStringLiteral("x"));
        QTest::keyClicks(&Code(), QStringLiteral("x"));
        ClickTab(1);
        QTest::keyClicks(&Comment(), QStringLiteral("x"));
    };
    Open([&] {
        edit();
        Press(dialog, "cmdCancel");
    });
    EXPECT_EQ(event, before);
    Open([&] {
        edit();
        dialog.close();
    });
    EXPECT_EQ(event, before);
    Open([&] {
        edit();
        QTest::keyClick(&Name(), Qt::Key_Escape);
    });
    EXPECT_EQ(event, before);
}

TEST_F(EventEditTest, BlankLinesOfTheCodeAreStoredAsTyped) {
    event = {};
    Open([&] {
        QTest::keyClicks(&Code(), QStringLiteral("A"));
        for (int line = 0; line < 3; ++line)
            QTest::keyClick(&Code(), Qt::Key_Return);
        QTest::keyClicks(&Code(), QStringLiteral("B"));
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(event.Code, "A\r\n\r\n\r\nB");
}

TEST_F(EventEditTest, AnEmptyEventIsAccepted) {
    Open([&] {
        Name().clear();
        Code().setText({});
        Comment().clear();
        Press(dialog, "cmdOK");
    });
    EXPECT_TRUE(IsEmpty(event));
}

TEST_F(EventEditTest, OvertypeIsShownAsInsOrOvr) {
    Open([&] {
        EXPECT_EQ(Panel("Panel2"), QStringLiteral("Ins"));
        QTest::keyClick(&Code(), Qt::Key_Insert);
        EXPECT_EQ(Panel("Panel2"), QStringLiteral("Ovr"));
        QTest::keyClick(&Code(), Qt::Key_Insert);
        EXPECT_EQ(Panel("Panel2"), QStringLiteral("Ins"));
        Press(dialog, "cmdCancel");
    });
}

TEST_F(EventEditTest, TheReadOutIsThatOfTheCodeOnBothTabs) {
    Open([&] {
        EXPECT_EQ(Panel("Panel3"), QStringLiteral("Line 1, Col 1"));
        ClickTab(1);
        Code().setCursorPosition(1, 0);
        Code().setText(QStringLiteral("new"));
        EXPECT_EQ(Panel("Panel3"), QStringLiteral("Line 1, Col 1"));
        ClickTab(0);
        QTest::keyClicks(&Code(), QStringLiteral("ab"));
        EXPECT_EQ(Panel("Panel3"), QStringLiteral("Line 1, Col 3"));
        Press(dialog, "cmdCancel");
    });
}

TEST_F(EventEditTest, EitherTabFocusesTheCodeWhichTakesNoKeysWhileItIsCovered) {
    Open([&] {
        ClickTab(1);
        EXPECT_EQ(QApplication::focusWidget(), &Code());
        QTest::keyClicks(&Code(), QStringLiteral("lost"));
        EXPECT_EQ(Code().Text(), "\tTest\r\n");
        QTest::mouseClick(Comment().viewport(), Qt::LeftButton);
        EXPECT_EQ(QApplication::focusWidget(), &Comment());
        ClickTab(0);
        EXPECT_EQ(QApplication::focusWidget(), &Code());
        Press(dialog, "cmdCancel");
    });
}

TEST_F(EventEditTest, ReturnToTheCoveredCodeDoesNotCloseTheDialog) {
    Open([&] {
        ClickTab(1);
        QTest::keyClick(&Code(), Qt::Key_Return);
        QTest::keyClick(&Code(), Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Code().Text(), "\tTest\r\n");
        QTest::keyClick(&Code(), Qt::Key_Return, Qt::ControlModifier);
    });
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(event.LastTab, 1);
}

TEST_F(EventEditTest, EachEditIsToldOnce) {
    QSignalSpy edits(&dialog, &frmEventEdit::Edited);
    Open([&] {
        EXPECT_EQ(edits.size(), 0);
        QTest::keyClicks(&Name(), QStringLiteral("x"));
        EXPECT_EQ(edits.size(), 1);
        QTest::keyClicks(&Code(), QStringLiteral("x"));
        EXPECT_EQ(edits.size(), 2);
        QTest::keyClicks(&Comment(), QStringLiteral("x"));
        EXPECT_EQ(edits.size(), 3);
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(edits.size(), 3);
}

TEST_F(EventEditTest, TabNeverMovesTheFocus) {
    Open([&] {
        Name().setFocus();
        QTest::keyClick(&Name(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &Name());
        Press(dialog, "cmdCancel");
    });
}

TEST_F(EventEditTest, F1OpensTheHelpPage) {
    OpenedAddresses opened;
    Open([&] {
        QTest::keyClick(&Code(), Qt::Key_F1);
        QTest::keyClick(&Name(), Qt::Key_F1, Qt::ControlModifier);
        Press(dialog, "cmdCancel");
    });
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_EQ(opened.Addresses[0].fileName(), QStringLiteral("4943.htm"));
}

TEST_F(EventEditTest, CtrlHOpensFindAndReplaceForTheCode) {
    Open([&] {
        QTest::keyClick(&Code(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(dialog.findChild<QDialog*>(), nullptr);
        QTest::keyClick(&Code(), Qt::Key_H, Qt::ControlModifier);
        EXPECT_NE(dialog.findChild<QDialog*>(QStringLiteral("FindReplaceDialog")), nullptr);
        Press(dialog, "cmdCancel");
    });
}

TEST_F(EventEditTest, TheStatusBarSaysWhatIsLeftOut) {
    Open([&] {
        TypeAnyText(Code(), QStringLiteral("\u00A4"));
        EXPECT_EQ(Named<QStatusBar>(dialog, "StatusBar1").currentMessage(),
                  QStringLiteral("Left out, because a document cannot hold it: \u00A4"));
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(event.Code, "\tTest\r\n");
}

} // namespace
} // namespace orvane
