// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "kit/CommandLine.h"
#include "session/UserRecoveryFolder.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QDir>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace orvane {
namespace {

const QString kMachine = QStringLiteral("machine.zfsm");
constexpr const char* kWasChanged =
    "machine.zfsm was changed by another program. Reload it, or keep what this window shows: then the next "
    "save asks before it replaces the file.";

class OutsideRoomTest : public TableFixture {
  protected:
    static std::string BytesOf(const std::string& state) {
        FsmDocument document = PumpDocument();
        document.State(1).Name = state;
        return WriteDocument(document);
    }
    void ChangeFromOutside(const std::string& state) { WriteFile(kMachine, BytesOf(state)); }
    void ReplaceFromOutside(const std::string& state) {
        WriteFile(QStringLiteral("new"), BytesOf(state));
        ASSERT_EQ(std::rename(Path(QStringLiteral("new")).toLocal8Bit(), Path(kMachine).toLocal8Bit()), 0);
    }
    void ChangeHere() { TypeTarget(7, 1, QStringLiteral("2")); }

    // The user comes back from another program, and the file has been looked at.
    void ComeBack() { ComeBackTo(Window()); }
    static void ComeBackTo(QWidget& window) {
        QEvent event(QEvent::WindowActivate);
        QApplication::sendEvent(&window, &event);
        const auto& timer = Named<QTimer>(window, "tmrFileLook");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.isActive(); }));
    }
    static bool HasStrip(const QWidget& window) {
        const auto* strip = window.findChild<QFrame*>(QStringLiteral("fraFileChanged"));
        return strip != nullptr && strip->isVisible();
    }
    bool HasStrip() { return HasStrip(Window()); }
    std::string StripText() { return HasStrip() ? Panel("lblFileChanged") : std::string(); }
    bool Offers(const char* button) { return Find<QPushButton>(button)->isVisible(); }

    // The bytes that the recovery folder has of replaced documents.
    std::vector<std::string> Kept() {
        const QDir folder(QString::fromStdU16String(UserRecoveryFolder()->u16string()));
        std::vector<std::string> kept;
        for (const QString& name : folder.entryList({QStringLiteral("*-machine.zfsm")})) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            kept.push_back(file.readAll().toStdString());
        }
        return kept;
    }
};

TEST_F(OutsideRoomTest, AChangeByAnotherProgramIsToldInAStripAndNeverInABox) {
    StartOn(PumpDocument());
    EXPECT_FALSE(HasStrip());
    ChangeFromOutside("Rest");
    ComeBack();
    EXPECT_EQ(StripText(), kWasChanged);
    EXPECT_TRUE(Offers("cmdReload"));
    EXPECT_TRUE(Offers("cmdKeep"));
    EXPECT_TRUE(Offers("cmdCompareFile"));
    EXPECT_TRUE(Answers.Seen().empty());
    EXPECT_EQ(Text(0, 1), "1:Idle");
}

TEST_F(OutsideRoomTest, AReplacedFileIsNoticedWithoutAReturnToTheWindow) {
    StartOn(PumpDocument());
    ReplaceFromOutside("Rest");
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasStrip(); }));
    Press(Window(), "cmdKeep");
    ReplaceFromOutside("Pause");
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasStrip(); })) << "the second one";
}

TEST_F(OutsideRoomTest, AFileWrittenInPlaceIsNoticedWithoutAReturnToTheWindow) {
    StartOn(PumpDocument());
    ChangeFromOutside("Rest");
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasStrip(); }));
}

TEST_F(OutsideRoomTest, TheStripStandsAboveTheTable) {
    StartOn(PumpDocument());
    ChangeFromOutside("Rest");
    ComeBack();
    ASSERT_TRUE(HasStrip());
    QApplication::processEvents();
    const auto bottom = Find<QFrame>("fraFileChanged")->mapToGlobal(QPoint(0, 0)).y();
    EXPECT_LT(bottom, Grid()->mapToGlobal(QPoint(0, 0)).y());
}

