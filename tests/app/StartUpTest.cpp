// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/TableFixture.h"

#include "core/DocumentWriter.h"
#include "core/ProgramVersion.h"
#include "kit/CommandLine.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLoggingCategory>

#include <algorithm>

namespace orvane {
namespace {

using Boxes = std::vector<std::string>;

class StartUp : public TableFixture {
  protected:
    // It comes when the table has been painted.
    bool SplashIsShown() {
        Window().repaint();
        QApplication::processEvents();
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("frmSplash") && window->isVisible())
                return true;
        }
        return false;
    }

    // What is told about a document with so many unknown tags, each text without its "Unknown tag ".
    Boxes BoxesFor(int tags) {
        std::string bytes;
        for (int i = 0; i < tags; ++i)
            bytes += "\xA4<TAG" + std::to_string(i) + ">1\xA4/\r\n";
        const std::size_t before = Answers.Seen().size();
        for (int i = 0; i < std::min(tags, 5); ++i)
            Answers.Press(QMessageBox::Ok);
        StartOnBytes(bytes + "\xA4<FSM_NAME>PMP\xA4/\r\n\r\n");
        Boxes boxes;
        for (std::size_t i = before; i < Answers.Seen().size(); ++i)
            boxes.push_back(Answers.Seen()[i].Text.substr(std::string_view("Unknown tag ").size()));
        return boxes;
    }
};

FsmDocument Settings() {
    FsmDocument document;
    document.General.FsmName = "SET";
    document.View.Polytask = true;
    return document;
}

TEST_F(StartUp, WithoutSettingsTheTableIsEmptyAndNothingIsTold) {
    Start();
    EXPECT_EQ(Title(), "[Untitled] - Orvane " + ProgramVersion());
    EXPECT_EQ(Text(0, 1), "1:");
    EXPECT_EQ(Panel("Panel2"), "[Un-named]");
    EXPECT_TRUE(SplashIsShown());
}

TEST_F(StartUp, TheSettingsAreTakenOverWithoutTheirName) {
    WriteFile(QStringLiteral("ORVANE_INI.zfsm"), WriteDocument(Settings()));
    Start({QStringLiteral("/nosplash")});
    EXPECT_EQ(Title(), "[Untitled] - Orvane " + ProgramVersion());
    EXPECT_EQ(Text(0, 0), "SET");
    EXPECT_EQ(Panel("Panel2"), "SET");
    EXPECT_TRUE(Item("mnuPolytask")->isChecked());
    EXPECT_FALSE(SplashIsShown());
    Answers.CancelFile(); // a save asks for a name
    Trigger("mnuFSave");
}

TEST_F(StartUp, ADocumentOnTheCommandLineIsOpenedWithoutSplash) {
    WriteFile(QStringLiteral("ORVANE_INI.zfsm"), WriteDocument(Settings()));
    StartOn(PumpDocument());
    EXPECT_EQ(Title(), "machine.zfsm - Orvane " + ProgramVersion());
    EXPECT_EQ(Text(0, 0), "PMP");
    EXPECT_FALSE(SplashIsShown());
}

TEST_F(StartUp, ADrivePathOnTheCommandLineIsOpenedWithoutSplash) {
    const QString name = QStringLiteral("C:\\my files\\pump.zfsm");
#ifdef Q_OS_WIN
    GTEST_SKIP() << "no file can have this name";
#endif
    WriteFile(name, WriteDocument(PumpDocument()));
    Start(name.split(QLatin1Char(' ')));
    EXPECT_EQ(Text(0, 0), "PMP");
    EXPECT_EQ(Title(), "pump.zfsm - Orvane " + ProgramVersion());
    EXPECT_FALSE(SplashIsShown());
}

TEST_F(StartUp, BrokenSettingsAreToldAndTheProgramGoesOn) {
    WriteFile(QStringLiteral("ORVANE_INI.zfsm"), "\xA4<FSM_NAME>SET\xA4/\r\n\xA4<STATE>200:\xA4/\r\n");
    Answers.Press(QMessageBox::Ok).Press(QMessageBox::Ok);
    Start({QStringLiteral("/nosplash")});
    EXPECT_EQ(Text(0, 0), "SET");
    EXPECT_TRUE(Item("mnuFNew")->isEnabled());
}

