// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/CodePane.h"

#include "kit/AnsiString.h"
#include "support/ui/Typing.h"
#include "text/ZorlanScanner.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr PaneHandlers kAll = {true, true, true, true, true};

class CodePaneTest : public testing::Test {
  protected:
    void SetUp() override {
        pane.resize(500, 300);
        pane.show();
        pane.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
        pane.setFocus();
    }

    QDialog* FindDialog() { return pane.findChild<QDialog*>(QStringLiteral("FindReplaceDialog")); }

    void Search(const QString& text, const QString& replacement) {
        pane.FindAndReplace();
        Child<QLineEdit>("txtFind")->setText(text);
        Child<QLineEdit>("txtReplace")->setText(replacement);
    }

    template <typename T>
    T* Child(const char* name) {
        return FindDialog()->findChild<T*>(QString::fromLatin1(name));
    }

    void Click(const char* button) { QTest::mouseClick(Child<QPushButton>(button), Qt::LeftButton); }

    CodePane pane{kAll};
};

TEST_F(CodePaneTest, EveryDocumentTextComesBackAsItWas) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    for (const std::string& text : {std::string("a\r\nb\nc\rd\r\n"), everyByte, std::string()}) {
        pane.SetText(text);
        EXPECT_EQ(pane.Text(), text);
    }
}

TEST_F(CodePaneTest, ReturnEndsALineWithCarriageReturnAndLineFeed) {
    QTest::keyClicks(&pane, QStringLiteral("A:"));
    QTest::keyClick(&pane, Qt::Key_Return);
    QTest::keyClick(&pane, Qt::Key_Return);
    QTest::keyClick(&pane, Qt::Key_Tab);
    QTest::keyClicks(&pane, QStringLiteral("Nop"));
    EXPECT_EQ(pane.Text(), "A:\r\n\r\n\tNop");
}

TEST_F(CodePaneTest, PastedLineFeedsBecomeLineEndsOfTheDocument) {
    QApplication::clipboard()->setText(QStringLiteral("a\nb\n"));
    pane.paste();
    EXPECT_EQ(pane.Text(), "a\r\nb\r\n");
}

TEST_F(CodePaneTest, EachTypedCharacterIsOneEdit) {
    QSignalSpy edits(&pane, &CodePane::TextEdited);
    QTest::keyClicks(&pane, QStringLiteral("Nop"));
    EXPECT_EQ(edits.size(), 3);
    pane.SetText("Nop\r\nNop");
    EXPECT_EQ(edits.size(), 4);
    pane.SetText("Nop\r\nNop");
    EXPECT_EQ(edits.size(), 4);
}

TEST_F(CodePaneTest, TheReadOutShowsTheCaretAfterTheCharacterThatWasTyped) {
    QString readOut;
    QObject::connect(&pane, &CodePane::CaretReadOutDue, [&] { readOut = pane.CaretReadOut(); });
    TypeAnyText(pane, QStringLiteral("ab\u20AC"));
    EXPECT_EQ(readOut, QStringLiteral("Line 1, Col 4"));
    QTest::keyClick(&pane, Qt::Key_Return);
    EXPECT_EQ(readOut, QStringLiteral("Line 2, Col 1"));
}

TEST_F(CodePaneTest, TheReadOutIsTheEndOfTheSelectionWhicheverWayItWasMade) {
    pane.SetText("one\r\ntwo\r\nthree");
    EXPECT_EQ(pane.CaretReadOut(), QStringLiteral("Line 1, Col 1"));
    pane.setSelection(2, 3, 0, 1); // caret at the start
    EXPECT_EQ(pane.CaretReadOut(), QStringLiteral("Line 3, Col 4"));
}

TEST_F(CodePaneTest, CharactersThatADocumentCannotHoldAreLeftOutWhenTyped) {
    QSignalSpy leftOut(&pane, &CodePane::CharactersLeftOut);
    QSignalSpy edits(&pane, &CodePane::TextEdited);
    pane.SetText("ab");
    pane.selectAll();
    TypeAnyText(pane, QStringLiteral("\u03A9\u00A4"));
    EXPECT_EQ(pane.Text(), "ab") << "a selection stays when nothing takes its place";
    ASSERT_EQ(leftOut.size(), 2);
    EXPECT_EQ(leftOut[0][0].toString(), QStringLiteral("\u03A9"));
    EXPECT_EQ(leftOut[1][0].toString(), QStringLiteral("\u00A4"));
    EXPECT_EQ(edits.size(), 1) << "only from setting the text";
}

TEST_F(CodePaneTest, CharactersThatADocumentCannotHoldAreLeftOutWhenPasted) {
    QSignalSpy leftOut(&pane, &CodePane::CharactersLeftOut);
    QApplication::clipboard()->setText(QStringLiteral("1\u03A9 \u20AC\u00A42"));
    pane.paste();
    EXPECT_EQ(pane.Text(), "1 \x80"
                           "2");
    ASSERT_EQ(leftOut.size(), 1);
    EXPECT_EQ(leftOut[0][0].toString(), QStringLiteral("\u03A9\u00A4"));
    EXPECT_EQ(pane.CaretReadOut(), QStringLiteral("Line 1, Col 5"));
}

