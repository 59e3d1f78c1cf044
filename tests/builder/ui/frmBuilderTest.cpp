// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/frmBuilder.h"

#include "builder/BuilderScript.h"
#include "session/Session.h"
#include "support/ui/DialogAnswer.h"
#include "support/ui/OpenedAddresses.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace orvane {
namespace {

constexpr const char* kSaveFailed = "Save failed. Check the path/filename is valid";
constexpr const char* kBuildNotSaved = "Sorry, the Build file failed to save. Check the file name / path.";
constexpr const char* kHasErrors =
    "Sorry, unable to do that right now. The generated *.zls file contains errors.\r\n\r\n"
    "Hint: Check the error listing in the code generation window";
constexpr const char* kChanged =
    "The Builder script has been changed on disk. Do you want to load the new version from disk?";
constexpr const char* kMissing =
    "Unable to open the previous Builder file. Perhaps you deleted it. A new one will be generated";

// A builder window for a document in a folder of its own; the generator succeeds unless a test says
// otherwise.
class frmBuilderTest : public testing::Test {
  protected:
    void Open(const QString& documentName, const std::string& buildFile = {}) {
        Replace(documentName, buildFile);
        session_.Observe(ObserverRank::Generator, generator_);
        builder_ = std::make_unique<frmBuilder>(session_);
        QObject::connect(builder_.get(), &frmBuilder::BuildWanted, builder_.get(), &frmBuilder::GoGoGo);
        builder_->StartDocument();
    }

    // Another document takes the place of the one before.
    void Replace(const QString& documentName, const std::string& buildFile = {}) {
        FsmDocument document;
        document.General.BuildFile = buildFile;
        session_.Replace(document, documentName.isEmpty() ? std::string() : Path(documentName).toStdString());
    }

    void SaveAs(const QString& documentName) {
        session_.MarkSaved(Path(documentName).toStdString());
        builder_->RenameDocument();
    }

    std::string BuildFile() const { return session_.Document().General.BuildFile; }

    void Show() {
        builder_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(builder_.get()));
    }

    template <typename Control>
    Control& Find(const char* name) {
        return *builder_->findChild<Control*>(QString::fromUtf8(name));
    }

    QString Path(const QString& name) const { return folder_.filePath(name); }
    std::string Script() { return Find<QPlainTextEdit>("txtBuildScript").toPlainText().toStdString(); }
    QString FileName() { return Find<QLineEdit>("txtFileName").text(); }
    void Press(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }

    void Write(const QString& name, const QByteArray& bytes) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Read(const QString& name) {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    // As if the user came back from another program.
    void Activate() {
        QEvent event(QEvent::WindowActivate);
        QApplication::sendEvent(builder_.get(), &event);
    }

    std::string Starter(const QString& documentName) {
        std::string script = StarterScript(Path(documentName).toStdString());
        return script;
    }

    QTemporaryDir folder_;
    // Stands in for the generator.
    struct Generator final : SessionObserver {
        explicit Generator(Session& session) : Open(session) {}
        void Told(const Change& change) override {
            if (change.Kind != ChangeKind::ProgramWanted)
                return;
            ++Runs;
            Open.SetProgram({.Written = Succeeds});
        }

        Session& Open;
        bool Succeeds = true;
        int Runs = 0;
    };

    Session session_;
    Generator generator_{session_};
    OpenedAddresses opened_;
    DialogAnswer answers_;
    std::unique_ptr<frmBuilder> builder_;
};

TEST_F(frmBuilderTest, TheStarterScriptIsMadeBesideTheDocumentWhenFirstShown) {
    Open(QStringLiteral("pump.zfsm"));
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("pump.b1d"))));
    Show();
    EXPECT_EQ(FileName(), Path(QStringLiteral("pump.b1d")));
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")).toStdString(), Starter(QStringLiteral("pump.zfsm")));
    EXPECT_EQ(BuildFile(), FileName().toStdString());
}

