// SPDX-License-Identifier: GPL-3.0-or-later
// Finding, where used, renaming and moving in the real main window.
#include "support/ui/PopUpFixture.h"

#include "core/TightPacked.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "session/Session.h"
#include "support/ui/Controls.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QLabel>
#include <QTableView>
#include <QTreeView>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FindWindows : public PopUpFixture {
  protected:
    static FsmDocument Pump() {
        FsmDocument document = PumpDocument();
        document.General.FsmName = "PMP";
        document.State(1).Name = "Idle";
        document.State(2).Name = "Run";
        document.State(1).EntryCode = "\tHorn\r\n\tGoTo\tPMP_Run_Set2";
        document.State(2).EntryCode = "\tHorn ;Run";
        document.State(1).Targets[6] = 2;
        document.State(1).Actions[6] = "\tHorn";
        return document;
    }

    static std::vector<std::string> Rows(const QAbstractItemView& list) {
        std::vector<std::string> rows;
        const QAbstractItemModel& model = *list.model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < model.columnCount(); ++column)
                texts += model.index(row, column).data().toString();
            rows.push_back(texts.join(QLatin1Char('|')).toStdString());
        }
        return rows;
    }
    std::vector<std::string> Rows(const char* list) { return Rows(Named<QTreeView>(Window(), list)); }

    void Type(const QString& text) {
        Trigger("mnuFind");
        Named<DocumentLineEdit>(Window(), "txtFind").setText(text);
    }
    std::string Label(const char* name) { return Named<QLabel>(Window(), name).text().toStdString(); }
    // The current cell, as the keyboard has it.
    void Choose(int row, int column) { Grid()->setCurrentIndex(Grid()->model()->index(row, column)); }
    using PopUpFixture::Choose;
    // As the window holds it: saved, and read again.
    FsmDocument Document() { return SavedDocument(); }
    std::string Cell(int row, int column) {
        return Grid()->model()->index(row, column).data().toString().toStdString();
    }
};

TEST_F(FindWindows, ThePaneIsNotMadeBeforeItIsAskedFor) {
    StartOn(Pump());
    EXPECT_EQ(Find<QDockWidget>("dckFind"), nullptr);
    Trigger("mnuViewFind");
    EXPECT_TRUE(Find<QDockWidget>("dckFind")->isVisible());
    EXPECT_TRUE(Item("mnuViewFind")->isChecked());
    Trigger("mnuViewFind");
    EXPECT_FALSE(Find<QDockWidget>("dckFind")->isVisible());
    EXPECT_FALSE(Item("mnuViewFind")->isChecked());
}

TEST_F(FindWindows, ListsWhatIsTypedWithEveryLetter) {
    StartOn(Pump());
    Type(QStringLiteral("horn"));
    EXPECT_THAT(Rows("lstHits"),
                ElementsAre("State 1:Idle, entry action|Horn", "1:Idle, on Start, action|Horn",
                            "State 2:Run, entry action|Horn ;Run"));
    EXPECT_EQ(Label("lblFound"), "3 found");
    Named<QCheckBox>(Window(), "chkCase").setChecked(true);
    EXPECT_THAT(Rows("lstHits"), IsEmpty());
    EXPECT_EQ(Label("lblFound"), "Nothing found");
    Named<QCheckBox>(Window(), "chkRegex").setChecked(true);
    Type(QStringLiteral("H[ou"));
    EXPECT_EQ(Label("lblFound"), "The [ at character 2 is not closed");
    Type(QStringLiteral("H[ou]rn$"));
    EXPECT_EQ(Rows("lstHits").size(), 2u);
}

TEST_F(FindWindows, TheListFollowsEditsAndUndo) {
    StartOn(Pump());
    Type(QStringLiteral("horn"));
    PopUpFixture::Choose(1, 2, "mnuDeleteEntryAction");
    EXPECT_EQ(Rows("lstHits").size(), 2u);
    Trigger("mnuUndo");
    EXPECT_EQ(Rows("lstHits").size(), 3u);
}