TEST_F(CodePaneTest, TextSetFromOutsideIsFilteredToo) {
    pane.setText(QStringLiteral("a\u4E2Db"));
    EXPECT_EQ(pane.Text(), "ab");
}

TEST_F(CodePaneTest, ADelimiterThatADocumentBroughtAlongStaysWhileOtherTextIsTyped) {
    pane.SetText("x\xA4y");
    QTest::keyClick(&pane, Qt::Key_End);
    QTest::keyClicks(&pane, QStringLiteral("z"));
    EXPECT_EQ(pane.Text(), "x\xA4yz");
}

TEST_F(CodePaneTest, InsertKeyTogglesOvertype) {
    QSignalSpy overtype(&pane, &CodePane::OvertypeSet);
    QTest::keyClick(&pane, Qt::Key_Insert);
    QTest::keyClick(&pane, Qt::Key_Insert);
    ASSERT_EQ(overtype.size(), 2);
    EXPECT_TRUE(overtype[0][0].toBool());
    EXPECT_FALSE(overtype[1][0].toBool());
}

TEST_F(CodePaneTest, CtrlHAloneOpensFindAndReplace) {
    QTest::keyClick(&pane, Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(FindDialog(), nullptr);
    QTest::keyClick(&pane, Qt::Key_H, Qt::ControlModifier);
    ASSERT_NE(FindDialog(), nullptr);
    EXPECT_TRUE(FindDialog()->isVisible());
    EXPECT_EQ(pane.Text(), "");
}

TEST_F(CodePaneTest, APaneWithoutHandlersTellsNothing) {
    CodePane plain{PaneHandlers{}};
    QSignalSpy focus(&plain, &CodePane::GotFocus);
    QSignalSpy edits(&plain, &CodePane::TextEdited);
    QSignalSpy readOuts(&plain, &CodePane::CaretReadOutDue);
    QSignalSpy overtype(&plain, &CodePane::OvertypeSet);
    plain.show();
    plain.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&plain));
    plain.setFocus();
    QTest::keyClicks(&plain, QStringLiteral("x"));
    QTest::keyClick(&plain, Qt::Key_Insert);
    QTest::keyClick(&plain, Qt::Key_H, Qt::ControlModifier);
    QTest::mouseClick(plain.viewport(), Qt::LeftButton);
    EXPECT_EQ(plain.Text(), "x");
    EXPECT_EQ(focus.size() + edits.size() + readOuts.size() + overtype.size(), 0);
    EXPECT_EQ(plain.findChild<QDialog*>(QStringLiteral("FindReplaceDialog")), nullptr);
}

TEST_F(CodePaneTest, FocusAndMouseReleaseAskForTheReadOut) {
    QSignalSpy readOuts(&pane, &CodePane::CaretReadOutDue);
    QTest::mousePress(pane.viewport(), Qt::LeftButton);
    EXPECT_EQ(readOuts.size(), 0);
    QTest::mouseRelease(pane.viewport(), Qt::LeftButton);
    EXPECT_EQ(readOuts.size(), 1);
    QSignalSpy focus(&pane, &CodePane::GotFocus);
    pane.clearFocus();
    pane.setFocus();
    EXPECT_EQ(focus.size(), 1);
    EXPECT_EQ(readOuts.size(), 2);
}

TEST_F(CodePaneTest, KeysOfAPaneThatNobodySeesAreIgnored) {
    pane.hide();
    QTest::keyClicks(&pane, QStringLiteral("x"));
    EXPECT_EQ(pane.Text(), "");
}

TEST_F(CodePaneTest, WordsOfTheVocabularyAreColoured) {
    pane.SetVocabulary({"LoadW", "DB"});
    pane.SetText("A: loadw db ;db");
    pane.SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
    const auto styleAt = [&](int position) {
        return static_cast<TokenKind>(pane.SendScintilla(QsciScintilla::SCI_GETSTYLEAT, position));
    };
    EXPECT_EQ(styleAt(0), TokenKind::Plain);
    EXPECT_EQ(styleAt(3), TokenKind::Instruction);
    EXPECT_EQ(styleAt(9), TokenKind::Directive);
    EXPECT_EQ(styleAt(12), TokenKind::Comment);
    EXPECT_NE(pane.lexer()->color(static_cast<int>(TokenKind::Instruction)),
              pane.lexer()->color(static_cast<int>(TokenKind::Plain)));
}

TEST_F(CodePaneTest, ADarkThemeGetsLightTextOnItsOwnGround) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x202020));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Window, QColor(0x303030));
    pane.setPalette(dark);
    for (int style = 0; style < 5; ++style) {
        EXPECT_EQ(pane.lexer()->paper(style), QColor(0x202020)) << style;
        EXPECT_GT(pane.lexer()->color(style).lightness(), 150) << style;
    }
}

