// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Vocabulary.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Vocabulary, TakesInstructionsAndDirectivesInFileOrder) {
    EXPECT_EQ(ParseVocabulary("Inst=GoTo\r\nDirective=defTIME24\r\nInst=GoIfT\r\nDirective=DB\r\n"),
              (Vocabulary{"GoTo\nGoIfT", "defTIME24\nDB"}));
}

TEST(Vocabulary, PassesOverEveryOtherLine) {
    EXPECT_EQ(ParseVocabulary("inst=a\r\nINST=b\r\n Inst=c\r\nInst =d\r\nInstr=e\r\n"
                              "directive=f\r\n;Directive=g\r\n=Inst=h\r\nInst\r\nDirective\r\n\r\nwords\r\n"),
              Vocabulary{});
}

TEST(Vocabulary, TheWordEndsAtTheNextEqualSign) {
    EXPECT_EQ(ParseVocabulary("Inst=GoTo=jump=3\r\nDirective=DB=\r\n"), (Vocabulary{"GoTo", "DB"}));
}

TEST(Vocabulary, KeepsWordsAsTheyAreWithTheirBlanks) {
    EXPECT_EQ(ParseVocabulary("Inst= Go To \r\n").InstructionWords, " Go To ");
}

TEST(Vocabulary, AnEmptyWordIsAWord) {
    EXPECT_EQ(ParseVocabulary("Inst=a\r\nInst=\r\nInst=b").InstructionWords, "a\n\nb");
    EXPECT_EQ(ParseVocabulary("Inst=\r\nInst=b").InstructionWords, "\nb");
}

TEST(Vocabulary, ReadsEveryKindOfLineEndAndALastLineWithoutOne) {
    for (const std::string lineEnd : {"\r\n", "\n", "\r"})
        EXPECT_EQ(ParseVocabulary("Inst=a" + lineEnd + "Inst=b" + lineEnd + "Directive=c"),
                  (Vocabulary{"a\nb", "c"}));
}

TEST(Vocabulary, AnEmptyFileHasNoWords) {
    EXPECT_EQ(ParseVocabulary(""), Vocabulary{});
    EXPECT_EQ(ParseVocabulary("\r\n"), Vocabulary{});
}

TEST(Vocabulary, BytesOfAnyKindDoNoHarm) {
    std::string bytes;
    for (int round = 0; round < 1000; ++round)
        for (int byte = 0; byte < 256; ++byte)
            bytes += static_cast<char>(byte);
    EXPECT_EQ(ParseVocabulary(bytes), Vocabulary{});
    EXPECT_EQ(ParseVocabulary(bytes + "\nInst=a").InstructionWords, "a");
    EXPECT_EQ(ParseVocabulary(std::string("Inst=a\0b\xFF\r\n", 11)).InstructionWords,
              std::string("a\0b\xFF", 4));
}

} // namespace
} // namespace orvane
