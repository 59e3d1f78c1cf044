// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentWriter.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/TableFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTableView>
#include <QTreeView>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsSupersetOf;

const QString kDocument = QStringLiteral("machine.zfsm");

class ReviewRoomTest : public TableFixture {
  protected:
    static QWidget* Comparison() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmCompare"))
                return window;
        }
        return nullptr;
    }
    QWidget& Compare() {
        Trigger("mnuCompareWith");
        return *Comparison();
    }
    static QTreeView& List() { return Named<QTreeView>(*Comparison(), "lstChanges"); }
    static std::vector<std::string> Changes() {
        const QAbstractItemModel& model = *List().model();
        std::vector<std::string> changes;
        for (int row = 0; row < model.rowCount(); ++row)
            changes.push_back(model.index(row, 0).data().toString().toStdString() + " " +
                              model.index(row, 1).data().toString().toStdString());
        return changes;
    }
    // Somebody else renames a state in the file.
    void Rename(int state, const std::string& name) {
        FsmDocument foreign = PumpDocument();
        foreign.State(state).Name = name;
        WriteFile(kDocument, WriteDocument(foreign));
    }
    static void ChooseSource(Qt::Key key) {
        auto& with = Named<QComboBox>(*Comparison(), "cboCompareWith");
        with.setCurrentIndex(0);
        with.setFocus();
        QTest::keyClick(&with, key);
    }
    // The state or event of the chosen change is not in the other version.
    static void ChooseNoPartner() {
        auto& partner = Named<QComboBox>(*Comparison(), "cboIdentity");
        partner.setFocus();
        QTest::keyClick(&partner, Qt::Key_Home);
    }
    static std::string Summary() { return Named<QLabel>(*Comparison(), "lblSummary").text().toStdString(); }
    // The comparison is made in a thread.
    template <typename Matcher>
    static void ExpectChanges(const Matcher& expected) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return testing::Matches(expected)(Changes()); }));
        EXPECT_THAT(Changes(), expected) << Summary();
    }
};

TEST_F(ReviewRoomTest, TheWindowIsNotMadeBeforeItIsAskedFor) {
    StartOn(PumpDocument());
    EXPECT_EQ(Comparison(), nullptr);
    EXPECT_TRUE(Compare().isVisible());
    ExpectChanges(testing::IsEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return Summary() == "No changes from machine.zfsm on disk to this window.";
    })) << Summary();
}

TEST_F(ReviewRoomTest, WhatWasEditedSinceTheSaveIsListedAndFollowsUndo) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    Compare();
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> 2:Run (was none)"));
    TypeTarget(6, 2, QStringLiteral("1"));
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> 2:Run (was none)", "~ 2:Run, Start: -> 1:Idle (was none)"));
    Trigger("mnuUndo");
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> 2:Run (was none)"));
    Trigger("mnuFSave");
    ExpectChanges(testing::IsEmpty());
}

TEST_F(ReviewRoomTest, ADarkDesktopHasDarkGroundsWithLightText) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    Compare();
    ExpectChanges(testing::SizeIs(1));
    const QModelIndex sign = List().model()->index(0, 0);
    const auto lightness = [&](int role) { return sign.data(role).value<QColor>().lightness(); };
    EXPECT_EQ(sign.data(Qt::BackgroundRole).value<QColor>(), QColor(0xFFF0B0));
    EXPECT_EQ(sign.data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    EXPECT_LT(lightness(Qt::BackgroundRole), 100);
    EXPECT_GT(lightness(Qt::ForegroundRole), 200);
    QApplication::setPalette(light);
}

TEST_F(ReviewRoomTest, ADocumentWithoutAFileSaysWhatToDo) {
    Start({QStringLiteral("/nosplash")});
    Compare();
    EXPECT_EQ(Summary(),
              "The document has no file yet: there is nothing on disk to compare it with. Save it, "
              "or choose another file.");
}