TEST_F(CodePaneTest, CtrlSpaceCompletesAWordOfTheVocabularyOrTheText) {
    pane.SetVocabulary({"LoadWait", ""});
    pane.SetText("Pump_Level\r\n");
    pane.setCursorPosition(1, 0);
    QTest::keyClicks(&pane, QStringLiteral("pu"));
    QTest::keyClick(&pane, Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(pane.isListActive()) << pane.Text();
    QTest::keyClick(&pane, Qt::Key_Return);
    EXPECT_EQ(pane.Text(), "Pump_Level\r\nPump_Level");
}

TEST_F(CodePaneTest, ReplaceAllKeepsToCaseAndWholeWordsWhenAsked) {
    pane.SetText("Lo lo Low lo");
    Search(QStringLiteral("lo"), QStringLiteral("hi"));
    Child<QCheckBox>("chkWholeWord")->setChecked(true);
    Child<QCheckBox>("chkMatchCase")->setChecked(true);
    Click("cmdReplaceAll");
    EXPECT_EQ(pane.Text(), "Lo hi Low hi");
    EXPECT_EQ(Child<QLabel>("lblResult")->text(), QStringLiteral("Replaced: 2"));
    pane.undo();
    EXPECT_EQ(pane.Text(), "Lo lo Low lo");
}

TEST_F(CodePaneTest, ReplaceAllTakesRegularExpressionsAndEndsWithEmptyMatches) {
    pane.SetText("a1 b22");
    Search(QStringLiteral("([a-z])(\\d+)"), QStringLiteral("\\2\\1"));
    Child<QCheckBox>("chkRegExp")->setChecked(true);
    Click("cmdReplaceAll");
    EXPECT_EQ(pane.Text(), "1a 22b");
    Search(QStringLiteral("x*"), QStringLiteral("-"));
    Click("cmdReplaceAll");
    EXPECT_EQ(pane.Text(), "-1-a- -2-2-b-");
}

TEST_F(CodePaneTest, ALineEndInAReplacementIsOneOfTheDocument) {
    const auto replaced = [this](const char* replacement) {
        pane.SetText("a;b");
        Search(QStringLiteral(";"), QString::fromLatin1(replacement));
        Child<QCheckBox>("chkRegExp")->setChecked(true);
        Click("cmdReplaceAll");
        return pane.Text();
    };
    EXPECT_EQ(replaced("\\n"), "a\r\nb");
    EXPECT_EQ(replaced("\\r\\n"), "a\r\nb");
    EXPECT_EQ(replaced("\\n\\n\\t"), "a\r\n\r\n\tb");
    EXPECT_EQ(replaced("\\\\n"), "a\\nb") << "a backslash and a letter";
    EXPECT_EQ(replaced("\\\\\\n"), "a\\\r\nb") << "a backslash and a line end";
}

TEST_F(CodePaneTest, FindWrapsAroundOnlyWhenAsked) {
    pane.SetText("one two one");
    Search(QStringLiteral("one"), {});
    Click("cmdFindNext");
    Click("cmdFindNext");
    EXPECT_EQ(pane.CaretReadOut(), QStringLiteral("Line 1, Col 12"));
    Click("cmdFindNext");
    EXPECT_EQ(pane.CaretReadOut(), QStringLiteral("Line 1, Col 4"));
    Child<QCheckBox>("chkWrap")->setChecked(false);
    Click("cmdFindPrevious");
    EXPECT_EQ(Child<QLabel>("lblResult")->text(), QStringLiteral("Not found"));
}

TEST_F(CodePaneTest, ReplaceGoesOnToTheNextMatch) {
    pane.SetText("aa aa aa");
    Search(QStringLiteral("aa"), QStringLiteral("aab"));
    Click("cmdFindNext");
    Click("cmdReplace");
    EXPECT_EQ(pane.Text(), "aab aa aa");
    EXPECT_EQ(pane.selectedText(), QStringLiteral("aa"));
    Click("cmdReplace");
    EXPECT_EQ(pane.Text(), "aab aab aa");
}

TEST_F(CodePaneTest, AReplacementTakesNoCharacterThatADocumentCannotHold) {
    pane.SetText("a");
    Search(QStringLiteral("a"), QStringLiteral("b\u03A9"));
    Click("cmdReplaceAll");
    EXPECT_EQ(pane.Text(), "b");
}

TEST_F(CodePaneTest, ABrokenExpressionIsTold) {
    pane.SetText("a(b");
    Search(QStringLiteral("(b"), QStringLiteral("x"));
    Child<QCheckBox>("chkRegExp")->setChecked(true);
    Click("cmdReplaceAll");
    EXPECT_EQ(pane.Text(), "a(b");
    EXPECT_EQ(Child<QLabel>("lblResult")->text(),
              QStringLiteral("This is not a complete regular expression"));
    Child<QCheckBox>("chkRegExp")->setChecked(false);
    Click("cmdFindNext");
    EXPECT_EQ(Child<QLabel>("lblResult")->text(), QString());
}

} // namespace
} // namespace orvane
