// SPDX-License-Identifier: GPL-3.0-or-later
// The real main window, left in the middle of the work and started again.
#include "recovery/ui/RecoveryFixture.h"

namespace orvane {
namespace {

class RecoveryTest : public RecoveryFixture {};

TEST_F(RecoveryTest, WhatAKilledWindowHadDrawnIsOfferedAndComesBack) {
    LoseWork();
    StartAgain();
    ASSERT_EQ(Count("lstRecovered"), 1);
    EXPECT_EQ(Shown("lstRecovered", 0, 0), "machine.zfsm");
    EXPECT_EQ(Shown("lstRecovered", 0, 1), QFileInfo(Path(QStringLiteral("x"))).path().toStdString());
    EXPECT_TRUE(Shown("lstRecovered", 0, 2).starts_with("today "));
    EXPECT_EQ(Shown("lstRecovered", 0, 3), "2");
    EXPECT_EQ(Shown("lstRecovered", 0, 4), "as it was");

    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(6, 1), "1:Idle");
    EXPECT_EQ(Text(6, 2), "2:Run");
    EXPECT_TRUE(Title().starts_with("*machine.zfsm"));
    EXPECT_TRUE(Panel("Panel3").starts_with("Recovered: machine.zfsm"));
    EXPECT_FALSE(IsOffered());
}

// The window that compares, and what it lists.
std::vector<std::string> Compared() {
    std::vector<std::string> changes;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != QLatin1String("frmCompare") || !window->isVisible())
            continue;
        const QAbstractItemModel& model = *Named<QTreeView>(*window, "lstChanges").model();
        for (int row = 0; row < model.rowCount(); ++row)
            changes.push_back(model.index(row, 1).data().toString().toStdString());
    }
    return changes;
}

TEST_F(RecoveryTest, WhatWasLostIsComparedWithItsFileAndStaysInTheList) {
    LoseWork();
    StartAgain();
    Press(Recovery(), "cmdCompare");
    const std::vector<std::string> lost{"1:Idle, Start: -> 1:Idle (was 2:Run)",
                                        "2:Run, Start: -> 2:Run (was none)"};
    EXPECT_TRUE(QTest::qWaitFor([&] { return Compared() == lost; }));
    EXPECT_EQ(Count("lstRecovered"), 1);
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(6, 2), "2:Run");
}

TEST_F(RecoveryTest, WhatWasLostIsComparedWithItsDocumentWhenThatIsOpen) {
    LoseWork();
    StartAgain(Path(QStringLiteral("machine.zfsm")));
    Press(Recovery(), "cmdCompare");
    EXPECT_TRUE(QTest::qWaitFor([] { return Compared().size() == 2; }));
    TypeTarget(6, 2, QStringLiteral("2"));
    EXPECT_TRUE(QTest::qWaitFor([] { return Compared().size() == 1; }));
}

TEST_F(RecoveryTest, UndoAndRedoGoAcrossTheCrash) {
    LoseWork();
    StartAgain();
    Press(Recovery(), "cmdRecover");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_TRUE(Panel("Panel3").starts_with("Undone: transition"));
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_FALSE(Title().starts_with("*")) << "this is what the file has";
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    Trigger("mnuRedo");
    Trigger("mnuRedo");
    EXPECT_EQ(Text(6, 2), "2:Run");
    EXPECT_TRUE(Title().starts_with("*"));
}

TEST_F(RecoveryTest, ASaveBeforeTheCrashIsWhereTheStarGoes) {
    StartOn(PumpDocument());
    TypeTarget(6, 1, QStringLiteral("1"));
    Trigger("mnuFSave");
    TypeTarget(6, 2, QStringLiteral("1"));
    Crash();
    StartAgain();
    EXPECT_EQ(Shown("lstRecovered", 0, 3), "1");
    EXPECT_EQ(Shown("lstRecovered", 0, 4), "as it was");
    Press(Recovery(), "cmdRecover");
    EXPECT_TRUE(Title().starts_with("*"));
    Trigger("mnuUndo");
    EXPECT_FALSE(Title().starts_with("*"));
    EXPECT_EQ(Text(6, 1), "1:Idle");
}