TEST_F(ReviewRoomTest, OneChangeIsTakenBackAsOneUndoStep) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    TypeTarget(6, 2, QStringLiteral("1"));
    const QWidget& window = Compare();
    ExpectChanges(testing::SizeIs(2));
    Press(window, "cmdTakeOver");
    ExpectChanges(ElementsAre("~ 2:Run, Start: -> 1:Idle (was none)"));
    EXPECT_EQ(Text(7, 1), "");
    EXPECT_EQ(Text(6, 2), "1:Idle");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_THAT(Panel("Panel3"), testing::StartsWith("Undone: take over a change"));
}

TEST_F(ReviewRoomTest, WhatAnotherProgramWroteIsTakenOver) {
    StartOn(PumpDocument());
    FsmDocument foreign = PumpDocument();
    foreign.State(2).Name = "Work";
    WriteFile(kDocument, WriteDocument(foreign));
    const QWidget& window = Compare();
    ExpectChanges(ElementsAre("~ state 2:Work renamed from Run (guessed)"));
    EXPECT_EQ(Named<QPushButton>(window, "cmdTakeOver").text().toStdString(), "&Take over");
    Press(window, "cmdTakeOver");
    ExpectChanges(testing::IsEmpty());
    EXPECT_EQ(Text(0, 2), "2:Work");
}

TEST_F(ReviewRoomTest, AGuessIsOverruledUntilTheWindowIsAskedForAgain) {
    StartOn(PumpDocument());
    Rename(2, "Work");
    const QWidget& window = Compare();
    ExpectChanges(ElementsAre("~ state 2:Work renamed from Run (guessed)"));
    EXPECT_EQ(Named<QLabel>(window, "lblIdentity").text().toStdString(),
              "Old state 2:Run (guessed) is in the new version");
    EXPECT_EQ(Named<QComboBox>(window, "cboIdentity").currentText().toStdString(), "2:Work");
    ChooseNoPartner();
    ExpectChanges(IsSupersetOf({"- state 2:Run removed", "+ state 2:Work added"}));
    Press(window, "cmdClose");
    Compare();
    ExpectChanges(ElementsAre("~ state 2:Work renamed from Run (guessed)"));
}

TEST_F(ReviewRoomTest, WhatWasSaidOfAStateHoldsWhenItsNumberShifts) {
    StartOn(PumpDocument());
    Rename(2, "Work");
    Compare();
    ExpectChanges(testing::SizeIs(1));
    ChooseNoPartner();
    ExpectChanges(IsSupersetOf({"- state 2:Run removed", "+ state 2:Work added"}));
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuInsertState");
    ExpectChanges(IsSupersetOf({"- state 3:Run removed", "+ state 2:Work added"}));
}

TEST_F(ReviewRoomTest, TheStripOfAForeignChangeOpensTheComparison) {
    StartOn(PumpDocument());
    Rename(1, "Rest");
    ASSERT_TRUE(QTest::qWaitFor([this] { return Find<QPushButton>("cmdCompareFile") != nullptr; }));
    Press(Window(), "cmdCompareFile");
    ASSERT_NE(Comparison(), nullptr);
    ExpectChanges(ElementsAre("~ state 1:Rest renamed from Idle (guessed)"));
}

TEST_F(ReviewRoomTest, AnotherDocumentIsComparedWithItsOwnFile) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    Compare();
    ExpectChanges(testing::SizeIs(1));
    Answers.Press(QMessageBox::No);
    Trigger("mnuFNew");
    EXPECT_TRUE(QTest::qWaitFor([] { return Summary().starts_with("The document has no file yet"); }));
    EXPECT_TRUE(Changes().empty());
}

TEST_F(ReviewRoomTest, WhatIsHiddenComparesNothingAndIsAnewWhenItComesBack) {
    StartOn(PumpDocument());
    QWidget& window = Compare();
    ExpectChanges(testing::IsEmpty());
    window.close();
    TypeTarget(7, 1, QStringLiteral("2"));
    Compare();
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> 2:Run (was none)"));
}

