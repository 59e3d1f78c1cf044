// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/ZorlanScanner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ElementsAre;

const ZorlanWords kWords(Vocabulary{"LoadW\nGoSub\nJump.EQ", "DB\n#include"});

TEST(ZorlanScanner, InstructionsAndDirectivesMatchInAnyCase) {
    EXPECT_EQ(kWords.KindOf("loadw"), TokenKind::Instruction);
    EXPECT_EQ(kWords.KindOf("GOSUB"), TokenKind::Instruction);
    EXPECT_EQ(kWords.KindOf("db"), TokenKind::Directive);
    EXPECT_EQ(kWords.KindOf("dbx"), TokenKind::Plain);
    EXPECT_EQ(kWords.KindOf(""), TokenKind::Plain);
}

TEST(ZorlanScanner, ALineHasItsTokensInOrderWithoutAGap) {
    EXPECT_THAT(ScanZorlan("A: LoadW 5 ;go\r\n", kWords),
                ElementsAre(Token{3, TokenKind::Plain}, Token{5, TokenKind::Instruction},
                            Token{3, TokenKind::Plain}, Token{3, TokenKind::Comment},
                            Token{2, TokenKind::Plain}));
}

TEST(ZorlanScanner, BothCommentMarkersReachToTheEndOfTheLine) {
    EXPECT_THAT(ScanZorlan("*db \"x\nDB;a*b", kWords),
                ElementsAre(Token{6, TokenKind::Comment}, Token{1, TokenKind::Plain},
                            Token{2, TokenKind::Directive}, Token{4, TokenKind::Comment}));
}

TEST(ZorlanScanner, AStringEndsAtItsQuoteOrWithTheLine) {
    EXPECT_THAT(ScanZorlan("\"a;b\" \"open\r\nDB", kWords),
                ElementsAre(Token{5, TokenKind::String}, Token{1, TokenKind::Plain},
                            Token{5, TokenKind::String}, Token{2, TokenKind::Plain},
                            Token{2, TokenKind::Directive}));
}

TEST(ZorlanScanner, WordsMayHoldWhateverTheVocabularyHas) {
    EXPECT_THAT(ScanZorlan("jump.eq", kWords), ElementsAre(Token{7, TokenKind::Instruction}));
    EXPECT_THAT(ScanZorlan("#INCLUDE", kWords), ElementsAre(Token{8, TokenKind::Directive}));
    EXPECT_THAT(ScanZorlan("LoadW:", kWords),
                ElementsAre(Token{5, TokenKind::Instruction}, Token{1, TokenKind::Plain}));
}

TEST(ZorlanScanner, WithoutAVocabularyOnlyCommentsAndStringsStandOut) {
    EXPECT_THAT(ScanZorlan("LoadW ;x", ZorlanWords()),
                ElementsAre(Token{6, TokenKind::Plain}, Token{2, TokenKind::Comment}));
}

TEST(ZorlanScanner, CompletionOffersVocabularyAndOwnWordsOnceEach) {
    EXPECT_THAT(CompletionWords("Level_1 ;LoadComment\nlOADW load_Me Lo", "lo", kWords),
                ElementsAre("LoadW", "load_Me"));
}

TEST(ZorlanScanner, CompletionNeverOffersThePrefixItself) {
    EXPECT_THAT(CompletionWords("Pump Pump_2", "pump", kWords), ElementsAre("Pump_2"));
}

} // namespace
} // namespace orvane
