// SPDX-License-Identifier: GPL-3.0-or-later
// What the builder touches and what it asks for, from the main window.
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/TableFixture.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace orvane {
namespace {

const QString kScript = QStringLiteral("machine.b1d");
constexpr const char* kMine = "CODESEG\nmine.zls\n";

class BuilderRoomTest : public TableFixture {
  protected:
    // The document names this script; the builder is shown.
    void StartNaming(const std::string& buildFile) {
        FsmDocument document = PumpDocument();
        document.General.BuildFile = buildFile;
        StartOn(document);
    }
    void OpenBuilder() { Trigger("mnuBuilder"); }
    QWidget& Builder() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("frmBuilder") && window->isVisible())
                return *window;
        }
        throw std::runtime_error("no builder window");
    }
    std::string Script() {
        return Named<QPlainTextEdit>(Builder(), "txtBuildScript").toPlainText().toStdString();
    }
    std::string FileName() { return Named<QLineEdit>(Builder(), "txtFileName").text().toStdString(); }
    std::string PathOf(const char* name) { return Path(QString::fromLatin1(name)).toStdString(); }
    void TypeIntoScript(const char* text) {
        QTest::keyClicks(&Named<QPlainTextEdit>(Builder(), "txtBuildScript"), QString::fromLatin1(text));
    }
    void ExpectRefused(const std::string& why) {
        ASSERT_EQ(Answers.Seen().size(), 1u);
        EXPECT_NE(Answers.Seen()[0].Text.find(why), std::string::npos) << Answers.Seen()[0].Text;
        EXPECT_EQ(FileName(), PathOf("machine.b1d"));
    }

    OpenedAddresses Opened;
};

TEST_F(BuilderRoomTest, AFileOfAnotherKindThatTheDocumentNamesIsNotRead) {
    WriteFile(QStringLiteral("run.sh"), "#!/bin/sh\n");
    StartNaming(PathOf("run.sh"));
    Answers.Press(QMessageBox::Ok);
    OpenBuilder();
    ExpectRefused("run.sh\r\nis not used as the builder script: its name does not end in .b1d.");
    EXPECT_EQ(ReadFile(QStringLiteral("run.sh")), "#!/bin/sh\n");
}

#ifndef _WIN32
TEST_F(BuilderRoomTest, APipeIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(PathOf("pipe.b1d").c_str(), 0600), 0);
    StartNaming(PathOf("pipe.b1d"));
    Answers.Press(QMessageBox::Ok);
    OpenBuilder();
    ExpectRefused("it is no file but a folder, a pipe or a device");
}

TEST_F(BuilderRoomTest, ALinkToAFileOfAnotherKindIsNotWrittenThrough) {
    WriteFile(QStringLiteral("run.desktop"), "[Desktop Entry]\n");
    ASSERT_TRUE(QFile::link(Path(QStringLiteral("run.desktop")), Path(kScript)));
    StartOn(PumpDocument());
    Answers.Press(QMessageBox::Ok);
    OpenBuilder();
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_NE(Answers.Seen()[0].Text.find("it is a link to "), std::string::npos);
    EXPECT_TRUE(Script().starts_with(";#SILENT"));
    EXPECT_EQ(FileName(), "");
    EXPECT_EQ(ReadFile(QStringLiteral("run.desktop")), "[Desktop Entry]\n");
}

TEST_F(BuilderRoomTest, ALinkThatLeadsOutOfTheFolderIsAskedFor) {
    QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("theirs.b1d"));
    QFile file(target);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kMine);
    file.close();
    ASSERT_TRUE(QFile::link(target, Path(kScript)));
    StartOn(PumpDocument());
    Answers.Press(QMessageBox::No);
    OpenBuilder();
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_NE(Answers.Seen()[0].Text.find(target.toStdString()), std::string::npos);
    EXPECT_TRUE(Script().starts_with(";#SILENT"));
}
#endif

#ifndef _WIN32
TEST_F(BuilderRoomTest, WhatTheFileLosesByASaveIsToldInTheStatusBar) {
    WriteFile(kScript, kMine);
    ASSERT_EQ(::link(PathOf("machine.b1d").c_str(), PathOf("same.b1d").c_str()), 0);
    StartOn(PumpDocument());
    OpenBuilder();
    TypeIntoScript(";");
    Press(Builder(), "cmdSave");
    EXPECT_TRUE(Panel("Panel3").starts_with(
        "machine.b1d: The file has other names (hard links): these keep what was there before"));
}
#endif

