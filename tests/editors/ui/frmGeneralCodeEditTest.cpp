// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmGeneralCodeEdit.h"

#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/Typing.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <array>

namespace orvane {
namespace {

struct PaneOfTab {
    int Tab;
    const char* Name;
    std::string GeneralCode::*Text;
};

constexpr std::array<PaneOfTab, 5> kPanes = {{{0, "txtCodeSeg", &GeneralCode::CodeSeg},
                                              {1, "txtInitSeg", &GeneralCode::InitSeg},
                                              {2, "txtNV0Data", &GeneralCode::NvEm0Data},
                                              {3, "txtTestSeg", &GeneralCode::TestSeg},
                                              {4, "txtHeader", &GeneralCode::HeaderComment}}};

class GeneralCodeEditTest : public testing::Test {
  protected:
    void Open(bool polytask, const std::function<void()>& script) {
        InNextDialog(Answers, [&](QWidget&) { script(); });
        dialog.ShowGeneralCode(given);
        dialog.Execute(polytask);
        given = dialog.Code(); // as the document takes it over
    }

    template <typename T>
    T& Control(const char* name) {
        return Named<T>(dialog, name);
    }
    QTabWidget& Tabs() { return Control<QTabWidget>("SSTab1"); }
    QLineEdit& Name() { return Control<QLineEdit>("txtName"); }
    CodePane& Pane(const char* name) { return Control<CodePane>(name); }
    QString Text(const char* label) { return Control<QLabel>(label).text(); }
    bool IsShown(const char* frame) { return !Control<QGroupBox>(frame).isHidden(); }
    void ClickTab(int tab) {
        QTest::mouseClick(Tabs().tabBar(), Qt::LeftButton, {}, Tabs().tabBar()->tabRect(tab).center());
    }
    void OK() { Press(dialog, "cmdOK"); }
    void Cancel() { Press(dialog, "cmdCancel"); }

