// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/SeenPaints.h"
#include "support/ui/TableFixture.h"
#include "text/ZorlanScanner.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

namespace orvane {
namespace {

class EditorsFromTheTable : public TableFixture {
  protected:
    // What happens in the next editor that opens.
    void InEditor(const char* editor, const std::function<void(QWidget&)>& script) {
        InNextDialog(Answers, [editor, script](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName().toStdString(), editor);
            script(dialog);
        });
    }

    static void Type(QWidget& dialog, const char* field, const QString& text) {
        auto& edit = Named<QLineEdit>(dialog, field);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    static void ClickTab(QWidget& dialog, int tab) {
        QTabBar* bar = Named<QTabWidget>(dialog, "SSTab1").tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
    }

    static void Choose(QWidget& dialog, const char* option) {
        QTest::mouseClick(&Named<QRadioButton>(dialog, option), Qt::LeftButton, {}, QPoint(8, 8));
    }

    std::string Program() { return ReadFile(QStringLiteral("machine.zls")); }
};

TEST_F(EditorsFromTheTable, AStateTypedAnewIsInTheTableTheProgramAndTheHistory) {
    StartOn(PumpDocument());
    InEditor("frmStateEdit", [](QWidget& dialog) {
        Type(dialog, "txtName", QStringLiteral("On"));
        QTest::keyClicks(&Named<CodePane>(dialog, "txtEntryCode"), QStringLiteral(";first"));
        Press(dialog, "cmdOK");
    });
    Click(0, 2);
    EXPECT_EQ(Text(0, 2), "2:On");
    EXPECT_EQ(Text(6, 1), "2:On") << "cells that lead there are drawn again";
    EXPECT_TRUE(Title().starts_with('*'));
    EXPECT_NE(Program().find(";first;run entry"), std::string::npos);
    Trigger("mnuUndo");
    EXPECT_EQ(Text(0, 2), "2:Run");
    EXPECT_EQ(Program().find(";first;run entry"), std::string::npos);
    Trigger("mnuRedo");
    EXPECT_EQ(SavedDocument().State(2).EntryCode, ";first;run entry");
}

TEST_F(EditorsFromTheTable, AFreshStateIsMadeByPressingItsHead) {
    StartOn(PumpDocument());
    InEditor("frmStateEdit", [this](QWidget& dialog) {
        Type(dialog, "txtName", QStringLiteral("Alarm"));
        ClickTab(dialog, 2);
        Choose(dialog, "optStartTiming");
        Choose(dialog, "optTimeCONST");
        Answers.Press(QMessageBox::Ok);
        Press(dialog, "cmdOK");
        EXPECT_EQ(Answers.Seen().back().Text, "You must provide a constant time limit");
        Type(dialog, "txtTimeCONST", QStringLiteral("5"));
        Press(dialog, "cmdOK");
    });
    Click(0, 3);
    EXPECT_EQ(Text(0, 3), "3:Alarm");
    EXPECT_TRUE(Item("mnuShowTimingMode")->isChecked()) << "timing shows its rows";
    EXPECT_EQ(Text(3, 3), "Start /5");
    Trigger("mnuUndo");
    EXPECT_EQ(SavedDocument().State(3), FsmDocument().State(3));
}

TEST_F(EditorsFromTheTable, APressWithAModifierOpensNothing) {
    StartOn(PumpDocument());
    for (const Qt::KeyboardModifier key : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        Click(0, 2, Qt::LeftButton, key);
    Click(6, 0, Qt::LeftButton, Qt::ControlModifier);
    for (int row = 1; row <= 5; ++row)
        if (!CellRect(row, 0).isEmpty())
            Click(row, 0);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(EditorsFromTheTable, AnEventIsEditedByPressingItsHead) {
    StartOn(PumpDocument());
    InEditor("frmEventEdit", [](QWidget& dialog) {
        EXPECT_EQ(Named<CodePane>(dialog, "txtEventCode").Text(), ";start?");
        Type(dialog, "txtName", QStringLiteral("Begin"));
        Press(dialog, "cmdOK");
    });
    Click(6, 0);
    EXPECT_EQ(Text(6, 0), "Begin");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 0), "Start");
    InEditor("frmEventEdit", [](QWidget& dialog) {
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtName").text(), QString());
        Type(dialog, "txtName", QStringLiteral("Fresh"));
        dialog.close();
    });
    Click(8, 0);
    EXPECT_EQ(SavedDocument().Event(8), EventRecord());
}

TEST_F(EditorsFromTheTable, TheNameOfTheMachineFollowsWhileItIsTyped) {
    StartOn(PumpDocument());
    InEditor("frmGeneralCodeEdit", [this](QWidget& dialog) {
        Type(dialog, "txtName", QStringLiteral("FAN"));
        EXPECT_EQ(Text(0, 0), "FAN");
        EXPECT_EQ(Panel("Panel2"), "FAN");
        EXPECT_NE(Program().find("FAN"), std::string::npos) << "the program is generated before OK";
        Press(dialog, "cmdCancel");
    });
    Click(0, 0);
    EXPECT_EQ(Text(0, 0), "PMP");
    EXPECT_EQ(Panel("Panel2"), "PMP");
    EXPECT_EQ(Program().find("FAN"), std::string::npos);
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(EditorsFromTheTable, ALetterOfCodeLeavesTheTableBehindAsItIs) {
    StartOn(PumpDocument());
    InEditor("frmGeneralCodeEdit", [this](QWidget& dialog) {
        auto& code = Named<CodePane>(dialog, "txtCodeSeg");
        QTest::keyClicks(&code, QStringLiteral(";"));
        SeenPaints paints;
        QTest::keyClicks(&code, QStringLiteral("x"));
        EXPECT_GT(paints.Times(*code.viewport()), 0);
        EXPECT_EQ(paints.Times(*Grid()->viewport()), 0);
        Type(dialog, "txtName", QStringLiteral("FAN"));
        EXPECT_TRUE(paints.Part(*Grid()->viewport()).intersects(CellRect(0, 0)));
        Press(dialog, "cmdOK");
    });
    Trigger("mnuGeneralCode");
}

TEST_F(EditorsFromTheTable, TheGeneralCodeFollowsUndoAndOtherDocuments) {
    StartOn(PumpDocument());
    InEditor("frmGeneralCodeEdit", [](QWidget& dialog) {
        QTest::keyClicks(&Named<CodePane>(dialog, "txtCodeSeg"), QStringLiteral(";one"));
        Press(dialog, "cmdOK");
    });
    Trigger("mnuGeneralCode");
    EXPECT_TRUE(Item("mnuUndo")->isEnabled());
    Trigger("mnuUndo");
    InEditor("frmGeneralCodeEdit", [](QWidget& dialog) {
        EXPECT_EQ(Named<CodePane>(dialog, "txtCodeSeg").Text(), "");
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtName").text(), QStringLiteral("PMP"));
        Press(dialog, "cmdOK");
    });
    Trigger("mnuGeneralCode");
    Trigger("mnuFNew");
    InEditor("frmGeneralCodeEdit", [](QWidget& dialog) {
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtName").text(), QString());
        Press(dialog, "cmdOK");
    });
    Trigger("mnuGeneralCode");
}

TEST_F(EditorsFromTheTable, PolytaskDecidesWhichTabsTheGeneralCodeHas) {
    StartOn(PumpDocument());
    for (const bool polytask : {true, false}) {
        Trigger("mnuPolytask");
        InEditor("frmGeneralCodeEdit", [polytask](QWidget& dialog) {
            EXPECT_EQ(Named<QTabWidget>(dialog, "SSTab1").isTabVisible(1), polytask);
            Press(dialog, "cmdOK");
        });
        Click(0, 0);
    }
}

TEST_F(EditorsFromTheTable, ATransitionsActionIsEditedFromItsMenu) {
    StartOn(PumpDocument());
    Click(7, 2, Qt::RightButton);
    EXPECT_EQ(PoppedUp(), "mnuTranCell");
    InEditor("frmTransitionAction", [](QWidget& dialog) {
        auto& code = Named<QPlainTextEdit>(dialog, "txtCode");
        EXPECT_EQ(code.toPlainText(), QStringLiteral(";stop action"));
        QTest::keyClicks(&code, QStringLiteral(";x"));
        Press(dialog, "cmdOK");
    });
    Trigger("mnuEditTransAct");
    EXPECT_NE(Program().find(";x;stop action"), std::string::npos);
    InEditor("frmTransitionAction", [](QWidget& dialog) {
        QTest::keyClicks(&Named<QPlainTextEdit>(dialog, "txtCode"), QStringLiteral("gone"));
        Press(dialog, "cmdCancel");
    });
    Trigger("mnuEditTransAct");
    EXPECT_EQ(SavedDocument().State(2).Actions[7], ";x;stop action");
}

TEST_F(EditorsFromTheTable, TabsHiddenWithTheRowsOfOneDocumentAreThereForTheNext) {
    StartOn(PumpDocument());
    const auto tabIsShown = [this](int tab) {
        bool shown = false;
        InEditor("frmStateEdit", [&shown, tab](QWidget& dialog) {
            shown = Named<QTabWidget>(dialog, "SSTab1").isTabVisible(tab);
            Press(dialog, "cmdCancel");
        });
        Click(0, 1);
        return shown;
    };
    Trigger("mnuShowTimeTarget");
    EXPECT_FALSE(tabIsShown(3));
    Trigger("mnuFNew");
    EXPECT_TRUE(tabIsShown(3));
}

TEST_F(EditorsFromTheTable, EachEditIsGeneratedBeforeTheDialogCloses) {
    StartOn(PumpDocument());
    const QString file = Path(QStringLiteral("machine.zls"));
    const auto typedInto = [this, &file](const char* editor, const auto& field) {
        InEditor(editor, [&file, field](QWidget& dialog) {
            QFile::remove(file);
            QTest::keyClicks(&field(dialog), QStringLiteral("x"));
            EXPECT_TRUE(QFile::exists(file)) << dialog.objectName().toStdString();
            Press(dialog, "cmdCancel");
        });
    };
    typedInto("frmStateEdit",
              [](QWidget& dialog) -> QWidget& { return Named<CodePane>(dialog, "txtEntryCode"); });
    Click(0, 1);
    typedInto("frmEventEdit",
              [](QWidget& dialog) -> QWidget& { return Named<CodePane>(dialog, "txtEventCode"); });
    Click(6, 0);
    typedInto("frmGeneralCodeEdit",
              [](QWidget& dialog) -> QWidget& { return Named<CodePane>(dialog, "txtCodeSeg"); });
    Click(0, 0);
    Click(7, 2, Qt::RightButton);
    PoppedUp();
    typedInto("frmTransitionAction",
              [](QWidget& dialog) -> QWidget& { return Named<QPlainTextEdit>(dialog, "txtCode"); });
    Trigger("mnuEditTransAct");
}

TEST_F(EditorsFromTheTable, PanesColourTheWordsOfTheVocabulary) {
    ASSERT_TRUE(QDir(Path({})).mkpath(QStringLiteral("Zorlan32/vocab")));
    WriteFile(QStringLiteral("Zorlan32/vocab/vocab.txt"), "Inst=GoSub\r\nDirective=DB\r\n");
    StartOn(PumpDocument());
    InEditor("frmEventEdit", [](QWidget& dialog) {
        auto& pane = Named<CodePane>(dialog, "txtEventCode");
        pane.SetText("gosub");
        pane.SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
        EXPECT_EQ(pane.SendScintilla(QsciScintilla::SCI_GETSTYLEAT, 0),
                  static_cast<long>(TokenKind::Instruction));
        Press(dialog, "cmdCancel");
    });
    Click(6, 0);
}

} // namespace
} // namespace orvane