TEST_F(frmBuilderTest, ADocumentWithoutAFileShowsTheStarterScriptWithoutAFileName) {
    Open({});
    Show();
    EXPECT_TRUE(Script().starts_with(";#SILENT"));
    EXPECT_EQ(FileName(), QString());
    EXPECT_EQ(BuildFile(), "");
}

TEST_F(frmBuilderTest, AnExistingScriptBesideTheDocumentIsReadNotOverwritten) {
    Write(QStringLiteral("pump.b1d"), "CODESEG\nmine.zls");
    Open(QStringLiteral("pump.zfsm"));
    Show();
    EXPECT_EQ(Script(), "CODESEG\nmine.zls\n");
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")), "CODESEG\nmine.zls");
}

TEST_F(frmBuilderTest, TheScriptThatTheDocumentNamesIsRead) {
    Write(QStringLiteral("whole.b1d"), "CODESEG\r\n");
    Write(QStringLiteral("pump.b1d"), "other\r\n");
    Open(QStringLiteral("pump.zfsm"), Path(QStringLiteral("whole.b1d")).toStdString());
    Show();
    EXPECT_EQ(Script(), "CODESEG\n");
    EXPECT_EQ(FileName(), Path(QStringLiteral("whole.b1d")));
}

TEST_F(frmBuilderTest, AMissingNamedScriptIsToldAndMadeAnew) {
    answers_.Press(QMessageBox::Ok);
    Open(QStringLiteral("pump.zfsm"), Path(QStringLiteral("gone.b1d")).toStdString());
    Show();
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_EQ(answers_.Seen()[0].Text, kMissing);
    EXPECT_EQ(answers_.Seen()[0].Icon, QMessageBox::Warning);
    EXPECT_EQ(FileName(), Path(QStringLiteral("pump.b1d")));
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")).toStdString(), Starter(QStringLiteral("pump.zfsm")));
}

TEST_F(frmBuilderTest, AFolderInPlaceOfTheNamedScriptCountsAsMissing) {
    answers_.Press(QMessageBox::Ok);
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("folder.b1d")));
    Open(QStringLiteral("pump.zfsm"), Path(QStringLiteral("folder.b1d")).toStdString());
    Show();
    EXPECT_EQ(FileName(), Path(QStringLiteral("pump.b1d")));
}

TEST_F(frmBuilderTest, BuildingHandsTheSavedScriptToTheDesktop) {
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Find<QPlainTextEdit>("txtBuildScript").appendPlainText(QStringLiteral("other.zls"));
    Press("cmdRun");
    EXPECT_EQ(generator_.Runs, 1);
    EXPECT_TRUE(Read(QStringLiteral("pump.b1d")).endsWith("other.zls"));
    EXPECT_EQ(opened_.Addresses, QList{QUrl::fromLocalFile(Path(QStringLiteral("pump.b1d")))});
}

TEST_F(frmBuilderTest, ABuildOfADesignWithErrorsSavesTheScriptAndSaysSo) {
    generator_.Succeeds = false;
    answers_.Press(QMessageBox::Ok);
    Open(QStringLiteral("pump.zfsm"));
    builder_->GoGoGo();
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_EQ(answers_.Seen()[0].Text, kHasErrors);
    EXPECT_EQ(answers_.Seen()[0].Icon, QMessageBox::Warning);
    EXPECT_TRUE(QFile::exists(Path(QStringLiteral("pump.b1d"))));
    EXPECT_TRUE(opened_.Addresses.isEmpty());
}

TEST_F(frmBuilderTest, ABuildWhoseScriptCannotBeSavedStops) {
    answers_.Press(QMessageBox::Ok).Press(QMessageBox::Ok);
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Find<QLineEdit>("txtFileName").setText(Path(QStringLiteral("no/such/folder/pump.b1d")));
    Press("cmdRun");
    ASSERT_EQ(answers_.Seen().size(), 2u);
    EXPECT_EQ(answers_.Seen()[0].Text, kSaveFailed);
    EXPECT_EQ(answers_.Seen()[1].Text, kBuildNotSaved);
    EXPECT_TRUE(opened_.Addresses.isEmpty());
}

