// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/frmGenerator.h"

#include "kit/AnsiString.h"
#include "kit/CodePane.h"
#include "support/ui/OpenedAddresses.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace orvane {
namespace {

GeneratedProgram ARun(std::string text, std::vector<Finding> findings = {}) {
    return {std::move(text), {std::move(findings), false}};
}

class frmGeneratorTest : public testing::Test {
  protected:
    template <typename Control>
    Control& Find(const char* name) {
        auto* control = window_.findChild<Control*>(QString::fromUtf8(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }

    void Show() {
        window_.Present();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    QPoint MiddleOfLine(int line) {
        auto& errors = Find<QPlainTextEdit>("txtErrors");
        return errors.cursorRect(QTextCursor(errors.document()->findBlockByNumber(line))).center();
    }

    frmGenerator window_;
};

TEST_F(frmGeneratorTest, ARunMadeWhileHiddenIsShownLater) {
    window_.TakeRun(ARun(";PMP\r\n", {{FindingKind::DeadEnd, {0, 2}, "State 2:Run is a dead end"}}),
                    QString());
    Show();
    EXPECT_EQ(Find<CodePane>("txtCode").Text(), ";PMP\r\n");
    EXPECT_EQ(Find<QPlainTextEdit>("txtErrors").toPlainText(),
              QStringLiteral("Errors and warnings\nWarning: State 2:Run is a dead end\n 1 Warnings\n"));
}

TEST_F(frmGeneratorTest, ARunFillsTheHiddenPanes) {
    window_.TakeRun(ARun(";PMP\r\n"), QString());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Find<CodePane>("txtCode").Text() == ";PMP\r\n"; }, 2000));
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(frmGeneratorTest, ALargeProgramWaitsForAPauseAndTheLatestIsShown) {
    std::string text;
    while (text.size() < 100000)
        text += "\tGoTo\tPMP_1\r\n";
    const auto shows = [this](const std::string& program) {
        return Find<CodePane>("txtCode").Text() == program;
    };
    for (const bool visible : {false, true}) {
        window_.setVisible(visible);
        window_.TakeRun(ARun(text), QString());
        EXPECT_FALSE(shows(text));
        text += visible ? ";visible\r\n" : ";hidden\r\n";
        window_.TakeRun(ARun(text), QString());
        EXPECT_TRUE(QTest::qWaitFor([&] { return shows(text); }, 2000));
        text += ";next\r\n";
    }
}

TEST_F(frmGeneratorTest, AWindowComesUpWithTheLatestRunHoweverLarge) {
    const std::string text(100000, ';');
    window_.TakeRun(ARun(text), QString());
    window_.Present();
    EXPECT_EQ(Find<CodePane>("txtCode").Text(), text);
}

TEST_F(frmGeneratorTest, ADoubleClickOnAFindingWithoutAPlaceChoosesNothing) {
    const QSignalSpy chosen(&window_, &frmGenerator::PlaceChosen);
    window_.TakeRun(ARun("", {{FindingKind::MissingPrefix, {}, "Nothing leads anywhere"}}), QString());
    Show();
    QTest::mouseDClick(Find<QPlainTextEdit>("txtErrors").viewport(), Qt::LeftButton, Qt::NoModifier,
                       MiddleOfLine(1));
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(frmGeneratorTest, TheLatestRunReplacesTheOneBefore) {
    Show();
    for (const std::string text :
         {";a 1\r\nold\r\n\r\nend\r\n", ";a 2\r\nnew \xE4\xF6\r\n\r\nend\r\n", "", ";\x80\r\n", ";\x82\r\n",
          ";a 2\r\nnew\r\nnew\r\n\r\nend\r\n", "one line"}) {
        window_.TakeRun(ARun(text), QString());
        EXPECT_EQ(Find<CodePane>("txtCode").Text(), text);
    }
}

TEST_F(frmGeneratorTest, TheReaderStaysWhereHeWas) {
    std::string text = ";date 1\r\n";
    for (int line = 0; line < 500; ++line)
        text += "\tGoTo\tPMP_" + std::to_string(line) + "\r\n";
    window_.TakeRun(ARun(text), QString());
    Show();
    auto& pane = Find<CodePane>("txtCode");
    pane.setCursorPosition(300, 4);
    pane.setFirstVisibleLine(290);
    text.replace(6, 1, "2").insert(text.find("\tGoTo\tPMP_20\r\n"), ";new\r\n");
    window_.TakeRun(ARun(text), QString());
    EXPECT_EQ(pane.Text(), text);
    int line = 0;
    int column = 0;
    pane.getCursorPosition(&line, &column);
    EXPECT_EQ(line, 301);
    EXPECT_EQ(column, 4);
    EXPECT_NEAR(pane.firstVisibleLine(), 290, 1);
}

TEST_F(frmGeneratorTest, TheCodeCannotBeChanged) {
    window_.TakeRun(ARun(";PMP\r\n"), QString());
    Show();
    auto& pane = Find<CodePane>("txtCode");
    QTest::keyClicks(&pane, QStringLiteral("x"));
    EXPECT_EQ(pane.Text(), ";PMP\r\n");
    EXPECT_TRUE(pane.isReadOnly());
}

TEST_F(frmGeneratorTest, TypingInTheReportIsDiscarded) {
    window_.TakeRun(ARun(""), QString());
    Show();
    QTest::keyClicks(&Find<QPlainTextEdit>("txtErrors"), QStringLiteral("x"));
    EXPECT_EQ(Find<QPlainTextEdit>("txtErrors").toPlainText(), QStringLiteral("Errors and warnings\n"));
}

TEST_F(frmGeneratorTest, TheCaretIsReadOutFromLineOneColumnOne) {
    Show();
    EXPECT_EQ(Find<QLabel>("Panel2").text(), QStringLiteral("Line 1, Col 1"));
    window_.TakeRun(ARun(";PMP\r\n\tGoTo\r\n"), QString());
    Find<CodePane>("txtCode").setCursorPosition(1, 3);
    EXPECT_EQ(Find<QLabel>("Panel2").text(), QStringLiteral("Line 2, Col 4"));
}

TEST_F(frmGeneratorTest, TheReportTakesThreeTenthsOfTheHeight) {
    Show();
    for (const QSize size : {QSize(500, 400), QSize(1000, 800)}) {
        window_.resize(size);
        const QRect code = Find<CodePane>("txtCode").geometry();
        const QRect errors = Find<QPlainTextEdit>("txtErrors").geometry();
        const QRect status = Find<QStatusBar>("StatusBar1").geometry();
        EXPECT_EQ(errors.height(), size.height() * 3 / 10);
        EXPECT_EQ(code.width(), size.width());
        EXPECT_EQ(errors.width(), size.width());
        EXPECT_EQ(errors.top() - code.bottom() - 1, 3);
        EXPECT_EQ(status.top(), errors.bottom() + 1);
        EXPECT_EQ(status.bottom(), size.height() - 1);
    }
}

TEST_F(frmGeneratorTest, ADoubleClickOnAFindingChoosesItsPlace) {
    QSignalSpy chosen(&window_, &frmGenerator::PlaceChosen);
    window_.TakeRun(ARun("", {{FindingKind::MissingEventCode, {7, 3}, "Missing event test code in row 7"},
                              {FindingKind::DeadEnd, {0, 5}, "State 5:Odd\r\nname is a dead end"},
                              {FindingKind::TimingModeWithoutTimeout, {4, 6}, "State 6: has"}}),
                    QString());
    Show();
    QWidget* report = Find<QPlainTextEdit>("txtErrors").viewport();
    for (const int line : {0, 1, 2, 3, 4, 5})
        QTest::mouseDClick(report, Qt::LeftButton, Qt::NoModifier, MiddleOfLine(line));
    const auto place = [&](int i) { return chosen[i][0].value<Cell>(); };
    ASSERT_EQ(chosen.count(), 4);
    EXPECT_EQ(place(0), (Cell{7, 3}));
    EXPECT_EQ(place(1), (Cell{kNoRow, 5}));
    EXPECT_EQ(place(2), (Cell{kNoRow, 5}));
    EXPECT_EQ(place(3), (Cell{4, 6}));
}

TEST_F(frmGeneratorTest, F1OpensTheHelpPageFromBothPanes) {
    const OpenedAddresses opened;
    qputenv("ORVANE_HELP_URL", "https://help.example/");
    Show();
    QTest::keyClick(&Find<CodePane>("txtCode"), Qt::Key_F1);
    QTest::keyClick(&Find<QPlainTextEdit>("txtErrors"), Qt::Key_F1);
    QTest::keyClick(&Find<QPlainTextEdit>("txtErrors"), Qt::Key_F1, Qt::ShiftModifier);
    qunsetenv("ORVANE_HELP_URL");
    const QUrl page(QStringLiteral("https://help.example/4947.htm"));
    EXPECT_EQ(opened.Addresses, (QList<QUrl>{page, page}));
}

} // namespace
} // namespace orvane