TEST_F(RecoveryTest, ASecondCrashLosesNothing) {
    LoseWork();
    StartAgain();
    Press(Recovery(), "cmdRecover");
    TypeTarget(7, 1, QStringLiteral("1"));
    Crash();
    StartAgain();
    ASSERT_EQ(Count("lstRecovered"), 1);
    EXPECT_EQ(Shown("lstRecovered", 0, 3), "3");
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(7, 1), "1:Idle");
    for (int step = 0; step < 3; ++step)
        Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_FALSE(Title().starts_with("*"));
}

TEST_F(RecoveryTest, RecoveredAndSavedWorkIsNotOfferedAgain) {
    LoseWork();
    StartAgain();
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(SavedDocument().State(2).Targets[6], 2);
    Window().close();
    EXPECT_TRUE(Journals().isEmpty());
}

TEST_F(RecoveryTest, NothingIsOfferedAfterAnOrderlyEnd) {
    StartOn(PumpDocument());
    TypeTarget(6, 2, QStringLiteral("1"));
    Trigger("mnuFSave");
    Window().close();
    Crash();
    // What a broken start has left goes when the folder has been looked at.
    QDir().mkpath(FolderPath());
    const QString rest = QStringLiteral("state/orvane/recovery/20200101T000000Z-00000000.orj.new");
    WriteFile(rest, "");
    Start({kNoDocument});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(Path(rest)); }));
    EXPECT_EQ(Find<QWidget>("frmRecovery"), nullptr);
}

TEST_F(RecoveryTest, TwoWindowsThatWereKilledAreTwoRowsTheLatestFirst) {
    LoseTransitions(QStringLiteral("older.zfsm"), 1);
    LoseTransitions(QStringLiteral("newer.zfsm"), 2);
    StartAgain();
    ASSERT_EQ(Count("lstRecovered"), 2);
    EXPECT_EQ(Shown("lstRecovered", 0, 0), "newer.zfsm");
    EXPECT_EQ(Shown("lstRecovered", 1, 0), "older.zfsm");
    Choose("lstRecovered", 1);
    Press(Recovery(), "cmdRecover");
    EXPECT_TRUE(Title().starts_with("*older.zfsm"));
    EXPECT_EQ(Text(6, 1), "1:Idle");
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_TRUE(IsOffered()) << "there is more to recover";
    ASSERT_EQ(Count("lstRecovered"), 1);
    EXPECT_EQ(Shown("lstRecovered", 0, 0), "newer.zfsm");
}

TEST_F(RecoveryTest, TwoWindowsOfOneDocumentKeepTheirOwnWork) {
    LoseTransitions(QStringLiteral("machine.zfsm"), 1);
    LoseTransitions(QStringLiteral("machine.zfsm"), 3);
    StartAgain();
    ASSERT_EQ(Count("lstRecovered"), 2);
    EXPECT_EQ(Shown("lstRecovered", 0, 3), "3");
    EXPECT_EQ(Shown("lstRecovered", 1, 3), "1");
}

TEST_F(RecoveryTest, UnsavedWorkIsAskedForBeforeOtherWorkTakesItsPlace) {
    LoseWork();
    StartAgainAndDraw();
    Answers.Press(QMessageBox::Cancel);
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_EQ(Count("lstRecovered"), 1);
    Answers.Press(QMessageBox::No);
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(7, 1), "");
    EXPECT_EQ(Text(6, 2), "2:Run");
    ASSERT_EQ(Answers.Seen().size(), 2u);
    EXPECT_EQ(Answers.Seen()[0].Title, "Save?");
    EXPECT_EQ(Answers.Seen()[0].Text, "Save current file?");
    Trigger("mnuFRecover");
    ASSERT_EQ(Count("lstDiscarded"), 1);
    EXPECT_EQ(Shown("lstDiscarded", 0, 0), "other.zfsm");
}

TEST_F(RecoveryTest, DiscardAsksOnceAndCanBeTakenBack) {
    LoseWork();
    StartAgain();
    Answers.Press(QMessageBox::No);
    Press(Recovery(), "cmdDiscard");
    EXPECT_EQ(Count("lstRecovered"), 1);
    Answers.Press(QMessageBox::Yes);
    Press(Recovery(), "cmdDiscard");
    EXPECT_EQ(Answers.Seen()[1].Buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(Count("lstRecovered"), 0);
    ASSERT_EQ(Count("lstDiscarded"), 1);
    EXPECT_EQ(Named<QLabel>(Recovery(), "lblRecovered").text(),
              QStringLiteral("There is no unsaved work to recover."));
    EXPECT_FALSE(IsEnabled("cmdDiscard"));

    Choose("lstDiscarded", 0);
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(6, 2), "2:Run");
    EXPECT_TRUE(Title().starts_with("*machine.zfsm"));
}