TEST_F(frmBuilderTest, SavingWithoutAFileNameAsksForOne) {
    answers_.ChooseFile(Path(QStringLiteral("chosen.b1d")));
    Open({});
    Show();
    Press("cmdSave");
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_EQ(answers_.Seen()[0].NameFilters,
              (QStringList{QStringLiteral("All Files (*.*)"), QStringLiteral("Config file (*.b1d)")}));
    EXPECT_TRUE(Read(QStringLiteral("chosen.b1d")).startsWith(";#SILENT"));
    EXPECT_EQ(FileName(), Path(QStringLiteral("chosen.b1d")));
}

TEST_F(frmBuilderTest, CancellingTheSaveDialogOfABuildStopsIt) {
    answers_.CancelFile().Press(QMessageBox::Ok);
    Open({});
    builder_->GoGoGo();
    EXPECT_EQ(answers_.Seen().back().Text, kBuildNotSaved);
    EXPECT_TRUE(opened_.Addresses.isEmpty());
}

TEST_F(frmBuilderTest, AScriptThatWasNeverReadHereIsNotOverwrittenUnasked) {
    Write(QStringLiteral("theirs.b1d"), "theirs\r\n");
    answers_.Press(QMessageBox::No).Press(QMessageBox::Yes);
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Find<QLineEdit>("txtFileName").setText(Path(QStringLiteral("theirs.b1d")));
    Press("cmdSave");
    EXPECT_EQ(Read(QStringLiteral("theirs.b1d")), "theirs\r\n");
    Press("cmdSave");
    EXPECT_TRUE(Read(QStringLiteral("theirs.b1d")).startsWith(";#SILENT"));
}

TEST_F(frmBuilderTest, ChoosingAFileLoadsIt) {
    Write(QStringLiteral("other.b1d"), "one\rtwo\nthree\r\n");
    answers_.ChooseFile(Path(QStringLiteral("other.b1d")));
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Press("cmdSelectFile");
    EXPECT_EQ(Script(), "one\ntwo\nthree\n");
    EXPECT_EQ(FileName(), Path(QStringLiteral("other.b1d")));
    EXPECT_EQ(answers_.Seen()[0].NameFilters,
              (QStringList{QStringLiteral("All Files (*.*)"), QStringLiteral("Builder script (*.b1d)")}));
}

TEST_F(frmBuilderTest, AChangeOnDiskIsAskedAboutOncePerDifference) {
    answers_.Press(QMessageBox::No).Press(QMessageBox::Yes);
    Open(QStringLiteral("pump.zfsm"));
    Show();
    const std::string before = Script();
    Write(QStringLiteral("pump.b1d"), "second\r\n");
    Activate();
    Activate();
    EXPECT_EQ(Script(), before);
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_EQ(answers_.Seen()[0].Title, "Changed script");
    EXPECT_EQ(answers_.Seen()[0].Text, kChanged);
    EXPECT_EQ(answers_.Seen()[0].Icon, QMessageBox::Warning);
    EXPECT_EQ(answers_.Seen()[0].Buttons, QMessageBox::Yes | QMessageBox::No);
    Write(QStringLiteral("pump.b1d"), "third\r\n");
    Activate();
    EXPECT_EQ(Script(), "third\n");
}

TEST_F(frmBuilderTest, ABuildAsksBeforeItReplacesAScriptThatHasChangedOnDisk) {
    Open(QStringLiteral("pump.zfsm"));
    Show();
    builder_->hide();
    Write(QStringLiteral("pump.b1d"), "CODESEG\r\n");
    answers_.Press(QMessageBox::Yes);
    builder_->GoGoGo();
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_EQ(answers_.Seen()[0].Text, kChanged);
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")), "CODESEG\r\n");
    EXPECT_EQ(opened_.Addresses.size(), 1);
}

TEST_F(frmBuilderTest, ASavedScriptWithoutALastLineEndIsNoChangeOnDisk) {
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Find<QPlainTextEdit>("txtBuildScript").setPlainText(QStringLiteral("CODESEG"));
    Press("cmdSave");
    Activate();
    EXPECT_TRUE(answers_.Seen().empty());
}