TEST_F(StartUp, SettingsThatAreAFolderAreToldAndTheProgramGoesOn) {
    QDir().mkpath(Path(QStringLiteral("ORVANE_INI.zfsm")));
    Answers.Press(QMessageBox::Ok);
    Start({QStringLiteral("/nosplash")});
    EXPECT_NE(Answers.Seen()[0].Text.find("ORVANE_INI.zfsm"), std::string::npos);
    EXPECT_EQ(Text(0, 1), "1:");
}

TEST_F(StartUp, AFileThatDoesNotExistIsToldWithItsName) {
    Answers.Press(QMessageBox::Ok);
    Start({Path(QStringLiteral("missing.zfsm"))});
    EXPECT_NE(Answers.Seen()[0].Text.find("missing.zfsm"), std::string::npos);
    EXPECT_EQ(Title(), "[Untitled] - Orvane " + ProgramVersion());
}

TEST_F(StartUp, AMissingVocabularyIsToldInTheStatusBarWithItsPlace) {
    Start({QStringLiteral("/nosplash")});
    EXPECT_NE(Panel("Panel3").find("vocab.txt"), std::string::npos);
}

TEST_F(StartUp, AVocabularyThatIsThereLeavesTheStatusBarEmpty) {
    QDir().mkpath(Path(QStringLiteral("Zorlan32/vocab")));
    WriteFile(QStringLiteral("Zorlan32/vocab/vocab.txt"), "Inst=GoTo\r\nDirective=EQU\r\n");
    StartOn(PumpDocument());
    EXPECT_EQ(Panel("Panel3"), "");
}

TEST_F(StartUp, ABoundsErrorSaysWhatAndWhereAndKeepsTheFileFromBeingOverwritten) {
    Answers.Press(QMessageBox::Ok).Press(QMessageBox::Ok);
    StartOnBytes("\xA4<FSM_NAME>PMP\xA4/\r\n\xA4<STATE>101:\xA4/\r\n\r\n");
    EXPECT_EQ(Answers.Seen()[0].Text,
              "The number \"101\" of STATE is outside 1..100; reading stopped there\r\n(line 2)");
    EXPECT_EQ(Text(0, 0), "PMP");
    EXPECT_EQ(Title(), "[Untitled] - Orvane " + ProgramVersion());
}

TEST_F(StartUp, EachUnknownTagShowsItsMessage) {
    Answers.Press(QMessageBox::Ok).Press(QMessageBox::Ok);
    StartOnBytes("\xA4<FOO>1\xA4/\r\n\xA4<BAR>2\xA4/\r\n\xA4<FSM_NAME>PMP\xA4/\r\n\r\n");
    ASSERT_EQ(Answers.Seen().size(), 2u);
    EXPECT_EQ(Answers.Seen()[0].Text, "Unknown tag FOO");
    EXPECT_EQ(Answers.Seen()[1].Text, "Unknown tag BAR");
    EXPECT_EQ(Title(), "machine.zfsm - Orvane " + ProgramVersion());
}

TEST_F(StartUp, ManyUnknownTagsShareTheLastBox) {
    std::string bytes;
    for (int i = 0; i < 200; ++i)
        bytes += "\xA4<TAG" + std::to_string(i) + ">1\xA4/\r\n";
    for (int i = 0; i < 5; ++i)
        Answers.Press(QMessageBox::Ok);
    StartOnBytes(bytes + "\xA4<FSM_NAME>PMP\xA4/\r\n\r\n");
    ASSERT_EQ(Answers.Seen().size(), 5u);
    EXPECT_EQ(Answers.Seen()[3].Text, "Unknown tag TAG3");
    EXPECT_TRUE(Answers.Seen()[4].Text.starts_with("Unknown tag TAG4\r\nUnknown tag TAG5\r\n"));
    EXPECT_TRUE(Answers.Seen()[4].Text.ends_with("... and 176 more"));
}

