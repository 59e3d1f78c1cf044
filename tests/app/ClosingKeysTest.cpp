// SPDX-License-Identifier: GPL-3.0-or-later
// Leaving what stands over the table, by keys.
#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/PopUpFixture.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>

namespace orvane {
namespace {

class ClosingKeys : public PopUpFixture {
  protected:
    static QWidget* SideWindow(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String(name) && window->isVisible())
                return window;
        }
        return nullptr;
    }
    // Whether each of the two keys closes what the command opens, pressed where the focus is then.
    void ExpectClosedByKeys(const char* command, const char* name) {
        for (const auto& [key, modifiers] :
             {std::pair{Qt::Key_Escape, Qt::KeyboardModifiers()},
              std::pair{Qt::Key_W, Qt::KeyboardModifiers(Qt::ControlModifier)}}) {
            Trigger(command);
            QWidget* window = SideWindow(name);
            ASSERT_NE(window, nullptr) << name;
            window->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(window)) << name;
            QWidget* focus = window->focusWidget();
            QTest::keyClick(focus != nullptr ? focus : window, key, modifiers);
            EXPECT_FALSE(window->isVisible()) << name << " " << key;
        }
    }
};

TEST_F(ClosingKeys, SideWindowsAreClosedByEscAndCtrlW) {
    StartOn(PumpDocument());
    ExpectClosedByKeys("mnuCodeGenerate", "frmGenerator"); // also from the code that is only read
    ExpectClosedByKeys("mnuBuilder", "frmBuilder");
    ExpectClosedByKeys("mnuCompareWith", "frmCompare");
    ExpectClosedByKeys("mnuFRecover", "frmRecovery");
    Choose(0, 1, "mnuBacktrack");
    QWidget* backtrack = SideWindow("frmBackTrack");
    ASSERT_NE(backtrack, nullptr);
    backtrack->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(backtrack));
    QTest::keyClick(&Named<QWidget>(*backtrack, "MSFlexGrid1"), Qt::Key_Escape);
    EXPECT_FALSE(backtrack->isVisible());
}

TEST_F(ClosingKeys, FindAndReplaceIsClosedByBoth) {
    StartOn(PumpDocument());
    Trigger("mnuViewCell");
    auto& pane = Named<CodePane>(Window(), "txtCellEntry");
    for (const auto& [key, modifiers] : {std::pair{Qt::Key_Escape, Qt::KeyboardModifiers()},
                                         std::pair{Qt::Key_W, Qt::KeyboardModifiers(Qt::ControlModifier)}}) {
        pane.setFocus();
        QTest::keyClick(&pane, Qt::Key_H, Qt::ControlModifier);
        auto& find = Named<QWidget>(pane, "FindReplaceDialog");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&find));
        EXPECT_EQ(Named<QLabel>(find, "lblEdited").text(), QStringLiteral("Entry action"));
        QTest::keyClick(&Named<QWidget>(find, "txtFind"), key, modifiers);
        EXPECT_FALSE(find.isVisible());
    }
}

TEST_F(ClosingKeys, F1InFindAndReplaceOpensItsOwnPage) {
    StartOn(PumpDocument());
    Trigger("mnuViewCell");
    auto& pane = Named<CodePane>(Window(), "txtCellEntry");
    pane.setFocus();
    QTest::keyClick(&pane, Qt::Key_H, Qt::ControlModifier);
    auto& find = Named<QWidget>(pane, "FindReplaceDialog");
    // Whose shortcuts count is known a moment after the window has the focus.
    ASSERT_TRUE(QTest::qWaitFor([&find] { return QApplication::activeWindow() == &find; }));
    OpenedAddresses opened;
    QTest::keyClick(&Named<QWidget>(find, "txtFind"), Qt::Key_F1);
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_EQ(opened.Addresses.front().fileName(), QStringLiteral("4985.htm"));
}

TEST_F(ClosingKeys, EscAsksBeforeItDropsAChangedAction) {
    StartOn(PumpDocument());
    Answers.Do([this](QWidget& dialog) {
        auto& code = Named<QPlainTextEdit>(dialog, "txtCode");
        QTest::keyClicks(&code, QStringLiteral(";x"));
        Answers.Press(QMessageBox::No);
        QTest::keyClick(&code, Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(code.toPlainText().startsWith(QStringLiteral(";x")));
        Answers.Press(QMessageBox::Yes);
        QTest::keyClick(&code, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    Choose(7, 2, "mnuEditTransAct");
    EXPECT_EQ(SavedDocument().State(2).Actions[7], ";stop action");
}

TEST_F(ClosingKeys, EscClosesAnActionThatWasOnlyReadWithoutAWord) {
    StartOn(PumpDocument());
    Answers.Do([](QWidget& dialog) {
        QTest::keyClick(&Named<QWidget>(dialog, "txtCode"), Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    Choose(7, 2, "mnuEditTransAct");
    EXPECT_EQ(Answers.Seen().size(), 1u);
}

} // namespace
} // namespace orvane
