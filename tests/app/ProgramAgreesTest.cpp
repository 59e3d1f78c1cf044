// SPDX-License-Identifier: GPL-3.0-or-later
// The program beside a document is that of the saved document once the window has left it.
#include "codegen/CodeGenerator.h"
#include "codegen/PathInProgram.h"
#include "core/DocumentWriter.h"
#include "files/NativeFiles.h"
#include "session/UserRecoveryFolder.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QDir>
#include <QFile>

namespace orvane {
namespace {

const QString kProgram = QStringLiteral("machine.zls");
constexpr const char* kForeign = "; timer routines, written by hand\r\n";
const std::string kNotOurs = "machine.zls was not made by Orvane. What was in it is kept as ";

class ProgramAgrees : public TableFixture {
  protected:
    void ChangeDesign() { TypeTarget(7, 1, QStringLiteral("2")); }
    // Drops the changes by the question that the command asks.
    void DropBy(const char* item) {
        Answers.Press(QMessageBox::No);
        Trigger(item);
    }
    std::string Program() { return ReadFile(kProgram); }
    std::string ProgramOf(const FsmDocument& document) {
        const std::string path = Path(QStringLiteral("machine.zfsm")).toStdString();
        return ProgramFileBytes(GenerateProgram(document, {PathInProgram(path), "01/01/1970 00:00:00"}));
    }
    bool ThereIsAProgram() { return QFile::exists(Path(kProgram)); }
    QStringList Kept() {
        const std::u16string folder = UserRecoveryFolder()->u16string();
        return QDir(QString::fromStdU16String(folder)).entryList({QStringLiteral("*-machine.zls")});
    }
    std::uint64_t FileNumber() { return NativeFiles().Look(Path(kProgram).toStdU16String()).Got.Number; }

