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