TEST_F(frmBuilderTest, EveryByteOfAScriptIsSavedAsItWasRead) {
    QByteArray bytes = ";";
    for (int byte = 0x20; byte <= 0xFF; ++byte)
        bytes += static_cast<char>(byte);
    Write(QStringLiteral("pump.b1d"), bytes + "\tend\r\n");
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Find<QPlainTextEdit>("txtBuildScript").appendPlainText(QStringLiteral("x"));
    Press("cmdSave");
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")), bytes + "\tend\r\n\r\nx");
}

TEST_F(frmBuilderTest, AScriptWithCharactersThatItsFileCannotHoldIsNotSaved) {
    Write(QStringLiteral("pump.b1d"), "CODESEG\r\n");
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Find<QPlainTextEdit>("txtBuildScript").appendPlainText(QString::fromUtf8("\xCE\xA9.zls"));
    answers_.Press(QMessageBox::Ok);
    Press("cmdSave");
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_EQ(answers_.Seen()[0].Text,
              "The script was not saved: its file cannot hold every character of the line\r\n\xCE\xA9.zls\r\n"
              "A program in the folder of the script can be named without its path.");
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")), "CODESEG\r\n");
    Activate(); // nothing has changed on disk
}

TEST_F(frmBuilderTest, InAFolderThatTheScriptCannotNameTheProgramStandsWithoutIt) {
    const QString folder = QString::fromUtf8("\xE6\xB0\xB4/");
    ASSERT_TRUE(QDir(Path({})).mkdir(folder));
    Open(folder + QStringLiteral("pump.zfsm"));
    Show();
    EXPECT_EQ(Read(folder + QStringLiteral("pump.b1d")).toStdString(), StarterScript("pump.zfsm"));
    EXPECT_EQ(FileName(), Path(folder + QStringLiteral("pump.b1d")));
    EXPECT_EQ(BuildFile(), ""); // no part of it, which would name another file
    Press("cmdRun");
    ASSERT_EQ(opened_.Addresses.size(), 1);
    EXPECT_EQ(opened_.Addresses[0].toLocalFile(), FileName());
}

TEST_F(frmBuilderTest, ALineBrokenWithShiftIsALineOfTheScript) {
    Write(QStringLiteral("pump.b1d"), "CODESEG");
    Open(QStringLiteral("pump.zfsm"));
    Show();
    QTest::keyClick(&Find<QPlainTextEdit>("txtBuildScript"), Qt::Key_Return, Qt::ShiftModifier);
    Press("cmdSave");
    EXPECT_EQ(Read(QStringLiteral("pump.b1d")), "\r\nCODESEG\r\n");
}

TEST_F(frmBuilderTest, AScriptMayHaveOneMebibyteAndNotAByteMore) {
    const QByteArray largest(1 << 20, ';');
    Write(QStringLiteral("large.b1d"), largest);
    Write(QStringLiteral("larger.b1d"), largest + ";");
    answers_.ChooseFile(Path(QStringLiteral("large.b1d")));
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Press("cmdSelectFile");
    EXPECT_EQ(Script().size(), static_cast<std::size_t>(largest.size()) + 1); // and a line end
    answers_.ChooseFile(Path(QStringLiteral("larger.b1d")))
        .Press(QMessageBox::Ok); // what stands beside the document says the same already
    Press("cmdSelectFile");
    EXPECT_EQ(answers_.Seen().back().Text, kMissing);
    EXPECT_EQ(FileName(), Path(QStringLiteral("pump.b1d")));
}

TEST_F(frmBuilderTest, AScriptThatIsGoneIsNoChangeOnDisk) {
    Open(QStringLiteral("pump.zfsm"));
    Show();
    ASSERT_TRUE(QFile::remove(Path(QStringLiteral("pump.b1d"))));
    Activate();
    EXPECT_TRUE(answers_.Seen().empty());
    Press("cmdSave");
    EXPECT_TRUE(QFile::exists(Path(QStringLiteral("pump.b1d"))));
}