TEST_F(RecoveryTest, OnlyOneRowIsChosenInBothLists) {
    LoseTransitions(QStringLiteral("kept.zfsm"), 1);
    LoseTransitions(QStringLiteral("left.zfsm"), 1);
    StartAgain();
    Answers.Press(QMessageBox::Yes);
    Press(Recovery(), "cmdDiscard");
    Choose("lstDiscarded", 0);
    EXPECT_FALSE(List("lstRecovered").selectionModel()->hasSelection());
    EXPECT_FALSE(IsEnabled("cmdDiscard"));
    Choose("lstRecovered", 0);
    EXPECT_FALSE(List("lstDiscarded").selectionModel()->hasSelection());
    EXPECT_TRUE(IsEnabled("cmdDiscard"));
}

TEST_F(RecoveryTest, DeleteAllAsksAndLeavesOnlyWhatIsOpen) {
    LoseTransitions(QStringLiteral("one.zfsm"), 1);
    LoseTransitions(QStringLiteral("two.zfsm"), 1);
    StartAgainAndDraw();
    ASSERT_EQ(Journals().size(), 3);
    Answers.Press(QMessageBox::No);
    Press(Recovery(), "cmdDeleteAll");
    EXPECT_EQ(Count("lstRecovered"), 2);
    Answers.Press(QMessageBox::Yes);
    Press(Recovery(), "cmdDeleteAll");
    EXPECT_EQ(Count("lstRecovered"), 0);
    EXPECT_EQ(Journals().size(), 1) << "that of this window";
    EXPECT_FALSE(IsEnabled("cmdDeleteAll"));
}

TEST_F(RecoveryTest, LaterLeavesEverythingForTheFileMenu) {
    LoseWork();
    StartAgain();
    Press(Recovery(), "cmdLater");
    EXPECT_FALSE(IsOffered());
    EXPECT_EQ(Journals().size(), 1);
    Trigger("mnuFRecover");
    EXPECT_TRUE(IsOffered());
    EXPECT_EQ(Count("lstRecovered"), 1);
}

TEST_F(RecoveryTest, WhatBecameOfTheFileIsSaid) {
    LoseTransitions(QStringLiteral("changed.zfsm"), 1);
    LoseTransitions(QStringLiteral("gone.zfsm"), 1);
    LoseTransitions(QStringLiteral("touched.zfsm"), 1);
    FsmDocument other = PumpDocument();
    other.General.FsmName = "ABC"; // of the same length
    WriteFile(QStringLiteral("changed.zfsm"), WriteDocument(other));
    ASSERT_TRUE(QFile::remove(Path(QStringLiteral("gone.zfsm"))));
    QFile touched(Path(QStringLiteral("touched.zfsm")));
    ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
    ASSERT_TRUE(touched.setFileTime(QDateTime::currentDateTime().addDays(-1), QFile::FileModificationTime));
    touched.close();
    StartAgain();
    const auto row = [this](int number) {
        return Shown("lstRecovered", number, 0) + ": " + Shown("lstRecovered", number, 4);
    };
    EXPECT_EQ(row(0), "touched.zfsm: as it was");
    EXPECT_EQ(row(1), "gone.zfsm: gone");
    EXPECT_EQ(row(2), "changed.zfsm: changed since");
}

TEST_F(RecoveryTest, ADamagedJournalGivesWhatStandsBeforeTheDamageAndSaysSo) {
    LoseTransitions(QStringLiteral("machine.zfsm"), 3);
    ASSERT_EQ(Journals().size(), 1);
    const QString name = QStringLiteral("state/orvane/recovery/") + Journals().constFirst();
    std::string bytes = ReadFile(name);
    const std::size_t third = bytes.rfind("transition");
    const std::size_t second = bytes.rfind("transition", third - 1);
    ASSERT_NE(second, std::string::npos);
    bytes[second] = 'X';
    WriteFile(name, bytes);
    StartAgain();
    EXPECT_EQ(Shown("lstRecovered", 0, 3), "1, not all readable");
    Answers.Press(QMessageBox::Ok);
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(6, 1), "1:Idle");
    EXPECT_EQ(Text(6, 2), "");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_TRUE(
        Answers.Seen()[0].Text.starts_with("A part of the unsaved work on machine.zfsm could not be read."));
}