    // A machine without a prefix, which is a design error.
    static FsmDocument Faulty() {
        FsmDocument document = PumpDocument();
        document.General.FsmName.clear();
        return document;
    }
    void NameTheMachine();
};

// The design is sound from here on.
void ProgramAgrees::NameTheMachine() {
    Answers.Do([](QWidget& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("txtName"))->setText(QStringLiteral("PMP"));
        orvane::Press(dialog, "cmdOK");
    });
    Click(0, 0);
}

TEST_F(ProgramAgrees, NoToTheQuestionOfNewBringsBackTheSavedProgram) {
    StartOn(PumpDocument());
    ChangeDesign();
    ASSERT_NE(Program(), ProgramOf(PumpDocument()));
    DropBy("mnuFNew");
    EXPECT_EQ(Program(), ProgramOf(PumpDocument()));
}

TEST_F(ProgramAgrees, NoToTheQuestionOfOpenBringsItBackOnlyWhenAnotherDocumentIsOpened) {
    StartOn(PumpDocument());
    WriteFile(QStringLiteral("other.zfsm"), WriteDocument(FsmDocument()));
    ChangeDesign();
    const std::string changed = Program();
    Answers.Press(QMessageBox::No).CancelFile();
    Trigger("mnuFOpen");
    EXPECT_EQ(Program(), changed);
    Answers.Press(QMessageBox::No).ChooseFile(Path(QStringLiteral("other.zfsm")));
    Trigger("mnuFOpen");
    EXPECT_EQ(Program(), ProgramOf(PumpDocument()));
}

TEST_F(ProgramAgrees, NoToTheQuestionOfCloseBringsItBack) {
    StartOn(PumpDocument());
    ChangeDesign();
    Answers.Press(QMessageBox::No);
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(Program(), ProgramOf(PumpDocument()));
}

TEST_F(ProgramAgrees, WhatTheQuestionOfUnsavedWorkDoesNotCountIsBroughtBackToo) {
    StartOn(PumpDocument());
    Trigger("mnuPolytask");
    ASSERT_NE(Program(), ProgramOf(PumpDocument()));
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(Program(), ProgramOf(PumpDocument()));
}

TEST_F(ProgramAgrees, AProgramThatNobodyChangedIsNotTouched) {
    StartOn(PumpDocument());
    Trigger("mnuFNew");
    EXPECT_FALSE(ThereIsAProgram());
}

TEST_F(ProgramAgrees, WhatAgreesByItselfIsNotWrittenAgain) {
    StartOn(PumpDocument());
    ChangeDesign();
    Trigger("mnuUndo");
    const std::uint64_t number = FileNumber();
    Trigger("mnuFNew");
    EXPECT_EQ(FileNumber(), number);
}

TEST_F(ProgramAgrees, SavedChangesStayInTheProgram) {
    StartOn(PumpDocument());
    ChangeDesign();
    const std::string changed = Program();
    Trigger("mnuFSave");
    Trigger("mnuFNew");
    EXPECT_EQ(Program(), changed);
}

TEST_F(ProgramAgrees, ASaveUnderAnotherNameLeavesTheSavedProgramBehind) {
    StartOn(PumpDocument());
    ChangeDesign();
    Answers.ChooseFile(Path(QStringLiteral("other.zfsm")));
    Trigger("mnuFSaveAs");
    EXPECT_EQ(Program(), ProgramOf(PumpDocument()));
}

TEST_F(ProgramAgrees, AProgramThatAnotherProgramHasWrittenSinceIsNotTouched) {
    StartOn(PumpDocument());
    ChangeDesign();
    WriteFile(kProgram, "longer than what was there? no, but another one");
    DropBy("mnuFNew");
    EXPECT_EQ(Program(), "longer than what was there? no, but another one");
}

TEST_F(ProgramAgrees, BesideAFaultyDocumentTheProgramIsWhatItWasBefore) {
    const std::string former = ProgramOf(PumpDocument());
    WriteFile(kProgram, former);
    StartOn(Faulty());
    NameTheMachine();
    ChangeDesign();
    ASSERT_NE(Program(), former);
    DropBy("mnuFNew");
    EXPECT_EQ(Program(), former);
}

TEST_F(ProgramAgrees, BesideAFaultyDocumentNoProgramIsLeftWhereNoneWas) {
    StartOn(Faulty());
    NameTheMachine();
    ASSERT_TRUE(ThereIsAProgram());
    DropBy("mnuFNew");
    EXPECT_FALSE(ThereIsAProgram());
}

TEST_F(ProgramAgrees, AFileOfSomebodyElseIsKeptBeforeTheFirstEditReplacesIt) {
    WriteFile(kProgram, kForeign);
    StartOn(PumpDocument());
    ChangeDesign();
    ASSERT_EQ(Kept().size(), 1);
    const std::string copy = (*UserRecoveryFolder() / Kept().first().toStdU16String()).string();
    QFile kept(QString::fromStdString(copy));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll().toStdString(), kForeign);
    EXPECT_TRUE(Panel("Panel3").starts_with(kNotOurs + copy)) << Panel("Panel3");
}

TEST_F(ProgramAgrees, ThatIsToldOnce) {
    WriteFile(kProgram, kForeign);
    StartOn(PumpDocument());
    ChangeDesign();
    TypeTarget(6, 2, QStringLiteral("1"));
    EXPECT_EQ(Kept().size(), 1);
    EXPECT_FALSE(Panel("Panel3").starts_with(kNotOurs));
}

TEST_F(ProgramAgrees, AProgramOfOursIsReplacedWithoutACopy) {
    WriteFile(kProgram, ProgramOf(PumpDocument()));
    StartOn(PumpDocument());
    ChangeDesign();
    EXPECT_EQ(Kept().size(), 0);
    EXPECT_FALSE(Panel("Panel3").starts_with(kNotOurs));
}

TEST_F(ProgramAgrees, AFileOfSomebodyElseThatCannotBeKeptIsNotReplaced) {
    WriteFile(QStringLiteral("state"), "a file where the folder should be");
    WriteFile(kProgram, kForeign);
    StartOn(PumpDocument());
    Answers.Press(QMessageBox::Ok);
    ChangeDesign();
    EXPECT_EQ(Program(), kForeign);
    ASSERT_TRUE(QTest::qWaitFor([this] { return Answers.Seen().size() == 1; })); // in a pause
    EXPECT_TRUE(Answers.Seen()[0].Text.ends_with("What is there was not made by Orvane, and no copy of it "
                                                 "could be kept (Not a directory). Move it away "
                                                 "or save the document under another name."))
        << Answers.Seen()[0].Text;
}

} // namespace
} // namespace orvane