TEST_F(ReviewRoomTest, AMoveSaysWhyItIsNotTakenOver) {
    FsmDocument document = PumpDocument();
    document.State(3).Name = "Wait";
    StartOn(document);
    std::swap(document.State(2), document.State(3));
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            StateNumber& target = document.State(state).Targets[row];
            target = target == StateNumber(2) ? StateNumber(3) : target;
        }
    }
    WriteFile(kDocument, WriteDocument(document));
    const QWidget& window = Compare();
    ExpectChanges(ElementsAre(testing::StartsWith("> state")));
    Press(window, "cmdTakeOver");
    EXPECT_EQ(Named<QLabel>(window, "lblNotice").text().toStdString(),
              "A move cannot be taken over by itself. Move it in the table.");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(ReviewRoomTest, AnotherFileIsComparedWithAndBadOnesAreTold) {
    StartOn(PumpDocument());
    FsmDocument other = PumpDocument();
    other.State(1).Targets[7] = 2;
    WriteFile(QStringLiteral("other.zfsm"), WriteDocument(other));
    WriteFile(QStringLiteral("letter.zfsm"), "Dear reader");
    Compare();
    Answers.ChooseFile(Path(QStringLiteral("other.zfsm")));
    ChooseSource(Qt::Key_End);
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> 2:Run (was none)"));
    Answers.ChooseFile(Path(QStringLiteral("letter.zfsm")));
    ChooseSource(Qt::Key_End);
    EXPECT_TRUE(QTest::qWaitFor([] {
        return Summary().find("cannot be compared with") != std::string::npos;
    })) << Summary();
    EXPECT_TRUE(Changes().empty());
}

TEST_F(ReviewRoomTest, AFileThatIsInNoRepositoryIsTold) {
    StartOn(PumpDocument());
    Compare();
    ExpectChanges(testing::IsEmpty());
    ChooseSource(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([] {
        return Summary().starts_with("The file is in no git repository that git can use.");
    })) << Summary();
}

TEST_F(ReviewRoomTest, TheSidesAreExchangedAndWhatIsOnlyLookedAtIsLeftOut) {
    StartOn(PumpDocument());
    FsmDocument foreign = PumpDocument();
    foreign.State(1).Targets[7] = 2;
    foreign.State(1).ColWidth = 1500;
    WriteFile(kDocument, WriteDocument(foreign));
    const QWidget& window = Compare();
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> 2:Run (was none)"));
    Press(window, "cmdExchange");
    ExpectChanges(ElementsAre("~ 1:Idle, Stop: -> none (was 2:Run)"));
    Named<QCheckBox>(window, "chkView").click();
    ExpectChanges(testing::Contains("~ state 1:Idle, column width: 945 (was 1500)"));
}

TEST_F(ReviewRoomTest, TheHelpKeyOpensThePageOfTheWindow) {
    OpenedAddresses opened;
    StartOn(PumpDocument());
    QWidget& window = Compare();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_TRUE(opened.Addresses[0].toString().endsWith(QStringLiteral("4980.htm")));
}

TEST_F(ReviewRoomTest, KeysGoFromChangeToChangeAndRound) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    TypeTarget(6, 2, QStringLiteral("1"));
    QWidget& window = Compare();
    ExpectChanges(testing::SizeIs(2));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto chosen = [] { return List().currentIndex().row(); };
    EXPECT_EQ(chosen(), 0);
    QTest::keyClick(&window, Qt::Key_F8);
    EXPECT_EQ(chosen(), 1);
    EXPECT_EQ(Named<QTableView>(window, "tblCompare").currentIndex().data().toString().toStdString(),
              "~ none → 1:Idle");
    QTest::keyClick(&window, Qt::Key_F8);
    EXPECT_EQ(chosen(), 0);
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_EQ(chosen(), 1);
}

} // namespace
} // namespace orvane