TEST_F(frmBuilderTest, SavingOverAFolderIsToldAndKeepsTheText) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("folder.b1d")));
    answers_.Press(QMessageBox::Ok);
    Open(QStringLiteral("pump.zfsm"));
    Show();
    const std::string before = Script();
    Find<QLineEdit>("txtFileName").setText(Path(QStringLiteral("folder.b1d")));
    Press("cmdSave");
    EXPECT_NE(answers_.Seen().back().Text.find("is not used as the builder script"), std::string::npos);
    EXPECT_EQ(Script(), before);
}

TEST_F(frmBuilderTest, WithoutARegisteredProgramTheUserLearnsWhichScriptToOpen) {
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    answers_.Press(QMessageBox::Ok);
    Open(QStringLiteral("pump.zfsm"));
    builder_->GoGoGo();
    ASSERT_EQ(answers_.Seen().size(), 1u);
    EXPECT_NE(answers_.Seen()[0].Text.find(Path(QStringLiteral("pump.b1d")).toStdString()),
              std::string::npos);
}

TEST_F(frmBuilderTest, ANewNameOfTheDocumentBringsItsOwnScript) {
    Open(QStringLiteral("pump.zfsm"));
    Show();
    SaveAs(QStringLiteral("valve.zfsm"));
    EXPECT_EQ(FileName(), Path(QStringLiteral("valve.b1d")));
    EXPECT_EQ(Read(QStringLiteral("valve.b1d")).toStdString(), Starter(QStringLiteral("valve.zfsm")));
}

TEST_F(frmBuilderTest, ANewNameKeepsAScriptThatTheUserChose) {
    Write(QStringLiteral("whole.b1d"), "CODESEG\r\n");
    Open(QStringLiteral("pump.zfsm"), Path(QStringLiteral("whole.b1d")).toStdString());
    Show();
    SaveAs(QStringLiteral("valve.zfsm"));
    EXPECT_EQ(FileName(), Path(QStringLiteral("whole.b1d")));
}

TEST_F(frmBuilderTest, ANewNameKeepsWhatWasTypedBeforeTheDocumentHadAFile) {
    Open({});
    Show();
    Find<QPlainTextEdit>("txtBuildScript").insertPlainText(QStringLiteral("x"));
    const std::string typed = Script();
    SaveAs(QStringLiteral("pump.zfsm"));
    EXPECT_EQ(Script(), typed);
    EXPECT_EQ(FileName(), Path(QStringLiteral("pump.b1d")));
}

TEST_F(frmBuilderTest, AnotherDocumentBringsItsOwnScript) {
    Open(QStringLiteral("pump.zfsm"));
    Show();
    Replace(QStringLiteral("valve.zfsm")); // which names none
    builder_->StartDocument();
    EXPECT_EQ(FileName(), Path(QStringLiteral("valve.b1d")));
}

TEST_F(frmBuilderTest, AfterTheScriptHadTheFocusTabIsTypedAndDoesNotMoveIt) {
    Open({});
    Show();
    auto& script = Find<QPlainTextEdit>("txtBuildScript");
    auto& name = Find<QLineEdit>("txtFileName");
    script.setFocus();
    QTest::keyClick(&script, Qt::Key_Tab);
    EXPECT_TRUE(Script().starts_with("\t") || Script().ends_with("\t"));
    name.setFocus();
    QTest::keyClick(&name, Qt::Key_Tab);
    EXPECT_TRUE(name.hasFocus());
}

TEST_F(frmBuilderTest, TypingInTheExplanationIsDiscarded) {
    Open({});
    Show();
    auto& prompt = Find<QPlainTextEdit>("txtPrompt");
    const QString before = prompt.toPlainText();
    EXPECT_TRUE(
        before.startsWith(QStringLiteral("The above window contains a basic Builder script (*.b1d)")));
    QTest::keyClicks(&prompt, QStringLiteral("x"));
    EXPECT_EQ(prompt.toPlainText(), before);
}

} // namespace
} // namespace orvane
