// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/PopUpFixture.h"

#include "kit/CodePane.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::IsSupersetOf;

// Presses OK or Cancel after the edit.
std::function<void(QWidget&)> Editing(const char* window, const std::function<void(QWidget&)>& edit,
                                      const char* button = "cmdOK") {
    return [=](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName().toStdString(), window);
        edit(dialog);
        dialog.findChild<QPushButton*>(QLatin1String(button))->click();
    };
}

std::function<void(QWidget&)> Naming(const QString& name) {
    return [name](QWidget& dialog) {
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("txtName"));
        field->selectAll();
        QTest::keyClicks(field, name);
    };
}

class DialogsFromTable : public PopUpFixture {
  protected:
    // The captions of the tabs of the state editor that can be seen.
    QStringList StateTabs() {
        QStringList captions;
        Answers.Do([&captions](QWidget& dialog) {
            const auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
            for (int tab = 0; tab < tabs->count(); ++tab) {
                if (tabs->isTabVisible(tab))
                    captions += tabs->tabText(tab);
            }
            dialog.close();
        });
        Click(0, 1);
        return captions;
    }
};

TEST_F(DialogsFromTable, APressOnAStateHeadEditsTheState) {
    StartOn(PumpDocument());
    Answers.Do(Editing("frmStateEdit", Naming(QStringLiteral("Rest"))));
    Click(0, 1);
    EXPECT_EQ(Text(0, 1), "1:Rest");
    EXPECT_EQ(Text(7, 2), "1:Rest*"); // cells that lead there say so too
    EXPECT_TRUE(Title().starts_with('*'));
    Trigger("mnuUndo");
    EXPECT_EQ(Text(0, 1), "1:Idle");
}

TEST_F(DialogsFromTable, CellsThatLeadToARenamedStateAreDrawnAgain) {
    StartOn(PumpDocument());
    Answers.Do(Editing("frmStateEdit", Naming(QStringLiteral("Rest"))));
    EXPECT_THAT(DrawnBy([this] { Click(0, 1); }), IsSupersetOf({1, 2}));
}

TEST_F(DialogsFromTable, EachOfTheUpperRowsOpensTheStateEditor) {
    StartOn(PumpDocument());
    Trigger("mnuShowExitAction");
    Trigger("mnuShowTimingMode");
    for (int row = 0; row <= 3; ++row) {
        Answers.Do(Editing("frmStateEdit", [](QWidget&) {}));
        Click(row, 2);
    }
    EXPECT_EQ(Answers.Seen().size(), 4u);
    EXPECT_FALSE(Title().starts_with('*'));
}

TEST_F(DialogsFromTable, CancelLeavesTheStateAndTakesNoSnapshot) {
    StartOn(PumpDocument());
    Answers.Do(Editing("frmStateEdit", Naming(QStringLiteral("Rest")), "cmdCancel"));
    Click(0, 1);
    EXPECT_EQ(Text(0, 1), "1:Idle");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(DialogsFromTable, OpeningTheStateEditorAbandonsATypedTarget) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    Answers.Do(Editing("frmStateEdit", [](QWidget&) {}));
    Click(0, 1);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 1), "");
}

TEST_F(DialogsFromTable, APressOnAnEventEditsIt) {
    StartOn(PumpDocument());
    Answers.Do(Editing("frmEventEdit", Naming(QStringLiteral("Full"))));
    Click(8, 0);
    EXPECT_EQ(Text(8, 0), "Full "); // a blank marks the event without code
    EXPECT_EQ(SavedDocument().Event(8).Name, "Full");
    Click(8, 1);
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(DialogsFromTable, APressInTheCornerEditsTheGeneralCodeAndTheCornerFollowsAtOnce) {
    StartOn(PumpDocument());
    std::string corner;
    Answers.Do(Editing("frmGeneralCodeEdit", [&](QWidget& dialog) {
        Naming(QStringLiteral("FAN"))(dialog);
        corner = Text(0, 0);
    }));
    Click(0, 0);
    EXPECT_EQ(corner, "FAN");
    EXPECT_EQ(Panel("Panel2"), "FAN");
    EXPECT_EQ(SavedDocument().General.FsmName, "FAN");
}

TEST_F(DialogsFromTable, CancellingTheGeneralCodePutsTheNameBack) {
    StartOn(PumpDocument());
    Answers.Do(Editing("frmGeneralCodeEdit", Naming(QStringLiteral("FAN")), "cmdCancel"));
    Trigger("mnuGeneralCode");
    EXPECT_EQ(Text(0, 0), "PMP");
    EXPECT_FALSE(Title().starts_with('*'));
}

TEST_F(DialogsFromTable, TheActionOfATransitionIsEditedFromItsMenu) {
    StartOn(PumpDocument());
    Click(6, 1, Qt::RightButton);
    PoppedUp();
    Answers.Do(Editing("frmTransitionAction", [](QWidget& dialog) {
        dialog.findChild<QPlainTextEdit*>(QStringLiteral("txtCode"))->setPlainText(QStringLiteral("Beep"));
    }));
    Trigger("mnuEditTransAct");
    EXPECT_EQ(Text(6, 1), "2:Run*");
    EXPECT_EQ(SavedDocument().State(1).Actions[6], "Beep");
}

TEST_F(DialogsFromTable, PressesOnTheLowerSpecialHeadsOpenNothing) {
    StartOn(PumpDocument());
    for (const char* item : {"mnuShowExitAction", "mnuShowElse", "mnuShowTimingMode", "mnuShowTimeTarget"})
        Trigger(item);
    for (int row = 1; row <= 5; ++row)
        Click(row, 0);
    EXPECT_TRUE(Answers.Seen().empty());
}

TEST_F(DialogsFromTable, TheStateEditorsTabsGoWithTheRowsOnceOneIsToggled) {
    StartOn(PumpDocument());
    const QStringList all = StateTabs();
    EXPECT_EQ(all.size(), 4);
    Trigger("mnuShowElse");
    EXPECT_EQ(StateTabs(), QStringList({all[0], all[1]}));
    Trigger("mnuShowTimeTarget");
    EXPECT_EQ(StateTabs(), QStringList({all[0], all[1], all[2]}));
    Trigger("mnuShowExitAction");
    EXPECT_EQ(StateTabs(), all);
}

TEST_F(DialogsFromTable, TimingRowsThatComeBackBringTheirTabBack) {
    FsmDocument document = PumpDocument();
    document.State(3).TimingMode = 1;
    document.State(3).TimeConst = "50";
    StartOn(document);
    Trigger("mnuShowTimingMode");
    Trigger("mnuShowTimeTarget");
    EXPECT_EQ(StateTabs().size(), 2); // the table is drawn when the editor closes, and state 3 shows its rows
    EXPECT_TRUE(Item("mnuShowTimingMode")->isChecked());
    EXPECT_EQ(StateTabs().size(), 3);
}

TEST_F(DialogsFromTable, ADocumentWithATimeoutShowsTheTimingRows) {
    FsmDocument document = PumpDocument();
    document.State(3).Name = "Timed";
    document.State(3).TimingMode = 1;
    document.State(3).TimeConst = "50";
    document.State(3).TimerId = "T";
    StartOn(document);
    EXPECT_TRUE(Item("mnuShowTimingMode")->isChecked());
    EXPECT_TRUE(Item("mnuShowTimeTarget")->isChecked());
    EXPECT_TRUE(Text(3, 3).starts_with("Start T")) << Text(3, 3);
    EXPECT_FALSE(CellRect(4, 3).isEmpty());
}

} // namespace
} // namespace orvane
