// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of a machine in the window: a run is saved as one, the table is broken, and the test fails where it
// should.
#include "run/ui/RunPaneFixture.h"

#include "kit/QScintilla.h"
#include "support/FileBytes.h"
#include "support/Folders.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr unsigned kShownMark = 0; // of the pane with the text
constexpr unsigned kFailedMark = 1;

class RunTestsTest : public RunPaneFixture {
  protected:
    void SaveAs(const QString& name) {
        Answers.Do([name](QWidget& dialog) {
            auto& question = dynamic_cast<QInputDialog&>(dialog);
            question.setTextValue(name);
            question.accept();
        });
        PressButton("cmdSaveAsTest");
    }
    std::string Saved() const { return ReadFile(QStringLiteral("machine.ztest")); }
    std::string Summary() { return Label("lblTests"); }
    QsciScintilla& TestText() { return Named<QsciScintilla>(Window(), "txtTests"); }
    // The lines that have this mark, from 1.
    std::vector<int> Marked(unsigned mark) {
        std::vector<int> lines;
        for (int line = 0; line < TestText().lines(); ++line) {
            if ((TestText().markersAtLine(line) & 1U << mark) != 0)
                lines.push_back(line + 1);
        }
        return lines;
    }
};

// The door closes, somebody steps into the beam and stays there: it must stop and open again.
TEST_F(RunTestsTest, AHeldBeamDuringClosingIsTriedSavedAndGuardsTheTable) {
    StartOnBytes(FileBytes(std::string(test::kExamplesFolder) + "/garage.zfsm"));
    Trigger("mnuViewRun");
    ClickInput(QStringLiteral("Opened"), Qt::ControlModifier);
    Trigger("mnuPowerOn");
    EXPECT_EQ(Where(), "4:Open at 0");
    ClickInput(QStringLiteral("Button"));
    ClickInput(QStringLiteral("Opened"), Qt::ControlModifier);
    EXPECT_EQ(Where(), "5:Closing at 0");
    for (int i = 0; i < 3; ++i)
        Trigger("mnuStep");
    ClickInput(QStringLiteral("Beam"), Qt::ControlModifier);
    EXPECT_EQ(Where(), "6:Reverse at 3");
    Trigger("mnuToTimeout");
    EXPECT_EQ(Where(), "3:Opening at 8");
    Trigger("mnuStep");
    QTest::keyClicks(&Named<QLineEdit>(Window(), "txtUnit"), QStringLiteral("0.1 s"));
    SaveAs(QStringLiteral("a held beam turns the closing door round"));
    EXPECT_EQ(Saved(), R"(unit 0.1 s
names 1:Check 4:Open 5:Closing 6:Reverse 3:Opening e8:Opened e11:Button e10:Beam

test a held beam turns the closing door round
          on Opened    => Check => Open  via Opened  runs "Off GDR_MotorUp"  ran 2
          pulse Button => Closing  via Button  runs "Off GDR_MotorUp"  ran 1
          off Opened   => Closing  stays  ran 0
    +3    on Beam      => Reverse  via Beam  runs "Off GDR_MotorDown"  ran 1
    +4                 => Reverse  stays  ran 0
    +2                 => Opening  via Timeout  runs "Off GDR_MotorDown"  ran 1
)");
    EXPECT_TRUE(Panel("Panel3").starts_with("The test \"a held beam turns the closing door round\" is in "
                                            "machine.ztest now."));
    Trigger("mnuRunTests");
    EXPECT_EQ(Summary(), "machine.ztest: 1 passed, 0 failed; 5 of 8 states and 4 of 23 transitions seen");

    TypeTarget(10, 5, QStringLiteral("2")); // the beam does not stop the door any more
    Trigger("mnuRunTests");
    EXPECT_TRUE(Summary().starts_with("machine.ztest: 0 passed, 1 failed"));
    EXPECT_THAT(
        Rows("lstTests"),
        ElementsAre(HasSubstr("FAILED|8|a held beam turns the closing door round|expected 6:Reverse")));
    EXPECT_EQ(Where(), "5:Closing at 0"); // the end of the line before
    PressButton("cmdStepForward");
    PressButton("cmdStepForward");
    EXPECT_EQ(Where(), "2:Closed at 3");
}

TEST_F(RunTestsTest, ASecondTestIsAddedBehindTheFirst) {
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    SaveAs(QStringLiteral("first"));
    ClickInput(QStringLiteral("Start"));
    SaveAs(QStringLiteral("second"));
    EXPECT_THAT(Saved(), HasSubstr("test first\n"));
    EXPECT_THAT(Saved(), HasSubstr("\ntest second\n"));
    PressButton("cmdRunTests");
    EXPECT_TRUE(Summary().starts_with("machine.ztest: 2 passed, 0 failed")) << Summary();
}