TEST_F(FindWindows, EnterOpensTheCodeWithTheMatchChosen) {
    StartOn(Pump());
    Type(QStringLiteral("goto"));
    std::string selected;
    InNextDialog(Answers, [&](QWidget& dialog) {
        auto& pane = Named<CodePane>(dialog, "txtEntryCode");
        EXPECT_TRUE(QTest::qWaitFor([&] { return pane.hasSelectedText(); }));
        selected = pane.selectedText().toStdString();
        int line = 0;
        int column = 0;
        pane.getCursorPosition(&line, &column);
        EXPECT_EQ(line, 1);
        Press(dialog, "cmdCancel");
    });
    QTest::keyClick(&Named<DocumentLineEdit>(Window(), "txtFind"), Qt::Key_Return);
    EXPECT_EQ(selected, "GoTo");
}

TEST_F(FindWindows, ReplacesWhatIsCheckedAsOneStep) {
    StartOn(Pump());
    const std::string before = Pack(Document());
    Type(QStringLiteral("horn"));
    Named<DocumentLineEdit>(Window(), "txtReplace").setText(QStringLiteral("Siren"));
    InNextDialog(Answers, [&](QWidget& dialog) {
        auto& list = Named<QTreeView>(dialog, "lstChanges");
        EXPECT_THAT(Rows(list), Contains("State 2:Run, entry action|Horn ;Run|Siren ;Run"));
        list.model()->setData(list.model()->index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
        Press(dialog, "cmdOK");
    });
    Press(Window(), "cmdReplaceAll");
    EXPECT_EQ(Document().State(2).EntryCode, "\tSiren ;Run");
    EXPECT_EQ(Document().State(1).Actions[6], "\tHorn");
    Trigger("mnuUndo");
    EXPECT_THAT(Panel("Panel3"), testing::StartsWith("Undone: replace"));
    EXPECT_EQ(Pack(Document()), before);
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(FindWindows, TellsWhereAStateIsUsedAndFollowsEdits) {
    StartOn(Pump());
    PopUpFixture::Choose(0, 2, "mnuStateUses");
    EXPECT_EQ(Label("lblUsed"), "State 2:Run is used in 3 places");
    EXPECT_THAT(Rows("lstUses"),
                ElementsAre("1:Idle, on Start|leads here", "State 1:Idle, entry action|label PMP_Run_Set2",
                            "State 2:Run, entry action|word Run"));
    PopUpFixture::Choose(1, 2, "mnuDeleteEntryAction");
    EXPECT_EQ(Label("lblUsed"), "State 2:Run is used in 2 places");
    Choose(6, 0);
    Trigger("mnuWhereUsed");
    EXPECT_THAT(Label("lblUsed"), HasSubstr("Event row 6: Start"));
}

TEST_F(FindWindows, TheWordUnderTheCaretInTheCellPaneIsMeant) {
    StartOn(Pump());
    Choose(6, 1);
    Trigger("mnuViewCell");
    auto& entry = Named<CodePane>(Window(), "txtCellEntry");
    entry.setFocus();
    QTest::keyClick(&entry, Qt::Key_Right); // behind the tab
    Trigger("mnuWhereUsed");
    EXPECT_EQ(Label("lblUsed"), "Word Horn is used in 3 places");
    Trigger("mnuViewFind");
    entry.setFocus();
    QTest::keyClick(&entry, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClicks(&entry, QStringLiteral("Horn ")); // still to be taken
    QTest::keyClick(&entry, Qt::Key_Left);
    InNextDialog(Answers, [&](QWidget& dialog) {
        EXPECT_EQ(Named<QLabel>(dialog, "lblEdited").text(), QStringLiteral("Word Horn"));
        Named<DocumentLineEdit>(dialog, "txtNew").setText(QStringLiteral("Bell"));
        Press(dialog, "cmdOK");
    });
    QTest::keyClick(&entry, Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(entry.Text(), "Bell \tBell\r\n\tGoTo\tPMP_Run_Set2"); // the open field is taken along
    EXPECT_EQ(Document().State(2).EntryCode, "\tBell ;Run");
    Grid()->setFocus();
    Trigger("mnuWhereUsed");
    EXPECT_THAT(Label("lblUsed"), testing::StartsWith("State 2:Run")); // where the transition leads
}

TEST_F(FindWindows, TheListStaysWithAStateThatIsMovedAndRenamed) {
    StartOn(Pump());
    PopUpFixture::Choose(0, 2, "mnuStateUses");
    const std::vector<std::string> uses = Rows("lstUses");
    PopUpFixture::Choose(0, 2, "mnuInsertState");
    EXPECT_EQ(Label("lblUsed").substr(0, 11), "State 3:Run");
    Trigger("mnuUndo");
    EXPECT_EQ(Label("lblUsed").substr(0, 11), "State 2:Run");
    EXPECT_EQ(Rows("lstUses"), uses);
    Window().Place().Open.Edit({"state", {Touched::Extent::AllColumns, {}}},
                               [](Editable open) { open.Document.State(2).Name = "Motor"; });
    EXPECT_EQ(Label("lblUsed").substr(0, 13), "State 2:Motor");
    Window().Place().Open.Edit({"state", {Touched::Extent::AllColumns, {}}}, [](Editable open) {
        open.Document.State(1).Name = "Motor"; // now there are two
        open.Document.State(2).Name = "Other";
    });
    EXPECT_EQ(Label("lblUsed").substr(0, 13), "State 1:Motor");
    Window().Place().Open.Edit({"state", {Touched::Extent::AllColumns, {}}},
                               [](Editable open) { open.Document.State(2).Name = "Motor"; });
    Window().Place().Open.Edit({"state", {Touched::Extent::AllColumns, {}}},
                               [](Editable open) { open.Document.State(1).Name = "Idle"; });
    EXPECT_EQ(Label("lblUsed").substr(0, 12), "State 1:Idle"); // which of two was meant is not known
}

TEST_F(FindWindows, AMachineThatGetsAnotherNameIsOfferedItsSymbols) {
    FsmDocument document = Pump();
    document.State(2).EntryCode = "\tPMP_Horn";
    StartOn(document);
    const auto rename = [this](const QString& name) {
        InNextDialog(Answers, [name](QWidget& dialog) {
            Named<DocumentLineEdit>(dialog, "txtName").setText(name);
            Press(dialog, "cmdOK");
        });
        Trigger("mnuGeneralCode");
    };
    rename(QStringLiteral("MOT"));
    Answers.Press(QMessageBox::Yes);
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Named<DocumentLineEdit>(dialog, "txtNew").Text(), "MOT");
        Press(dialog, "cmdOK");
    });
    ASSERT_TRUE(QTest::qWaitFor([this] { return Panel("Panel3").find("Renamed") != std::string::npos; }));
    EXPECT_THAT(Answers.Seen().at(1).Text, HasSubstr("still begin with PMP_ (2 in all)"));
    EXPECT_EQ(Document().General.FsmName, "MOT");
    EXPECT_EQ(Document().State(2).EntryCode, "\tMOT_Horn");
    EXPECT_EQ(Document().State(1).EntryCode, "\tHorn\r\n\tGoTo\tMOT_Run_Set2");
    Trigger("mnuUndo");
    EXPECT_EQ(Document().General.FsmName, "MOT");
    EXPECT_EQ(Document().State(2).EntryCode, "\tPMP_Horn");
}

TEST_F(FindWindows, ARenamedMachineWithoutSuchSymbolsIsNotAskedAbout) {
    FsmDocument document = Pump();
    document.State(1).EntryCode.clear();
    StartOn(document);
    InNextDialog(Answers, [](QWidget& dialog) {
        Named<DocumentLineEdit>(dialog, "txtName").setText(QStringLiteral("MOT"));
        Press(dialog, "cmdOK");
    });
    Trigger("mnuGeneralCode");
    EXPECT_FALSE(QTest::qWaitFor([this] { return Answers.Seen().size() > 1; }, 1500));
}

TEST_F(FindWindows, RenamesAStateWithItsLabels) {
    StartOn(Pump());
    const std::string before = Pack(Document());
    Choose(0, 2);
    InNextDialog(Answers, [&](QWidget& dialog) {
        EXPECT_EQ(Named<QLabel>(dialog, "lblEdited").text(), QStringLiteral("State 2:Run"));
        auto& name = Named<DocumentLineEdit>(dialog, "txtNew");
        EXPECT_FALSE(Named<QPushButton>(dialog, "cmdOK").isEnabled());
        name.setText(QStringLiteral(" "));
        EXPECT_EQ(Named<QLabel>(dialog, "lblNotes").text(), QStringLiteral("Type the new name"));
        name.setText(QStringLiteral("Filling"));
        EXPECT_THAT(Rows(Named<QTreeView>(dialog, "lstUses")),
                    ElementsAre("State 2:Run, name|Run|Filling",
                                "State 1:Idle, entry action|GoTo PMP_Run_Set2|GoTo PMP_Filling_Set2",
                                "State 2:Run, entry action|Horn ;Run|Horn ;Filling"));
        Press(dialog, "cmdOK");
    });
    Trigger("mnuRename");
    EXPECT_EQ(Cell(0, 2), "2:Filling");
    EXPECT_EQ(Document().State(1).EntryCode, "\tHorn\r\n\tGoTo\tPMP_Filling_Set2");
    EXPECT_EQ(Document().State(2).EntryCode, "\tHorn ;Run"); // not checked
    Trigger("mnuUndo");
    EXPECT_THAT(Panel("Panel3"), testing::StartsWith("Undone: rename"));
    EXPECT_EQ(Pack(Document()), before);
}

TEST_F(FindWindows, MovesAStateWithEverythingAndBackAgainByUndo) {
    StartOn(Pump());
    const std::string before = Pack(Document());
    Choose(0, 2);
    InNextDialog(Answers, [&](QWidget& dialog) {
        auto& place = Named<DocumentLineEdit>(dialog, "txtPlace");
        place.setText(QStringLiteral("101"));
        EXPECT_EQ(Named<QLabel>(dialog, "lblNotes").text(), QStringLiteral("Type a number from 1 to 100"));
        EXPECT_FALSE(Named<QPushButton>(dialog, "cmdOK").isEnabled());
        place.setText(QStringLiteral("5"));
        EXPECT_THAT(Rows(Named<QTreeView>(dialog, "lstUses")),
                    ElementsAre("State 1:Idle, entry action|GoTo PMP_Run_Set2|GoTo PMP_Run_Set5"));
        Press(dialog, "cmdOK");
    });
    PopUpFixture::Choose(0, 2, "mnuCurrentState");
    Trigger("mnuMove");
    EXPECT_EQ(Cell(0, 5), "5:Run");
    EXPECT_EQ(Cell(6, 1), "5:Run*");
    EXPECT_EQ(Document().State(1).EntryCode, "\tHorn\r\n\tGoTo\tPMP_Run_Set5");
    EXPECT_EQ(Grid()->model()->index(0, 5).data(Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
    Trigger("mnuUndo");
    EXPECT_THAT(Panel("Panel3"), testing::StartsWith("Undone: move state"));
    EXPECT_EQ(Pack(Document()), before);
    EXPECT_EQ(Grid()->model()->index(0, 2).data(Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
    Trigger("mnuRedo");
    EXPECT_EQ(Grid()->model()->index(0, 5).data(Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
}

TEST_F(FindWindows, TheWidthOfAColumnGoesBackWithTheMove) {
    FsmDocument document = Pump();
    document.State(2).ColWidth = 3000;
    StartOn(document);
    Choose(0, 2);
    Grid()->setFocus();
    QTest::keyClick(Grid(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Cell(0, 3), "3:Run");
    EXPECT_EQ(Document().State(3).ColWidth, Twips(3000));
    EXPECT_EQ(Grid()->currentIndex().column(), 3);
    Trigger("mnuUndo");
    EXPECT_EQ(Document().State(2).ColWidth, Twips(3000));
    EXPECT_EQ(Document().State(3).ColWidth, kDefaultColumnWidth);
}

TEST_F(FindWindows, AKeyAsksBeforeTheMachineStartsElsewhere) {
    for (const auto& [answer, second] : {std::pair{QMessageBox::No, "2:Run"}, {QMessageBox::Yes, "2:Idle"}}) {
        StartOn(Pump());
        Choose(0, 2);
        Grid()->setFocus();
        Answers.Press(answer);
        QTest::keyClick(Grid(), Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(Cell(0, 2), second);
        EXPECT_THAT(Answers.Seen().back().Text, HasSubstr("State 1 is the start"));
    }
}

TEST_F(FindWindows, AnEventMovesByKeyAndAtTheEndItIsTold) {
    StartOn(Pump());
    Choose(6, 0);
    Grid()->setFocus();
    QTest::keyClick(Grid(), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Document().Event(7).Name, "Start");
    EXPECT_EQ(Document().State(1).Targets[7], 2);
    QTest::keyClick(Grid(), Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(Grid(), Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(Panel("Panel3"), testing::StartsWith("There is no place further on for an event"));
    EXPECT_EQ(Document().Event(6).Name, "Start");
}

} // namespace
} // namespace orvane
