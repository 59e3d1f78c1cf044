// SPDX-License-Identifier: GPL-3.0-or-later
// Every control of every window can be reached without a mouse, in the order in which the window is read.
#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

namespace orvane {
namespace {

using Names = std::vector<std::string>;

class Keyboard : public TableFixture {
  protected:
    // Where F6 leads, from the control that has the focus once around.
    static Names Round(QWidget& window, Qt::KeyboardModifiers modifiers = {}) {
        window.activateWindow();
        QApplication::processEvents();
        const QWidget* first = QApplication::focusWidget();
        Names names;
        do {
            names.push_back(QApplication::focusWidget()->objectName().toStdString());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        } while (QApplication::focusWidget() != first && names.size() < 20);
        return names;
    }

    static QTabWidget* Tabs(QWidget& dialog) {
        return dialog.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    }
};

const std::string kTabs = "qt_tabwidget_tabbar";

TEST_F(Keyboard, F6GoesThroughTheGeneralCodeEditor) {
    StartOn(PumpDocument());
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Round(dialog), (Names{"txtCodeSeg", "cmdOK", "cmdCancel", "txtName", kTabs}));
        EXPECT_EQ(Round(dialog, Qt::ShiftModifier),
                  (Names{"txtCodeSeg", kTabs, "txtName", "cmdCancel", "cmdOK"}));
        Tabs(dialog)->setCurrentIndex(5);
        dialog.findChild<QWidget*>(QStringLiteral("chkLAUNCHSEG"))->setFocus();
        EXPECT_EQ(Round(dialog), (Names{"chkLAUNCHSEG", "cmdOK", "cmdCancel", "txtName", kTabs}));
        Press(dialog, "cmdCancel");
    });
    Click(0, 0);
}

TEST_F(Keyboard, F6ComesToASuggestionBeforeItsPane) {
    FsmDocument document = PumpDocument();
    document.View.Polytask = true;
    document.General.CodeSeg.clear();
    StartOn(document);
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Round(dialog),
                  (Names{"txtCodeSeg", "cmdOK", "cmdCancel", "txtName", kTabs, "cmdAcceptCodeSuggestion"}));
        Press(dialog, "cmdCancel");
    });
    Click(0, 0);
}

TEST_F(Keyboard, F6GoesThroughTheEventEditor) {
    StartOn(PumpDocument());
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Round(dialog), (Names{"txtEventCode", "cmdOK", "cmdCancel", "txtName", kTabs}));
        Press(dialog, "cmdCancel");
    });
    Click(6, 0);
}

TEST_F(Keyboard, F6LeadsFromTheCoveredCodeOfAnEventToItsComment) {
    StartOn(PumpDocument());
    InNextDialog(Answers, [](QWidget& dialog) {
        dialog.activateWindow();
        QApplication::processEvents();
        Tabs(dialog)->tabBar()->setFocus();
        QTest::keyClick(Tabs(dialog)->tabBar(), Qt::Key_Right);
        EXPECT_EQ(Tabs(dialog)->currentIndex(), 1);
        EXPECT_EQ(Round(dialog).at(1), "txtComment");
        Press(dialog, "cmdCancel");
    });
    Click(6, 0);
}

TEST_F(Keyboard, F6GoesThroughTheTimeoutOfAState) {
    StartOn(PumpDocument());
    InNextDialog(Answers, [](QWidget& dialog) {
        Tabs(dialog)->setCurrentIndex(2);
        dialog.findChild<QRadioButton*>(QStringLiteral("optStartTiming"))->click();
        dialog.findChild<QRadioButton*>(QStringLiteral("optTimeVAR"))->click();
        Tabs(dialog)->tabBar()->setFocus();
        // Of options that exclude one another the chosen one; the arrow keys choose another.
        EXPECT_EQ(Round(dialog), (Names{kTabs, "optStartTiming", "txtTimerID", "cmdTimeHelp", "optTimeVAR",
                                        "txtTimeVAR", "cmdOK", "cmdCancel", "txtName"}));
        Press(dialog, "cmdCancel");
    });
    Click(0, 1);
}

TEST_F(Keyboard, F6GoesThroughTheTransitionAction) {
    StartOn(PumpDocument());
    Click(6, 1, Qt::RightButton);
    PoppedUp();
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Round(dialog), (Names{"txtCode", "cmdOK", "cmdCancel"}));
        Press(dialog, "cmdCancel");
    });
    Trigger("mnuEditTransAct");
}

TEST_F(Keyboard, F6GoesThroughTheBuilderWindow) {
    StartOn(PumpDocument());
    Trigger("mnuBuilder");
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto builder = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->objectName() == QStringLiteral("frmBuilder") && window->isVisible();
    });
    ASSERT_NE(builder, windows.end());
    EXPECT_EQ(Round(**builder),
              (Names{"txtBuildScript", "txtPrompt", "txtFileName", "cmdSelectFile", "cmdSave", "cmdRun"}));
}

TEST_F(Keyboard, TabIsTypedIntoCodeAndDoesNotLeaveIt) {
    StartOn(PumpDocument());
    InNextDialog(Answers, [](QWidget& dialog) {
        Round(dialog); // the pane has had the focus
        auto* pane = dialog.findChild<CodePane*>(QStringLiteral("txtEventCode"));
        QTest::keyClick(pane, Qt::Key_Tab);
        EXPECT_TRUE(pane->hasFocus());
        EXPECT_NE(pane->Text().find('\t'), std::string::npos);
        Press(dialog, "cmdCancel");
    });
    Click(6, 0);
}

} // namespace
} // namespace orvane