TEST_F(RunTestsTest, AClickOnATestPlaysIt) {
    WriteFile(QStringLiteral("machine.ztest"), "test goes\n => Idle\n pulse Start => Run\n +100 => Idle\n"
                                               "test stays\n => Idle\n +7 => Idle\n");
    StartRunning(TimedPump());
    PressButton("cmdRunTests");
    QTableView& list = List("lstTests");
    const QModelIndex stays = list.model()->index(1, 2);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(stays).center());
    EXPECT_EQ(Where(), "1:Idle at 7");
    const QModelIndex goes = list.model()->index(0, 2);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(goes).center());
    EXPECT_EQ(Where(), "1:Idle at 100");
    EXPECT_TRUE(Named<QPushButton>(Window(), "cmdBringBack").isEnabled());
}

TEST_F(RunTestsTest, ASlipIsToldWithItsLine) {
    WriteFile(QStringLiteral("machine.ztest"), "test t\n => Idel\n");
    StartRunning(TimedPump());
    PressButton("cmdRunTests");
    EXPECT_EQ(Summary(), "machine.ztest: not run, because it is not understood");
    EXPECT_THAT(Rows("lstTests"), ElementsAre(HasSubstr("slip|2||no state is called \"Idel\"")));
}

TEST_F(RunTestsTest, TheTextOfTheTestsIsShownAtTheLineThatFails) {
    WriteFile(QStringLiteral("machine.ztest"), "; tests\r\ntest goes\n => Idle\ntest wrong\n => Idle\n"
                                               " pulse Start => Idle\n");
    StartRunning(TimedPump());
    PressButton("cmdRunTests");
    EXPECT_TRUE(TestText().isReadOnly());
    EXPECT_TRUE(TestText().text().startsWith(QStringLiteral("; tests\r\ntest goes\n")));
    EXPECT_THAT(Marked(kFailedMark), ElementsAre(6));
    QTableView& list = List("lstTests");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(0, 2)).center());
    EXPECT_THAT(Marked(kFailedMark), IsEmpty());
    EXPECT_THAT(Marked(kShownMark), ElementsAre(2));
}

// Ends of lines are no words, and neither are they lost by the next line's.
TEST_F(RunTestsTest, TheTextOfTheTestsIsColouredByItsWords) {
    WriteFile(QStringLiteral("machine.ztest"), "test goes\r\n => Idle ; said\r\n pulse Start => Run\r\n");
    StartRunning(TimedPump());
    PressButton("cmdRunTests");
    QsciScintilla& text = TestText();
    text.recolor();
    const auto colourOf = [&](const char* word) {
        const long at = text.text().indexOf(QLatin1String(word));
        return text.lexer()->color(int(text.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, at)));
    };
    const QColor plain = text.palette().color(QPalette::Text);
    EXPECT_EQ(colourOf("Idle"), plain);
    EXPECT_EQ(colourOf("goes"), plain);
    EXPECT_EQ(colourOf("Run"), plain);
    EXPECT_NE(colourOf("test"), plain);
    EXPECT_NE(colourOf("pulse"), plain);
    EXPECT_NE(colourOf("; said"), plain);
    EXPECT_NE(colourOf("pulse"), colourOf("test"));
}

TEST_F(RunTestsTest, ATestIsNotAddedToAFileThatIsNotUnderstood) {
    WriteFile(QStringLiteral("machine.ztest"), "test t\n => Idel\n");
    StartRunning(TimedPump());
    PressButton("cmdPowerOn");
    Answers.Do([](QWidget& dialog) { dynamic_cast<QInputDialog&>(dialog).accept(); });
    Answers.Press(QMessageBox::Ok);
    PressButton("cmdSaveAsTest");
    EXPECT_EQ(Saved(), "test t\n => Idel\n");
    EXPECT_THAT(Answers.Seen().back().Text, HasSubstr("machine.ztest, line 2: no state is called"));
}

TEST_F(RunTestsTest, WithoutPowerThereIsNothingToSave) {
    StartRunning(TimedPump());
    Answers.Press(QMessageBox::Ok);
    PressButton("cmdSaveAsTest");
    EXPECT_THAT(Answers.Seen().back().Text, HasSubstr("A test begins with power on."));
}

TEST_F(RunTestsTest, TestsOfATableWithErrorsAreNotRunAndItSaysWhy) {
    WriteFile(QStringLiteral("machine.ztest"), "test t\n => Idle\n");
    FsmDocument document = TimedPump();
    document.State(2).TimeConst.clear();
    StartOn(document);
    Trigger("mnuRunTests");
    EXPECT_TRUE(Summary().starts_with("machine.ztest was not run:\n")) << Summary();
}

TEST_F(RunTestsTest, WithoutTestsBesideTheDocumentTheUserChoosesThem) {
    WriteFile(QStringLiteral("other.ztest"), "test t\n => Idle\n");
    StartRunning(TimedPump());
    Answers.ChooseFile(Path(QStringLiteral("other.ztest")));
    PressButton("cmdRunTests");
    EXPECT_TRUE(Summary().starts_with("other.ztest: 1 passed, 0 failed"));
    Answers.CancelFile();
    PressButton("cmdRunTests");
    EXPECT_TRUE(Summary().starts_with("other.ztest: 1 passed, 0 failed"));
}

} // namespace
} // namespace orvane