TEST_F(OutsideRoomTest, TheStripLeavesTheFocusToWhoeverIsTyping) {
    StartOn(PumpDocument());
    Click(7, 1);
    ASSERT_TRUE(Editor()->isVisible());
    ChangeFromOutside("Rest");
    ComeBack();
    ASSERT_TRUE(HasStrip());
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Window().focusWidget(), Editor());
}

TEST_F(OutsideRoomTest, ReloadShowsTheFileAsItIsNow) {
    StartOn(PumpDocument());
    ChangeFromOutside("Rest");
    ComeBack();
    Press(Window(), "cmdReload");
    EXPECT_EQ(Text(0, 1), "1:Rest");
    EXPECT_FALSE(HasStrip());
    ComeBack();
    EXPECT_FALSE(HasStrip());
}

TEST_F(OutsideRoomTest, ReloadAsksAboutUnsavedWork) {
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    ComeBack();
    Answers.Press(QMessageBox::Cancel);
    Press(Window(), "cmdReload");
    EXPECT_EQ(Answers.Seen().back().Text, "Save current file?");
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_TRUE(HasStrip());
    Answers.Press(QMessageBox::No);
    Press(Window(), "cmdReload");
    EXPECT_EQ(Text(0, 1), "1:Rest");
}

TEST_F(OutsideRoomTest, AKeptDocumentIsNotToldOfTheSameChangeAgain) {
    StartOn(PumpDocument());
    ChangeFromOutside("Rest");
    ComeBack();
    Press(Window(), "cmdKeep");
    EXPECT_FALSE(HasStrip());
    ComeBack();
    EXPECT_FALSE(HasStrip());
    ChangeFromOutside("Pause");
    ComeBack();
    EXPECT_TRUE(HasStrip());
}

TEST_F(OutsideRoomTest, OwnSavesAndATouchSayNothing) {
    StartOn(PumpDocument());
    ChangeHere();
    Trigger("mnuFSave");
    ComeBack();
    EXPECT_FALSE(HasStrip());
    WriteFile(kMachine, ReadFile(kMachine));
    ComeBack();
    EXPECT_FALSE(HasStrip());
}

TEST_F(OutsideRoomTest, AChangeThatIsTakenBackTakesTheStripWithIt) {
    StartOn(PumpDocument());
    const std::string before = ReadFile(kMachine);
    ChangeFromOutside("Rest");
    ComeBack();
    ASSERT_TRUE(HasStrip());
    WriteFile(kMachine, before);
    ComeBack();
    EXPECT_FALSE(HasStrip());
}

TEST_F(OutsideRoomTest, AnotherDocumentBeginsWithoutAStrip) {
    StartOn(PumpDocument());
    ChangeFromOutside("Rest");
    ComeBack();
    Trigger("mnuFNew");
    EXPECT_FALSE(HasStrip());
    ComeBack();
    EXPECT_FALSE(HasStrip());
}

TEST_F(OutsideRoomTest, AFileThatIsGoneIsToldAndSavedAgain) {
    StartOn(PumpDocument());
    QFile::remove(Path(kMachine));
    ComeBack();
    EXPECT_EQ(StripText(), "machine.zfsm is gone: it was deleted, moved or renamed. Save writes it again, as "
                           "this window shows it.");
    EXPECT_FALSE(Offers("cmdReload"));
    Trigger("mnuFSave");
    EXPECT_FALSE(HasStrip());
    EXPECT_TRUE(QFile::exists(Path(kMachine)));
    EXPECT_TRUE(Answers.Seen().empty());
}

TEST_F(OutsideRoomTest, ASaveOverAChangeAsksAndCancelSavesNothing) {
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    Answers.Press(QMessageBox::Cancel);
    Trigger("mnuFSave");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(Answers.Seen()[0].Text,
              "Another program has changed\r\n" + QDir::toNativeSeparators(Path(kMachine)).toStdString() +
                  "\r\nsince it was opened or saved here. Replace it?\r\n\r\nYes: your document takes its "
                  "place; what is there now is kept in the recovery folder.\r\nNo: you save under another "
                  "name.\r\nCancel: nothing is saved.");
    EXPECT_EQ(ReadFile(kMachine), BytesOf("Rest"));
    EXPECT_EQ(Title()[0], '*');
    EXPECT_TRUE(Kept().empty());
}