    GeneralCode given{"Pump", "header", "code", "init", "data", "test", "3", true, "pump.b1d"};
    DialogAnswer Answers;
    frmGeneralCodeEdit dialog;
    const GeneralCode& general = dialog.Code();
};

TEST_F(GeneralCodeEditTest, ShowsEveryPartOfTheGeneralCode) {
    Open(true, [&] {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("General code"));
        EXPECT_EQ(Name().text(), QStringLiteral("Pump"));
        for (const PaneOfTab& pane : kPanes)
            EXPECT_EQ(Pane(pane.Name).Text(), given.*pane.Text);
        EXPECT_TRUE(Control<QCheckBox>("chkLAUNCHSEG").isChecked());
        EXPECT_EQ(Control<QCheckBox>("chkLAUNCHSEG").text(),
                  QStringLiteral("Include ;<LAUNCHSEG> containing RunTasksForever"));
        EXPECT_EQ(Control<QLineEdit>("txtInstanceCount").text(), QStringLiteral("3"));
        OK();
    });
}

TEST_F(GeneralCodeEditTest, WithPolytaskEveryTabIsOfferedUnderItsSegmentsName) {
    Open(true, [&] {
        const QStringList captions = {QStringLiteral("CODESEG"),   QStringLiteral("INITSEG"),
                                      QStringLiteral("NVEM0DATA"), QStringLiteral("TESTSEG"),
                                      QStringLiteral("Header"),    QStringLiteral("LAUNCHSEG"),
                                      QStringLiteral("Instances")};
        ASSERT_EQ(Tabs().count(), captions.size());
        for (int tab = 0; tab < Tabs().count(); ++tab) {
            EXPECT_EQ(Tabs().tabText(tab), captions[tab]);
            EXPECT_TRUE(Tabs().isTabVisible(tab)) << tab;
        }
        EXPECT_EQ(
            Text("lblCodePrompt"),
            QStringLiteral("Enter code here that supports your FSM, such as GET/SET routines. This also "
                           "must include any code required to launch the actual FSM task."));
        EXPECT_EQ(Text("lblInstancePrompt"),
                  QStringLiteral("If you are using Polytask you may be launching multiple instances of this "
                                 "task. In that case the Instance Count setting will force the creation of "
                                 "that many automaticlly generated variables, such as timers."));
        OK();
    });
}

TEST_F(GeneralCodeEditTest, WithoutPolytaskOnlyTheStartupCodeIsOffered) {
    given.CodeSeg.clear();
    given.InitSeg.clear();
    Open(false, [&] {
        EXPECT_EQ(Tabs().tabText(0), QStringLiteral("Startup code"));
        EXPECT_EQ(Text("lblCodePrompt"),
                  QStringLiteral("Here you can enter any code needed at startup, before the main task gets "
                                 "under way."));
        for (int tab = 1; tab < Tabs().count(); ++tab)
            EXPECT_FALSE(Tabs().isTabVisible(tab)) << tab;
        EXPECT_FALSE(IsShown("fraCodeSuggestion"));
        EXPECT_FALSE(IsShown("fraInitSuggestion"));
        OK();
    });
    EXPECT_EQ(general.TestSeg, "test") << "what is not offered is kept";
}

TEST_F(GeneralCodeEditTest, EveryKeystrokeIsInTheGeneralCodeAtOnce) {
    Open(true, [&] {
        QTest::keyClicks(&Name(), QStringLiteral("s"));
        EXPECT_EQ(general.FsmName, "sPump");
        for (const PaneOfTab& pane : kPanes) {
            ClickTab(pane.Tab);
            QTest::keyClicks(&Pane(pane.Name), QStringLiteral("x"));
            EXPECT_EQ((general.*pane.Text).front(), 'x') << pane.Name;
        }
        ClickTab(5);
        QTest::mouseClick(&Control<QCheckBox>("chkLAUNCHSEG"), Qt::LeftButton, {}, QPoint(8, 8));
        EXPECT_FALSE(general.LaunchSeg);
        ClickTab(6);
        QTest::keyClicks(&Control<QLineEdit>("txtInstanceCount"), QStringLiteral("1"));
        EXPECT_EQ(general.Instances, "13");
        OK();
    });
    EXPECT_EQ(general.FsmName, "sPump");
}

TEST_F(GeneralCodeEditTest, CancelRestoresTheSixTextsButNotInstancesAndLaunchMark) {
    const GeneralCode before = given;
    const auto edit = [&] {
        QTest::keyClicks(&Name(), QStringLiteral("s"));
        for (const PaneOfTab& pane : kPanes) {
            ClickTab(pane.Tab);
            QTest::keyClicks(&Pane(pane.Name), QStringLiteral("x"));
        }
        ClickTab(5);
        QTest::mouseClick(&Control<QCheckBox>("chkLAUNCHSEG"), Qt::LeftButton, {}, QPoint(8, 8));
        ClickTab(6);
        QTest::keyClicks(&Control<QLineEdit>("txtInstanceCount"), QStringLiteral("1"));
    };
    Open(true, [&] {
        edit();
        Cancel();
    });
    GeneralCode expected = before;
    expected.Instances = "13";
    expected.LaunchSeg = false;
    EXPECT_EQ(general, expected);
    EXPECT_EQ(Name().text(), QStringLiteral("Pump"));
    EXPECT_EQ(Pane("txtHeader").Text(), "header");
    Open(true, [&] {
        edit();
        dialog.close();
    });
    EXPECT_EQ(general.FsmName, "Pump");
    EXPECT_EQ(general.Instances, "113");
}

TEST_F(GeneralCodeEditTest, TheCodeSuggestionFollowsTheNameOnEveryKeystroke) {
    given.FsmName.clear();
    given.CodeSeg.clear();
    Open(true, [&] {
        EXPECT_TRUE(IsShown("fraCodeSuggestion"));
        EXPECT_EQ(Text("lblSuggestCodeSeg"), QStringLiteral("XXX_Init:\tLaunchTask\tXXX_Launch"));
        QTest::keyClicks(&Name(), QStringLiteral("P"));
        EXPECT_EQ(Text("lblSuggestCodeSeg"), QStringLiteral("P_Init:\tLaunchTask\tP_Launch"));
        QTest::keyClicks(&Name(), QStringLiteral("u"));
        EXPECT_EQ(Text("lblSuggestCodeSeg"), QStringLiteral("Pu_Init:\tLaunchTask\tPu_Launch"));
        OK();
    });
}

TEST_F(GeneralCodeEditTest, TypingIntoTheEmptyCodeHidesTheSuggestionAndDeletingShowsIt) {
    given.CodeSeg.clear();
    Open(true, [&] {
        auto& pane = Pane("txtCodeSeg");
        QCoreApplication::processEvents();
        const int withFrame = pane.height();
        QTest::keyClicks(&pane, QStringLiteral("x"));
        EXPECT_FALSE(IsShown("fraCodeSuggestion"));
        QCoreApplication::processEvents();
        EXPECT_GT(pane.height(), withFrame) << "the pane takes the room";
        QTest::keyClick(&pane, Qt::Key_Backspace);
        EXPECT_TRUE(IsShown("fraCodeSuggestion"));
        QCoreApplication::processEvents();
        EXPECT_EQ(pane.height(), withFrame);
        Cancel();
    });
}

TEST_F(GeneralCodeEditTest, AcceptTakesTheSuggestionAndTellsIt) {
    given.CodeSeg.clear();
    given.InitSeg.clear();
    Open(true, [&] {
        QSignalSpy edits(&dialog, &frmGeneralCodeEdit::Edited);
        Press(dialog, "cmdAcceptCodeSuggestion");
        EXPECT_EQ(general.CodeSeg, "Pump_Init:\tLaunchTask\tPump_Launch");
        EXPECT_FALSE(IsShown("fraCodeSuggestion"));
        EXPECT_EQ(edits.size(), 1);
        EXPECT_EQ(QApplication::focusWidget(), &Pane("txtCodeSeg"));
        ClickTab(1);
        EXPECT_EQ(Text("lblSuggestInitSeg"), QStringLiteral("\tGoSub\tPump_Init"));
        Press(dialog, "cmdAcceptInitSuggestion");
        EXPECT_EQ(general.InitSeg, "\tGoSub\tPump_Init");
        EXPECT_FALSE(IsShown("fraInitSuggestion"));
        EXPECT_EQ(edits.size(), 2);
        EXPECT_EQ(QApplication::focusWidget(), &Pane("txtInitSeg"));
        OK();
    });
}

TEST_F(GeneralCodeEditTest, TabsFocusTheirPanesAndTheReadOutFollows) {
    Open(true, [&] {
        EXPECT_EQ(Tabs().currentIndex(), 0);
        for (const PaneOfTab& pane : kPanes) {
            ClickTab(pane.Tab);
            EXPECT_EQ(QApplication::focusWidget(), &Pane(pane.Name));
            QTest::keyClicks(&Pane(pane.Name), QStringLiteral("ab"));
            EXPECT_EQ(Text("Panel3"), QStringLiteral("Line 1, Col 3")) << pane.Name;
        }
        ClickTab(6);
        EXPECT_EQ(Text("Panel3"), QStringLiteral("Line 1, Col 3")) << "left as it was";
        Pane("txtCodeSeg").setText(QStringLiteral("x"));
        EXPECT_EQ(Text("Panel3"), QString()) << "a read-out on a tab without a pane";
        OK();
    });
    Open(true, [&] {
        EXPECT_EQ(Tabs().currentIndex(), 0) << "it always comes up on the code";
        EXPECT_EQ(QApplication::focusWidget(), &Pane("txtCodeSeg"));
        OK();
    });
}

TEST_F(GeneralCodeEditTest, EveryEditButThatOfTheInstancesIsToldOnce) {
    Open(true, [&] {
        QSignalSpy edits(&dialog, &frmGeneralCodeEdit::Edited);
        const auto edit = [&](const std::function<void()>& act) {
            edits.clear();
            act();
            return edits.size();
        };
        EXPECT_EQ(edit([&] { QTest::keyClicks(&Name(), QStringLiteral("x")); }), 1);
        for (const PaneOfTab& pane : kPanes) {
            EXPECT_EQ(edit([&] { ClickTab(pane.Tab); }), pane.Tab == 4 ? 1 : 0)
                << "the header tells its focus";
            EXPECT_EQ(edit([&] { QTest::keyClicks(&Pane(pane.Name), QStringLiteral("x")); }), 1);
        }
        ClickTab(5);
        EXPECT_EQ(edit([&] {
                      QTest::mouseClick(&Control<QCheckBox>("chkLAUNCHSEG"), Qt::LeftButton, {},
                                        QPoint(8, 8));
                  }),
                  1);
        EXPECT_EQ(
            edit([&] { QTest::keyClicks(&Control<QLineEdit>("txtInstanceCount"), QStringLiteral("x")); }), 0);
        OK();
    });
}

TEST_F(GeneralCodeEditTest, ClosingTellsOneEditWhicheverWayItIsClosed) {
    for (const char* button : {"cmdOK", "cmdCancel"}) {
        QSignalSpy edits(&dialog, &frmGeneralCodeEdit::Edited);
        Open(true, [&] { Press(dialog, button); });
        EXPECT_EQ(edits.size(), 1) << button;
    }
}

TEST_F(GeneralCodeEditTest, ShowingAnotherGeneralCodeTellsNoEditAndChangesNothing) {
    QSignalSpy edits(&dialog, &frmGeneralCodeEdit::Edited);
    const GeneralCode other{"Fan\xA4", "a\nb", "\xA0", "", "d", "e", "N", false, "fan.b1d"};
    dialog.ShowGeneralCode(other);
    EXPECT_EQ(edits.size(), 0);
    EXPECT_EQ(general, other);
    EXPECT_EQ(Pane("txtCodeSeg").Text(), "\xA0");
    EXPECT_FALSE(Control<QCheckBox>("chkLAUNCHSEG").isChecked());
}

TEST_F(GeneralCodeEditTest, ShowingAVeryLongInstanceCountCutsNothingOff) {
    given.Instances = std::string(40000, '1');
    dialog.ShowGeneralCode(given);
    EXPECT_EQ(general.Instances.size(), 40000u);
}

TEST_F(GeneralCodeEditTest, CtrlHOpensFindAndReplaceInEveryPaneButTheHeader) {
    Open(true, [&] {
        for (const PaneOfTab& pane : kPanes) {
            ClickTab(pane.Tab);
            QTest::keyClick(&Pane(pane.Name), Qt::Key_H, Qt::ControlModifier);
            EXPECT_EQ(Pane(pane.Name).findChild<QDialog*>() != nullptr, pane.Tab != 4) << pane.Name;
        }
        EXPECT_EQ(Pane("txtHeader").Text(), "header");
        OK();
    });
}

TEST_F(GeneralCodeEditTest, F1OpensTheHelpPage) {
    OpenedAddresses opened;
    Open(true, [&] {
        QTest::keyClick(&Pane("txtCodeSeg"), Qt::Key_F1);
        QTest::keyClick(&Pane("txtCodeSeg"), Qt::Key_F1, Qt::AltModifier);
        OK();
    });
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_EQ(opened.Addresses[0].fileName(), QStringLiteral("4942.htm"));
}

TEST_F(GeneralCodeEditTest, TabNeverMovesTheFocus) {
    Open(true, [&] {
        Name().setFocus();
        QTest::keyClick(&Name(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &Name());
        ClickTab(0);
        QTest::keyClick(&Pane("txtCodeSeg"), Qt::Key_Tab);
        EXPECT_EQ(general.CodeSeg, "\tcode");
        OK();
    });
}

TEST_F(GeneralCodeEditTest, TheStatusBarSaysWhatIsLeftOut) {
    Open(true, [&] {
        auto& statusBar = Control<QStatusBar>("StatusBar1");
        for (const char* field : {"txtName", "txtInstanceCount", "txtCodeSeg"}) {
            statusBar.clearMessage();
            TypeAnyText(Control<QWidget>(field), QStringLiteral("\u03A9"));
            EXPECT_FALSE(statusBar.currentMessage().isEmpty()) << field;
        }
        OK();
    });
    EXPECT_EQ(general.FsmName, "Pump");
}

} // namespace
} // namespace orvane