TEST_F(StartUp, FiveMessagesHaveABoxEachAndTheSixthSharesTheLast) {
    EXPECT_EQ(BoxesFor(5), Boxes({"TAG0", "TAG1", "TAG2", "TAG3", "TAG4"}));
    EXPECT_EQ(BoxesFor(6), Boxes({"TAG0", "TAG1", "TAG2", "TAG3", "TAG4\r\nUnknown tag TAG5"}));
}

TEST_F(StartUp, TheLastBoxHasTwentyMessagesAndCountsTheOthers) {
    const std::string twenty = BoxesFor(4 + 20).back();
    EXPECT_TRUE(twenty.ends_with("TAG22\r\nUnknown tag TAG23")) << twenty;
    EXPECT_EQ(BoxesFor(4 + 21).back(), twenty + "\r\n... and 1 more");
}

TEST_F(StartUp, WhereReadingStoppedIsToldBehindHoweverManyUnknownTags) {
    std::string bytes;
    for (int i = 0; i < 200; ++i)
        bytes += "\xA4<TAG" + std::to_string(i) + ">1\xA4/\r\n";
    for (int i = 0; i < 7; ++i)
        Answers.Press(QMessageBox::Ok);
    StartOnBytes(bytes + "\xA4<STATE>101:\xA4/\r\n\r\n");
    ASSERT_EQ(Answers.Seen().size(), 7u);
    EXPECT_TRUE(Answers.Seen()[4].Text.ends_with("... and 176 more"));
    EXPECT_EQ(Answers.Seen()[5].Text,
              "The number \"101\" of STATE is outside 1..100; reading stopped there\r\n(line 201)");
    EXPECT_TRUE(Answers.Seen()[6].Text.starts_with("Only what stands before that in\r\n"));
}

QStringList traced;

TEST_F(StartUp, TheTraceMarksTheStepsOfTheStart) {
    traced.clear();
    QLoggingCategory::setFilterRules(QStringLiteral("orvane.trace=true"));
    const QtMessageHandler former =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& text) {
            if (qstrcmp(context.category, "orvane.trace") == 0)
                traced += text.trimmed();
        });
    Start({QStringLiteral("/nosplash")});
    qInstallMessageHandler(former);
    QLoggingCategory::setFilterRules(QString());
    ASSERT_FALSE(traced.isEmpty());
    EXPECT_TRUE(traced.takeFirst().startsWith(QStringLiteral("Start at 2")));
    EXPECT_EQ(traced.join(QLatin1Char(' ')).toStdString(),
              "In ClearDataBase CDBb CDBc CDBd CDBe CDBe1 CDBe2 CDBe3 CDBe4 CDBe5 CDBe6 CDBe7 CDBe8 CDBf "
              "In NewGrid NGa NGb NGc NGd NGe NGf  a b c d");
}

TEST(CommandLineText, APathIsTheWholeLine) {
    EXPECT_EQ(ParseCommandLine({QStringLiteral("C:\\my"), QStringLiteral("files\\a.zfsm")}).DocumentPath,
              QStringLiteral("C:\\my files\\a.zfsm"));
    const CommandLine network =
        ParseCommandLine({QStringLiteral("\\\\server\\a.zfsm"), QStringLiteral("/nosplash")});
    EXPECT_EQ(network.DocumentPath, QStringLiteral("\\\\server\\a.zfsm /nosplash"));
    EXPECT_TRUE(network.NoSplash);
}

TEST(CommandLineText, NoSplashIsNoPath) {
    const CommandLine line = ParseCommandLine({QStringLiteral("/nosplash")});
    EXPECT_TRUE(line.DocumentPath.isEmpty());
    EXPECT_TRUE(line.NoSplash);
    EXPECT_FALSE(ParseCommandLine({}).NoSplash);
}

TEST(CommandLineText, AnyOtherArgumentIsAPathOfThisSystem) {
    EXPECT_EQ(ParseCommandLine({QStringLiteral("/home/me/a b.zfsm")}).DocumentPath,
              QStringLiteral("/home/me/a b.zfsm"));
    EXPECT_EQ(ParseCommandLine({QStringLiteral("/nosplash"), QStringLiteral("a.zfsm")}).DocumentPath,
              QStringLiteral("a.zfsm"));
}

} // namespace
} // namespace orvane