TEST_F(OutsideRoomTest, YesSavesAndKeepsWhatWasThere) {
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    Answers.Press(QMessageBox::Yes);
    Trigger("mnuFSave");
    EXPECT_EQ(ReadDocument(ReadFile(kMachine)).Document.State(1).Targets[7], 2);
    EXPECT_EQ(Kept(), std::vector{BytesOf("Rest")});
    EXPECT_TRUE(Panel("Panel3").starts_with("What another program had made of the file is kept as "));
    EXPECT_FALSE(HasStrip());
    ChangeHere();
    Trigger("mnuFSave");
    EXPECT_EQ(Answers.Seen().size(), 1u) << "the file is this window's again";
}

TEST_F(OutsideRoomTest, NoSavesUnderAnotherName) {
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    Answers.Press(QMessageBox::No).ChooseFile(Path(QStringLiteral("mine.zfsm")));
    Trigger("mnuFSave");
    EXPECT_EQ(ReadFile(kMachine), BytesOf("Rest"));
    EXPECT_EQ(ReadDocument(ReadFile(QStringLiteral("mine.zfsm"))).Document.State(1).Targets[7], 2);
    EXPECT_EQ(Title()[0], 'm');
}

TEST_F(OutsideRoomTest, ReturnDoesNotReplaceAnothersWork) {
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    InNextDialog(Answers, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Trigger("mnuFSave");
    EXPECT_EQ(ReadFile(kMachine), BytesOf("Rest"));
}

TEST_F(OutsideRoomTest, TheQuestionOfCloseDoesNotReplaceAnothersWorkEither) {
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    Answers.Press(QMessageBox::Yes).Press(QMessageBox::Cancel);
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(ReadFile(kMachine), BytesOf("Rest"));
}

TEST_F(OutsideRoomTest, WhatCannotBeKeptIsNotReplaced) {
    WriteFile(QStringLiteral("state"), "a file where the folder should be");
    StartOn(PumpDocument());
    ChangeHere();
    ChangeFromOutside("Rest");
    Answers.Press(QMessageBox::Yes).Press(QMessageBox::Ok);
    Trigger("mnuFSave");
    EXPECT_EQ(ReadFile(kMachine), BytesOf("Rest"));
    EXPECT_EQ(Title()[0], '*');
    ASSERT_EQ(Answers.Seen().size(), 2u);
    EXPECT_TRUE(Answers.Seen()[1].Text.starts_with("Nothing was saved: no copy of\r\n"));
}

TEST_F(OutsideRoomTest, ASecondWindowOnTheSameDocumentSaysSo) {
    StartOn(PumpDocument());
    {
        frmTable other;
        other.show();
        other.Start({Path(kMachine), false});
        EXPECT_TRUE(HasStrip(other));
        EXPECT_EQ(Named<QLabel>(other, "lblFileChanged").text().toStdString(),
                  "machine.zfsm is open in another window too. Edit it in one of them: a save in the other "
                  "asks before it replaces the file.");
        EXPECT_FALSE(HasStrip());
        Trigger("mnuFNew");
        ComeBackTo(other);
        EXPECT_FALSE(HasStrip(other)) << "the first one has left it";
    }
    EXPECT_FALSE(HasStrip());
}

TEST_F(OutsideRoomTest, AWindowThatIsGoneLeavesNoMarker) {
    StartOn(PumpDocument());
    EXPECT_TRUE(Window().close());
    frmTable other;
    other.show();
    other.Start({Path(kMachine), false});
    EXPECT_FALSE(HasStrip(other));
}

} // namespace
} // namespace orvane