TEST_F(RecoveryTest, AJournalOfWhichNothingCanBeReadStaysAndIsTold) {
    QDir().mkpath(FolderPath());
    WriteFile(QStringLiteral("state/orvane/recovery/20991121T205300Z-0123ABCD.orj"), "no journal");
    StartAgain();
    Answers.Press(QMessageBox::Ok);
    Press(Recovery(), "cmdRecover");
    EXPECT_TRUE(Answers.Seen()[0].Text.starts_with("Nothing of this work can be read any more"));
    EXPECT_EQ(Count("lstRecovered"), 1);
    EXPECT_FALSE(Title().starts_with("*"));
    Answers.Press(QMessageBox::Yes);
    Press(Recovery(), "cmdDiscard");
    EXPECT_EQ(Count("lstRecovered"), 0);
}

TEST_F(RecoveryTest, WorkThatAnotherWindowHasTakenIsNotTakenTwice) {
    LoseWork();
    StartAgain();
    const RecoveryFolder folder = Folder();
    const Result<AdoptedJournal> taken = folder.Adopt(Journals().constFirst().toStdString(), TimeNow());
    ASSERT_FALSE(taken.Failure);
    Answers.Press(QMessageBox::Ok);
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Answers.Seen()[0].Text, "Another window of Orvane has this work now. Look for it there.");
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_EQ(Count("lstRecovered"), 0);
    folder.LetGo(taken.Got);
}

// As after a kill between the save and its record.
TEST_F(RecoveryTest, ASaveThatTheJournalNoLongerHeardOfIsNotTakenForAnotherPrograms) {
    LoseTransitions(QStringLiteral("machine.zfsm"), 2);
    FsmDocument saved = PumpDocument();
    saved.State(1).Targets[6] = 1;
    saved.State(2).Targets[6] = 2;
    WriteFile(QStringLiteral("machine.zfsm"), WriteDocument(saved));
    StartAgain();
    EXPECT_EQ(Shown("lstRecovered", 0, 3), "0");
    EXPECT_EQ(Shown("lstRecovered", 0, 4), "saved already");
    Press(Recovery(), "cmdRecover");
    EXPECT_FALSE(Title().starts_with("*"));
    EXPECT_TRUE(Item("mnuUndo")->isEnabled());
    const auto* strip = Find<QWidget>("fraFileChanged");
    EXPECT_TRUE(strip == nullptr || !strip->isVisible());
    TypeTarget(7, 1, QStringLiteral("1"));
    Trigger("mnuFSave");
    EXPECT_TRUE(Answers.Seen().empty());
}

TEST_F(RecoveryTest, WorkOnADocumentThatIsGoneIsSavedWhereItWas) {
    LoseWork();
    ASSERT_TRUE(QFile::remove(Path(QStringLiteral("machine.zfsm"))));
    StartAgain();
    EXPECT_EQ(Shown("lstRecovered", 0, 4), "gone");
    Press(Recovery(), "cmdRecover");
    EXPECT_TRUE(Title().starts_with("*machine.zfsm"));
    EXPECT_EQ(SavedDocument().State(2).Targets[6], 2);
    EXPECT_FALSE(Title().starts_with("*"));
    EXPECT_TRUE(Answers.Seen().empty());
}

TEST_F(RecoveryTest, TheScriptThatWasBeingTypedComesBackInItsWindow) {
    StartOn(PumpDocument());
    Trigger("mnuBuilder");
    QTest::keyClicks(&Script(), QStringLiteral("half a li"));
    const QString typed = Script().toPlainText();
    ASSERT_TRUE(QTest::qWaitFor([this] { return Journals().size() == 1; }));
    Crash();
    for (int crash = 0; crash < 2; ++crash) {
        StartAgain();
        EXPECT_EQ(Shown("lstRecovered", 0, 3), "0 and an open editor");
        Press(Recovery(), "cmdRecover");
        ASSERT_TRUE(Script().window()->isVisible());
        EXPECT_EQ(Script().toPlainText(), typed);
        EXPECT_TRUE(Script().document()->isModified());
        Crash();
    }
    EXPECT_FALSE(ReadFile(QStringLiteral("machine.b1d")).ends_with("half a li"));
}

} // namespace
} // namespace orvane