TEST_F(BuilderRoomTest, TheWindowSaysWhoseScriptItShows) {
    Start({QStringLiteral("/nosplash")});
    OpenBuilder();
    const auto edited = [this] { return Named<QLabel>(Builder(), "lblEdited").text().toStdString(); };
    EXPECT_EQ(edited(), "The builder script of a machine that has no file yet");
    for (const char* name : {"pump.zfsm", "gate.zfsm"}) {
        TypeIntoScript("x"); // the script stays as it is being edited
        Answers.ChooseFile(Path(QString::fromLatin1(name)));
        Trigger("mnuFSaveAs");
        EXPECT_EQ(edited(), std::string("The builder script of ") + name);
    }
    Answers.Press(QMessageBox::No);
    Trigger("mnuFNew");
    EXPECT_EQ(edited(), "The builder script of a machine that has no file yet");
}

TEST_F(BuilderRoomTest, BinaryDataIsNoScript) {
    WriteFile(kScript, std::string("CODESEG\0", 8));
    StartNaming(PathOf("machine.b1d"));
    Answers.Press(QMessageBox::No).Press(QMessageBox::Ok); // not to be replaced
    OpenBuilder();
    EXPECT_EQ(ReadFile(kScript), std::string("CODESEG\0", 8));
}

TEST_F(BuilderRoomTest, AScriptElsewhereIsAskedForOnce) {
    QTemporaryDir elsewhere;
    const QString path = elsewhere.filePath(QStringLiteral("whole.b1d"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kMine);
    file.close();
    StartNaming(path.toStdString());
    Answers.Press(QMessageBox::Yes);
    OpenBuilder();
    EXPECT_EQ(Script(), kMine);
    TypeIntoScript(";");
    Press(Builder(), "cmdSave");
    Trigger("mnuBuildAndTest");
    EXPECT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Opened.Addresses.size(), 1);
}

TEST_F(BuilderRoomTest, WithoutAYesAScriptElsewhereIsNotTouched) {
    QTemporaryDir elsewhere;
    const QString path = elsewhere.filePath(QStringLiteral("whole.b1d"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    StartNaming(path.toStdString());
    Answers.Press(QMessageBox::No);
    OpenBuilder();
    EXPECT_EQ(FileName(), PathOf("machine.b1d"));
    EXPECT_TRUE(Script().starts_with(";#SILENT"));
}

TEST_F(BuilderRoomTest, UnchangedTextIsNotWritten) {
    WriteFile(kScript, "CODESEG\nmine.zls");
    StartOn(PumpDocument());
    OpenBuilder();
    Trigger("mnuBuildAndTest");
    EXPECT_EQ(Opened.Addresses.size(), 1);
    EXPECT_EQ(ReadFile(kScript), "CODESEG\nmine.zls");
}

TEST_F(BuilderRoomTest, TheDocumentNamesItsScriptInEverySave) {
    StartOn(PumpDocument());
    OpenBuilder();
    Builder().close();
    for (const char* save : {"first", "second", "third"}) {
        Trigger("mnuFSave");
        EXPECT_NE(ReadFile(QStringLiteral("machine.zfsm")).find("machine.b1d"), std::string::npos) << save;
    }
}

TEST_F(BuilderRoomTest, UnsavedTextIsAskedForBeforeItIsLost) {
    WriteFile(QStringLiteral("other.zfsm"), "FSM_NAME\xA4OTH\xA4\r\n");
    StartOn(PumpDocument());
    OpenBuilder();
    TypeIntoScript("x");
    const std::string typed = Script();
    Answers.Press(QMessageBox::Cancel);
    Trigger("mnuFNew");
    EXPECT_EQ(Answers.Seen().back().Text, "Save changes to the builder script?\r\n" + PathOf("machine.b1d"));
    Answers.Press(QMessageBox::Cancel);
    Trigger("mnuFOpen");
    Answers.Press(QMessageBox::Cancel);
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(Answers.Seen().size(), 3u);
    EXPECT_EQ(Script(), typed);
    EXPECT_EQ(Panel("Panel2"), "PMP");
}

TEST_F(BuilderRoomTest, YesSavesTheTextBeforeTheDocumentGoes) {
    StartOn(PumpDocument());
    OpenBuilder();
    TypeIntoScript("x");
    Answers.Press(QMessageBox::Yes);
    Trigger("mnuFNew");
    EXPECT_TRUE(ReadFile(kScript).ends_with("\r\nx")) << ReadFile(kScript);
}

TEST_F(BuilderRoomTest, NoDropsTheTextAndIsNotAskedAgain) {
    StartOn(PumpDocument());
    OpenBuilder();
    TypeIntoScript("x");
    Answers.Press(QMessageBox::No);
    EXPECT_TRUE(Window().close());
    EXPECT_TRUE(ReadFile(kScript).starts_with(";#SILENT"));
}

} // namespace
} // namespace orvane
